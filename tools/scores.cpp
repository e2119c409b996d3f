// The top ten without a window, by the game's own library.

#include "Score.h"
#include "number.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cstdint>
#include <cstdio>
#include <cstring>
#include <iostream>
#include <limits>
#include <sstream>

namespace {

constexpr const char *kHelp =
    "scores FILE\n"
    "    prints the top ten as JSON: {\"1\":[[name,quote],...10 rows],\"2\":...,\"3\":...}\n"
    "scores FILE --enter SIZE NAME BOMBS\n"
    "    files a result and prints its place, 1 to 10, or 0\n"
    "scores FILE --batch\n"
    "    loads once, then files a result for each line SIZE BOMBS NAME of the standard input\n"
    "    and prints its place at once\n"
    "scores FILE --reset\n"
    "    resets all lists\n"
    "FILE is treated as the game treats it at its start. Where the game would end with a\n"
    "message, it goes to stderr and the exit status is 1; for a wrong call it is 2.\n";

constexpr int kFailed = 1;
constexpr int kWrongCall = 2;
constexpr int kMostBombs = std::numeric_limits<std::int16_t>::max();

int fail(int status, const char *text) {
  std::fprintf(stderr, "%s\n", text);
  return status;
}

void print(const Score &score) {
  QJsonObject lists;
  for (int size = 1; size <= 3; ++size) {
    QJsonArray rows;
    for (int place = 1; place <= Score::kPlaces; ++place) {
      const Score::Row &row = score.row(size, place);
      rows.append(QJsonArray{QString::fromStdString(row.name), QString::fromStdString(row.quote)});
    }
    lists[QString::number(size)] = rows;
  }
  std::puts(QJsonDocument(lists).toJson(QJsonDocument::Compact).constData());
}

/// Files a result and prints its place.
int enter(Score &score, int size, int bombs, const std::string &name) {
  const auto place = score.EnterScore(size, name, bombs);
  if (!place)
    return fail(kFailed, Score::kSaveFailed);
  std::printf("%d\n", *place);
  std::fflush(stdout);
  return 0;
}

int enterAll(Score &score) {
  for (std::string line; std::getline(std::cin, line);) {
    std::istringstream words(line);
    std::string size, bombs, name;
    std::getline(words >> size >> bombs >> std::ws, name);
    if (number(size, 3) == 0 || number(bombs, kMostBombs) == 0)
      return fail(kWrongCall, "scores: wrong line, see --help");
    if (const int status = enter(score, number(size, 3), number(bombs, kMostBombs), name))
      return status;
  }
  return 0;
}

} // namespace

int main(int argc, char **argv) {
  const auto is = [&](int i, const char *option) { return std::strcmp(argv[i], option) == 0; };
  if (argc == 2 && is(1, "--help")) {
    std::fputs(kHelp, stdout);
    return 0;
  }
  const bool one = argc == 6 && is(2, "--enter");
  const bool batch = argc == 3 && is(2, "--batch");
  const bool reset = argc == 3 && is(2, "--reset");
  const int size = one ? number(argv[3], 3) : 1;
  const int bombs = one ? number(argv[5], kMostBombs) : 1;
  const bool isFile = argc > 1 && std::strncmp(argv[1], "--", 2) != 0;
  if (!isFile || (argc != 2 && !one && !batch && !reset) || size == 0 || bombs == 0)
    return fail(kWrongCall, "scores: wrong call, see --help");

  Score score(argv[1]);
  if (Score::isBroken(score.loadAtStart()))
    std::fprintf(stderr, "%s\n", Score::kDamaged);
  if (reset)
    return score.ResetScore() ? 0 : fail(kFailed, Score::kResetFailed);
  if (batch)
    return enterAll(score);
  if (one)
    return enter(score, size, bombs, argv[4]);
  print(score);
  return 0;
}
