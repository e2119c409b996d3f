#include "Score.h"
#include "windows1252.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

namespace fs = std::filesystem;

namespace {

struct ScoreTest : testing::Test {
  std::string folder = fs::temp_directory_path() / "korvel-XXXXXX";
  fs::path file = fs::path(mkdtemp(folder.data())) / "Score.hsc", copy = file.string() + ".defekt";
  Score score{file};
  const std::string empty = (score.loadAtStart(), read(file));

  ~ScoreTest() override { fs::remove_all(folder); }
  static std::string read(const fs::path &path) {
    return (std::ostringstream() << std::ifstream(path).rdbuf()).str();
  }
  Score::Loaded load(const std::string &bytes) {
    std::ofstream(file) << bytes;
    return score.loadAtStart();
  }
  static std::string row(const std::string &name, const std::string &quote) {
    std::string bytes;
    for (const std::string &text : {name, quote})
      bytes += static_cast<char>(text.size()) + ('\0' + text) + std::string(28 - text.size(), '\0');
    return bytes;
  }
};

TEST_F(ScoreTest, ResultsToTheByte) {
  for (std::size_t i = 0; i < 1800; i += 60)
    EXPECT_EQ(empty.substr(i, 60), row("unbekannt", "?"));
  EXPECT_EQ(score.EnterScore(2, "A", 30), 1);
  EXPECT_EQ(score.EnterScore(2, std::string(28, 'n'), 35), 2);
  EXPECT_EQ(score.EnterScore(2, "Jörg", 30), 1) << "the newer of two equal results";
  EXPECT_EQ(read(file), empty.substr(0, 600) + row("J\xF6rg", "30") + row("A", "30") +
                            row(std::string(28, 'n'), "35") + empty.substr(780));
  EXPECT_EQ(score.EnterScore(3, "A", 1000), 1) << "an unoccupied row takes that many";
  EXPECT_EQ(score.LoadScore(), Score::Loaded::whole);
}

TEST_F(ScoreTest, DamagedFileKeepsItsSoundRowsAndACopy) {
  using enum Score::Loaded;
  EXPECT_EQ(load(empty.substr(0, 1773)), whole) << "the last text is whole";
  EXPECT_EQ(load(empty + "more"), whole);
  const std::string rows = row("a", "20") + row("b", "x") + row("c", "50") + empty.substr(180);
  EXPECT_EQ(load(rows), damaged);
  EXPECT_EQ(score.loadAtStart(), damaged);
  EXPECT_EQ(score.row(1, 2), (Score::Row{"c", "50"}));
  EXPECT_FALSE(fs::exists(copy.string() + ".1")) << "copied once only";
  EXPECT_EQ(load('\x1D' + rows.substr(1)), damaged) << "a text of 29 bytes";
  EXPECT_EQ(read(copy.string() + ".1"), rows) << "the older copy is kept";

  EXPECT_EQ(load(empty.substr(0, 1772)), damaged);
  fs::resize_file(file, 2'000'000'000'000); // which takes no room, and no time
  EXPECT_EQ(score.loadAtStart(), damaged);
}

TEST(Score, NumbersAndTextsAreChecked) {
  EXPECT_EQ((Score::Row{"", "32767"}.bombs()), 32767);
  for (const char *quote : {"32768", "0", "-5", "4 7", " 47"})
    EXPECT_EQ((Score::Row{"", quote}.bombs()), 0) << quote;
  EXPECT_EQ(fromWindows1252("\x80\xE4\x9F"), "€äŸ");
  EXPECT_EQ(toWindows1252("€äŸ"), "\x80\xE4\x9F");
  EXPECT_EQ(toWindows1252("\xE2\x82z\xC3"), "??z?") << "a character that ends too early";
}

} // namespace
