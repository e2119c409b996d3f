// Any bytes as the score file, then a result. The last bytes of an input are the size, the bombs
// and the length of the name, which stands in front of the file.

#include "Score.h"
#include "fuzz.h"
#include "windows1252.h"

#include <algorithm>
#include <filesystem>
#include <vector>

namespace fs = std::filesystem;

namespace {

using Table = std::vector<Score::Row>;

Table table(const Score &score) {
  Table rows;
  for (int size = 1; size <= 3; ++size)
    for (int place = 1; place <= Score::kPlaces; ++place)
      rows.push_back(score.row(size, place));
  return rows;
}

bool isLegal(const Score::Row &row) {
  const std::string name = toWindows1252(row.name);
  return name.size() <= 28 && fromWindows1252(name) == row.name &&
         (row.quote == "?" || row.bombs() > 0);
}

/// What a whole file means: its bytes with all fillers 0, as each text ends where its length says.
std::string meaning(const std::string &bytes) {
  std::string texts(1800, '\0');
  for (std::size_t start = 0; start < texts.size(); start += 30) {
    PROMISE(start + 2 <= bytes.size() && bytes[start] <= 28 && bytes[start + 1] == 0);
    const auto used = 2 + static_cast<std::size_t>(bytes[start]);
    PROMISE(start + used <= bytes.size());
    texts.replace(start, used, bytes, start, used);
  }
  return texts;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t length) {
  const std::string file = "Score.hsc";
  const std::string copy = "Score.hsc.defekt";
  FuzzedDataProvider input(data, length);
  const int size = input.ConsumeIntegralInRange<int>(1, 3);
  const int bombs = input.ConsumeIntegralInRange<int>(1, 32767);
  const std::string name =
      input.ConsumeBytesAsString(input.ConsumeIntegralInRange<unsigned>(0, 40));
  const std::string bytes = input.ConsumeRemainingBytesAsString();
  fs::remove(copy);
  fs::remove(file);
  writeFile(file, bytes);

  // Whatever it was, the table is legal; what was damaged is kept.
  Score score(file);
  const Score::Loaded loaded = score.loadAtStart();
  Table rows = table(score);
  PROMISE(std::all_of(rows.begin(), rows.end(), isLegal));
  PROMISE((loaded == Score::Loaded::fresh) == bytes.empty());
  PROMISE(loaded == Score::Loaded::fresh || readFile(file) == bytes);
  PROMISE((loaded == Score::Loaded::damaged) == fs::exists(copy));
  PROMISE(loaded != Score::Loaded::damaged || readFile(copy) == bytes.substr(0, 1800));

  // Saved and loaded again it is the same, down to the bytes of a whole file.
  PROMISE(score.SaveScore());
  Score again(file);
  PROMISE(again.loadAtStart() == Score::Loaded::whole && table(again) == rows);
  if (loaded == Score::Loaded::whole)
    PROMISE(readFile(file).substr(0, 1800) == meaning(bytes));
  PROMISE(bytes.size() <= 1800 || readFile(file).substr(1800) == bytes.substr(1800));

  // A result stands in its list, below what is better and nothing else, and in the file; or nothing
  // has happened.
  const auto place = score.EnterScore(size, name, bombs);
  const auto list = rows.begin() + std::ptrdiff_t{Score::kPlaces} * (size - 1);
  const auto above = std::find_if_not(list, list + Score::kPlaces, [&](const Score::Row &row) {
    return row.quote == "?" ? bombs > 1000 : row.bombs() < bombs;
  });
  PROMISE(!place || *place == (above == list + Score::kPlaces ? 0 : above - list + 1));
  if (place && *place > 0) {
    rows.insert(above, {fromWindows1252(toWindows1252(name)), std::to_string(bombs)});
    rows.erase(rows.begin() + std::ptrdiff_t{Score::kPlaces} * size);
  }
  PROMISE(place || toWindows1252(name).size() > 28);
  PROMISE(!place || table(score) == rows);
  PROMISE(again.loadAtStart() == Score::Loaded::whole && table(again) == rows);
  return 0;
}
