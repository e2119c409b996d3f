// The top ten without a window, by the game's own library.

#include "Score.h"

#include <cstdio>
#include <iostream>
#include <limits>
#include <sstream>
#include <string>

namespace {

constexpr const char *kHelp =
    "scores FILE\n"
    "    prints a line SIZE QUOTE NAME for each place of the top ten\n"
    "scores FILE --enter\n"
    "    loads once, then files a result for each line SIZE BOMBS NAME of the standard input\n"
    "    and prints its place, 1 to 10, or 0, at once\n"
    "FILE is treated as the game treats it at its start. Where the game would end with a\n"
    "message, it goes to stderr and the exit status is 1; for a wrong call it is 2.\n";

int fail(int status, const char *text) {
  std::fprintf(stderr, "%s\n", text);
  return status;
}

void print(const Score &score) {
  for (int size = 1; size <= 3; ++size)
    for (int place = 1; place <= Score::kPlaces; ++place) {
      const auto &[name, quote] = score.row(size, place);
      std::printf("%d %s %s\n", size, quote.c_str(), name.c_str());
    }
}

int enterAll(Score &score) {
  for (std::string line; std::getline(std::cin, line);) {
    std::istringstream words(line);
    int size = 0;
    int bombs = 0;
    std::string name;
    std::getline(words >> size >> bombs >> std::ws, name);
    if (size < 1 || size > 3 || bombs < 1 || bombs > std::numeric_limits<std::int16_t>::max())
      return fail(2, "scores: wrong line, see --help");
    const auto place = score.EnterScore(size, name, bombs);
    if (!place)
      return fail(1, Score::kSaveFailed);
    std::printf("%d\n", *place);
    std::fflush(stdout);
  }
  return 0;
}

} // namespace

int main(int argc, char **argv) {
  const std::string file = argc > 1 ? argv[1] : "--";
  const bool enters = argc == 3 && argv[2] == std::string("--enter");
  if (file.starts_with("--") || (argc > 2 && !enters)) {
    std::fputs(kHelp, stdout);
    return file == "--help" ? 0 : 2;
  }
  Score score(std::u8string(file.begin(), file.end())); // UTF-8 on Windows too, by the manifest
  if (Score::isBroken(score.loadAtStart()))
    std::fprintf(stderr, "%s\n", Score::kDamaged);
  if (enters)
    return enterAll(score);
  print(score);
  return 0;
}
