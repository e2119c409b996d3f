#include "Score.h"

#include "turns.h"
#include "windows1252.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <memory>
#include <string_view>
#include <system_error>

namespace fs = std::filesystem;

namespace {

constexpr std::size_t kRecord = 30; // bytes
constexpr std::size_t kText = 28;   // bytes of it that may be text
constexpr std::size_t kFile = 1800; // bytes: 3 sizes, 10 places, 2 records
constexpr int kAnyResult = 1000;    // the limit of an unoccupied row
constexpr const char *kNobody = "unbekannt";
constexpr const char *kUnoccupied = "?";

struct Close {
  void operator()(std::FILE *file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, Close>;

/// Opens a plain file, without truncating it; nothing if there is none, or something else.
File openPlain(const fs::path &path, const char *mode, Turn turn) {
  std::error_code error;
  if (!fs::is_regular_file(path, error))
    return nullptr;
  File file(openFile(path, mode));
  if (file)
    takeTurn(*file, turn);
  return file;
}

bool isMissing(const fs::path &path) {
  std::error_code error;
  return fs::status(path, error).type() == fs::file_type::not_found;
}

void createIfMissing(const fs::path &path) {
  if (isMissing(path))
    File(openFile(path, "ab"));
}

/// The bytes of the table, fewer if the file ends early; nothing if it can't be read. What comes
/// after the table, which a save leaves alone, is not read.
std::optional<std::string> readTable(const fs::path &path) {
  const File file = openPlain(path, "rb", Turn::reading);
  if (!file)
    return std::nullopt;
  std::string bytes(kFile, '\0');
  bytes.resize(std::fread(bytes.data(), 1, kFile, file.get()));
  return std::ferror(file.get()) ? std::nullopt : std::optional(bytes);
}

/// Takes the next record off the file's bytes; nothing if it is impossible or not all there.
std::optional<std::string> takeRecord(std::string_view &bytes) {
  const std::string_view record = bytes.substr(0, kRecord);
  bytes.remove_prefix(record.size());
  if (record.size() < 2)
    return std::nullopt;
  const auto length = static_cast<std::size_t>(static_cast<unsigned char>(record[0]) |
                                               static_cast<unsigned char>(record[1]) << 8);
  if (length > kText || record.size() < 2 + length)
    return std::nullopt;
  return fromWindows1252(record.substr(2, length));
}

std::string makeRecord(const std::string &bytes) {
  std::string record{static_cast<char>(bytes.size()), '\0'};
  record += bytes;
  record.resize(kRecord);
  return record;
}

} // namespace

int Score::Row::bombs() const {
  int number = 0;
  const char *const last = quote.data() + quote.size();
  const auto [end, error] = std::from_chars(quote.data(), last, number);
  const bool isNumber = error == std::errc() && end == last && number > 0 &&
                        number <= std::numeric_limits<std::int16_t>::max();
  return isNumber ? number : 0;
}

Score::Loaded Score::LoadScore() {
  createIfMissing(file_);
  const std::optional<std::string> content = readTable(file_);
  std::string_view bytes = content ? *content : std::string_view();
  bool intact = true;
  for (List &places : lists_)
    for (int place = 1; place <= kPlaces; ++place) {
      Row &entry = places[index(place)];
      const auto name = takeRecord(bytes);
      const auto quote = takeRecord(bytes);
      // Without its name a row is not intact, so it loses the quote as well.
      entry = {name.value_or(""), name ? quote.value_or("") : ""};
      intact = intact && (entry.quote == kUnoccupied || entry.bombs() > 0);
    }
  if (isMissing(file_)) // and could not be created
    return Loaded::fresh;
  if (!content)
    return Loaded::unreadable;
  if (content->empty())
    return Loaded::fresh;
  return intact ? Loaded::whole : Loaded::damaged;
}

bool Score::SaveScore() const {
  std::string bytes;
  for (const List &places : lists_)
    for (int place = 1; place <= kPlaces; ++place)
      for (const std::string &text : {places[index(place)].name, places[index(place)].quote}) {
        const std::string encoded = toWindows1252(text);
        if (encoded.size() > kText)
          return false;
        bytes += makeRecord(encoded);
      }
  createIfMissing(file_);
  File file = openPlain(file_, "r+b", Turn::writing);
  return file && std::fwrite(bytes.data(), 1, bytes.size(), file.get()) == bytes.size() &&
         std::fclose(file.release()) == 0;
}

bool Score::ResetScore() {
  reset();
  return SaveScore();
}

std::optional<int> Score::EnterScore(int size, const std::string &name, int bombs) {
  List &places = lists_[index(size)];
  const auto limit = [](const Row &entry) {
    return entry.quote == kUnoccupied ? kAnyResult : entry.bombs();
  };
  const auto last = places.begin() + kPlaces;
  const auto place =
      std::find_if(places.begin(), last, [&](const Row &entry) { return bombs <= limit(entry); });
  if (place == last)
    return 0;
  std::move_backward(place, last, places.end());
  // As the file will give it back, so that both show the same.
  *place = {fromWindows1252(toWindows1252(name)), std::to_string(bombs)};
  if (!SaveScore())
    return std::nullopt;
  return static_cast<int>(place - places.begin()) + 1;
}

Score::Loaded Score::loadAtStart() {
  const Loaded loaded = LoadScore();
  switch (loaded) {
  case Loaded::whole:
    break;
  case Loaded::fresh:
    ResetScore(); // a folder that cannot be written is reported at the first real save
    break;
  case Loaded::damaged:
    copyDamagedFile();
    keepIntactRows();
    break;
  case Loaded::unreadable:
    reset();
    break;
  }
  return loaded;
}

void Score::reset() {
  for (List &places : lists_)
    std::fill_n(places.begin(), kPlaces, Row{kNobody, kUnoccupied});
}

void Score::keepIntactRows() {
  for (List &places : lists_) {
    const auto last = places.begin() + kPlaces;
    const auto end =
        std::remove_if(places.begin(), last, [](const Row &entry) { return entry.bombs() == 0; });
    std::fill(end, last, Row{kNobody, kUnoccupied});
  }
}

// The copy is of the part that the next save writes over; what lies after it stays in the file. The
// newest copy has the plain name; an older one gets the first number that is free. In a folder that
// cannot be written no copy is made; the damaged file stays as it is until the next save.
void Score::copyDamagedFile() const {
  fs::path copy = file_;
  copy += ".defekt";
  std::error_code error;
  const std::optional<std::string> bytes = readTable(file_);
  if (!bytes || readTable(copy) == bytes) // from an earlier start
    return;
  if (fs::exists(copy, error)) {
    fs::path older;
    int number = 0;
    do {
      older = copy;
      older += '.' + std::to_string(++number);
    } while (fs::exists(older, error));
    fs::rename(copy, older, error);
  }
  File file(error ? nullptr : openFile(copy, "wbx"));
  if (file && (std::fwrite(bytes->data(), 1, bytes->size(), file.get()) != bytes->size() ||
               std::fclose(file.release()) != 0))
    fs::remove(copy, error); // a full disk has taken a part of it
}
