#include "Score.h"
#include "windows1252.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

namespace fs = std::filesystem;

namespace {

struct ScoreTest : testing::Test {
  const testing::UnitTest &unit = *testing::UnitTest::GetInstance();
  fs::path folder = fs::temp_directory_path() / ("korvel-" + std::to_string(unit.random_seed()) +
                                                 unit.current_test_info()->name());
  fs::path file = folder / "Score.hsc";
  Score score{file};

  void SetUp() override {
    fs::remove_all(folder);
    fs::create_directory(folder);
  }
  void TearDown() override { fs::remove_all(folder); }

  void write(const std::string &bytes) const {
    std::ofstream(file, std::ios::binary).write(bytes.data(), static_cast<long>(bytes.size()));
  }
  std::string read(const fs::path &path) const {
    std::ostringstream bytes;
    bytes << std::ifstream(path, std::ios::binary).rdbuf();
    return bytes.str();
  }
  /// A field of the file.
  static std::string cell(const std::string &text) {
    std::string bytes = static_cast<char>(text.size()) + std::string(1, 0) + text;
    bytes.resize(30);
    return bytes;
  }
  /// A file with one result.
  std::string sample() {
    score.loadAtStart();
    score.EnterScore(1, "Anna", 40);
    return read(file);
  }
  /// The quote fields of a list up to the first unoccupied row.
  std::string results(int size) const {
    std::string text;
    for (int place = 1; place <= 10 && score.row(size, place).quote != "?"; ++place)
      text += score.row(size, place).name + score.row(size, place).quote + ' ';
    return text;
  }
};

TEST_F(ScoreTest, LayoutToTheByte) {
  EXPECT_EQ(score.loadAtStart(), Score::Loaded::fresh);
  const std::string fresh = read(file);
  ASSERT_EQ(fresh.size(), 1800u);
  for (std::size_t i = 0; i < 30; ++i)
    EXPECT_EQ(fresh.substr(60 * i, 60), cell("unbekannt") + cell("?"));

  score.EnterScore(2, "A", 30);
  score.EnterScore(2, "B", 35);
  EXPECT_EQ(score.EnterScore(2, "Jörg", 47), 3);
  EXPECT_EQ(read(file).substr(720, 60), cell("J\xF6rg") + cell("47"));
  EXPECT_EQ(read(file).substr(0, 600), fresh.substr(0, 600)) << "the other lists stay";
  EXPECT_EQ(read(file).substr(1200), fresh.substr(1200));
  EXPECT_EQ(score.EnterScore(3, "late", 1001), 0) << "not even into an empty list";
  EXPECT_EQ(score.EnterScore(3, "last", 1000), 1);
}

TEST_F(ScoreTest, FilesOfAllLengths) {
  const std::string complete = sample();
  using enum Score::Loaded;
  const std::pair<std::size_t, Score::Loaded> lengths[] = {
      {0, fresh},      {1, damaged},  {29, damaged}, {600, damaged}, {1770, damaged},
      {1772, damaged}, {1773, whole}, {1799, whole}, {1800, whole},  {5000, whole}};
  for (const auto &[length, expected] : lengths) {
    std::string bytes = complete;
    bytes.resize(length, 'x');
    write(bytes);
    EXPECT_EQ(score.LoadScore(), expected) << length;
    EXPECT_EQ(score.row(1, 1).name, length > 5 ? "Anna" : "") << length;
    EXPECT_EQ(fs::file_size(file), length) << "reading writes nothing";
    ASSERT_TRUE(score.SaveScore());
    EXPECT_EQ(fs::file_size(file), std::max<std::size_t>(length, 1800)) << "nothing is cut off";
  }
  fs::resize_file(file, 100'000'000);
  EXPECT_EQ(score.LoadScore(), whole);
}

TEST_F(ScoreTest, DamagedFileKeepsItsSoundRowsAndACopy) {
  score.loadAtStart();
  for (const int bombs : {50, 40, 30, 20})
    score.EnterScore(1, "n", bombs);
  score.EnterScore(3, "z", 60);
  std::string bytes = read(file);
  bytes[60] = 29;              // the name of place 2: too long
  bytes.replace(152, 2, "xx"); // the quote of place 3
  write(bytes);

  EXPECT_EQ(score.loadAtStart(), Score::Loaded::damaged);
  EXPECT_EQ(results(1), "n20 n50 ");
  EXPECT_EQ(score.row(1, 3), (Score::Row{"unbekannt", "?"}));
  EXPECT_EQ(results(3), "z60 ");
  EXPECT_EQ(read(file), bytes) << "nothing is written before the next save";
  EXPECT_EQ(read(folder / "Score.hsc.defekt"), bytes);
  EXPECT_EQ(score.loadAtStart(), Score::Loaded::damaged);
  EXPECT_FALSE(fs::exists(folder / "Score.hsc.defekt.1")) << "copied once only";

  bytes[0] = 99;
  write(bytes);
  fs::resize_file(file, 5'000'000'000); // which takes no room, and no time
  EXPECT_EQ(score.loadAtStart(), Score::Loaded::damaged);
  EXPECT_EQ(read(folder / "Score.hsc.defekt"), bytes);
  EXPECT_EQ(read(folder / "Score.hsc.defekt.1").at(0), 1) << "the older copy is kept";
  EXPECT_EQ(score.EnterScore(1, "n", 10), 1);
  EXPECT_EQ(score.loadAtStart(), Score::Loaded::whole);
}

TEST_F(ScoreTest, QuoteFieldsThatAreSound) {
  const std::string whole = sample();
  const std::pair<const char *, bool> quotes[] = {
      {"1", true}, {"32767", true}, {"32768", false}, {"0", false}, {"-5", false},
      {"", false}, {"4 7", false},  {" 47", false},   {"?", true},  {"99999999999", false}};
  for (const auto &[quote, sound] : quotes) {
    write(std::string(whole).replace(30, 30, cell(quote)));
    EXPECT_EQ(score.LoadScore(), sound ? Score::Loaded::whole : Score::Loaded::damaged) << quote;
  }
}

TEST(Windows1252, EveryByteSurvives) {
  std::string bytes;
  for (int i = 0; i < 256; ++i)
    bytes += static_cast<char>(i);
  EXPECT_EQ(toWindows1252(fromWindows1252(bytes)), bytes);
  EXPECT_EQ(fromWindows1252("\x80\xE4\x9F"), "€äŸ");
  EXPECT_EQ(toWindows1252("a\xC3"), "a?") << "a text that ends in the middle of a character";
  EXPECT_EQ(toWindows1252("\xE2\x82z"), "??z");
}

} // namespace
