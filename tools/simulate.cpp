// Bulk games of the computer by the game's own library, as JSON Lines.

#include "BoatInWork.h"
#include "ClockDraw.h"
#include "json.h"
#include "number.h"
#include "players.h"

#include <QCommandLineParser>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cstdio>
#include <limits>
#include <stdexcept>
#include <utility>

namespace {

/// What ends the program: one line for stderr.
struct Error : std::runtime_error {
  explicit Error(const QString &text) : std::runtime_error(text.toStdString()) {}
};

using Fleet = std::vector<std::vector<Cell>>;

// Input.

struct Line {
  QString where; ///< "FILE, line N"
  QJsonDocument json;
};

std::vector<Line> readLines(const QString &path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly))
    throw Error(path + ": " + file.errorString());
  std::vector<Line> lines;
  for (int number = 1; !file.atEnd(); ++number) {
    const QByteArray text = file.readLine().trimmed();
    if (text.isEmpty())
      continue;
    const QString where = QString("%1, line %2").arg(path).arg(number);
    QJsonParseError error{};
    lines.push_back({where, QJsonDocument::fromJson(text, &error)});
    if (error.error != QJsonParseError::NoError)
      throw Error(where + ": " + error.errorString());
  }
  if (lines.empty())
    throw Error(path + ": no line in it");
  return lines;
}

Cell cellOf(const QJsonValue &value, const QString &where) {
  const QJsonArray pair = value.toArray();
  constexpr int none = std::numeric_limits<int>::min();
  const int X = pair.at(0).toInt(none);
  const int Y = pair.at(1).toInt(none);
  if (pair.size() != 2 || X == none || Y == none)
    throw Error(where + ": not a pair of whole numbers");
  return {X, Y};
}

/// A fleet that keeps to the rules; `grid` has the size and is used to try it.
Fleet fleetOf(const Line &line, clsGrid &grid) {
  if (!line.json.isArray())
    throw Error(line.where + ": not an array of boats");
  grid.ResetFields();
  const QJsonArray boats = line.json.array();
  Fleet fleet;
  for (int i = 1; i <= std::max(static_cast<int>(boats.size()), grid.BoatCount()); ++i) {
    const QJsonArray points = boats.at(i - 1).toArray();
    const int length = i <= grid.BoatCount() ? grid.PBoote(i).length() : 0;
    std::vector<Cell> &boat = fleet.emplace_back();
    for (int j = 1; j <= std::max({static_cast<int>(points.size()), length, 1}); ++j) {
      const QString where = line.where + QString(": boat %1, point %2").arg(i).arg(j);
      if (j > length)
        throw Error(where + ": is one too many");
      if (j > points.size())
        throw Error(where + ": is missing");
      const Cell cell = cellOf(points.at(j - 1), where);
      if (!grid.PFeld().contains(cell.X, cell.Y))
        throw Error(where + ": off the field");
      if (!grid.CreatePoint(i, cell.X, cell.Y))
        throw Error(where + ": breaks a rule of placement");
      grid.SetPoint(i, j, cell.X, cell.Y);
      boat.push_back(cell);
    }
  }
  return fleet;
}

// Output.

using ::toJson; // beside the one here

struct Press {
  Cell cell;
  ShotCode code;
};

std::string toJson(const Press &press) {
  return '[' + std::to_string(press.cell.X) + ',' + std::to_string(press.cell.Y) + ',' +
         std::to_string(static_cast<int>(press.code)) + ']';
}

void print(const std::string &line) {
  if (std::fputs((line + '\n').c_str(), stdout) == EOF || std::ferror(stdout))
    throw Error("stdout: cannot write");
}

// The game.

template <typename Boat>
Fleet cellsOf(const clsGrid &grid, Boat boat) {
  Fleet fleet;
  for (int i = 1; i <= grid.BoatCount(); ++i) {
    std::vector<Cell> &cells = fleet.emplace_back();
    for (int j = 1; j <= boat(i).length(); ++j)
      cells.push_back(boat(i).cell(j));
  }
  return fleet;
}

/// Both fleets on the board; the human's is `given` or, without one, random to its taste.
void setFleets(clsGrid &grid, RandomDraw &draw, const Fleet *given, Taste taste) {
  do {
    if (!grid.CreateComputerField())
      throw Error("the computer's fleet cannot be made");
  } while (!given && !setRandomFleet(grid, draw, taste));
  for (int i = 1; given && i <= grid.BoatCount(); ++i)
    for (int j = 1; j <= grid.PBoote(i).length(); ++j) {
      const Cell &cell = (*given)[static_cast<std::size_t>(i - 1)][static_cast<std::size_t>(j - 1)];
      grid.SetPoint(i, j, cell.X, cell.Y);
    }
}

/// The cell that the computer has just shot at: of boat or water, as the code says, and unknown
/// before. A sinking makes the water around it known as well.
Cell shotCell(const Field &before, const Field &after, ShotCode code) {
  for (int Y = 1; Y <= after.rows(); ++Y)
    for (int X = 1; X <= after.columns(); ++X)
      if (before(X, Y, 2) == Shot::none && after(X, Y, 2) != Shot::none &&
          (after(X, Y, 1) == 0) == (code == ShotCode::water))
        return {X, Y};
  throw Error("the computer did not shoot");
}

std::string play(clsGrid &grid, RandomDraw &draw, const Fleet *given, Taste taste) {
  setFleets(grid, draw, given, taste);
  const Fleet player = cellsOf(grid, [&](int i) { return grid.PBoote(i); });
  const Fleet computer = cellsOf(grid, [&](int i) { return grid.CBoote(i); });
  std::vector<Press> human;
  std::vector<Press> reply;
  RandomGunner gunner(grid, draw);

  int winner = 0;
  while (winner == 0) {
    const Cell cell = gunner.next();
    human.push_back({cell, grid.Shoot(cell.X, cell.Y)});
    winner = winnerOf(grid.BoatTable(2));
    if (winner != 0 || human.back().code == ShotCode::repeated)
      continue;
    const Field before = grid.PFeld();
    const ShotCode code = grid.ComputerShoot();
    reply.push_back({shotCell(before, grid.PFeld(), code), code});
    winner = winnerOf(grid.BoatTable(2));
  }
  return "{\"size\":" + std::to_string(grid.Size()) + ",\"player\":" + toJson(player) +
         ",\"computer\":" + toJson(computer) + ",\"human\":" + toJson(human) +
         ",\"reply\":" + toJson(reply) + ",\"winner\":" + std::to_string(winner) + '}';
}

/// The computer's bombs until the human's fleet is sunk; nobody shoots back.
int bombsOfComputer(clsGrid &grid) {
  int bombs = 0;
  do
    ++bombs;
  while (grid.ComputerShoot() != ShotCode::sunk || winnerOf(grid.BoatTable(2)) == 0);
  return bombs;
}

/// Bombs of a player who takes any cell not shot at, each with the same chance.
int bombsOfChance(const clsGrid &grid, RandomDraw &draw) {
  std::vector<Cell> cells;
  for (int Y = 1; Y <= grid.rows(); ++Y)
    for (int X = 1; X <= grid.columns(); ++X)
      cells.push_back({X, Y});
  int bombs = 0;
  for (int left = clsGrid::FleetCells(grid.Size()); left > 0; ++bombs) {
    std::swap(cells[static_cast<std::size_t>(draw.draw(static_cast<int>(cells.size())) - 1)],
              cells.back());
    left -= grid.PFeld()(cells.back().X, cells.back().Y, 1) != 0;
    cells.pop_back();
  }
  return bombs;
}

std::string countBombs(clsGrid &grid, RandomDraw &draw, const Fleet *given, Taste taste) {
  setFleets(grid, draw, given, taste);
  const int chance = bombsOfChance(grid, draw);
  return "{\"size\":" + std::to_string(grid.Size()) +
         ",\"computer\":" + std::to_string(bombsOfComputer(grid)) +
         ",\"chance\":" + std::to_string(chance) + '}';
}

// The two commands.

/// One game, or the bombs of one fleet, as a line.
using Game = std::string (*)(clsGrid &, RandomDraw &, const Fleet *given, Taste);

void simulateGames(Game game, int size, int games, const QString &fleetFile, Taste taste) {
  ClockDraw draw;
  clsGrid grid(draw);
  grid.setSize(size);
  std::vector<Fleet> fleets;
  if (!fleetFile.isEmpty())
    for (const Line &line : readLines(fleetFile))
      fleets.push_back(fleetOf(line, grid));
  for (int i = 0; i < games; ++i)
    print(game(grid, draw,
               fleets.empty() ? nullptr : &fleets[static_cast<std::size_t>(i) % fleets.size()],
               taste));
}

std::string acceptedPresses(const Line &line) {
  const QJsonObject object = line.json.object();
  const int size = object["size"].toInt();
  if (size < 1 || size > kSizes || !object["presses"].isArray())
    throw Error(line.where + ": not an object with a size of 1 to 3 and presses");
  ClockDraw draw;
  clsGrid grid(draw);
  grid.setSize(size);
  grid.ResetFields();
  BoatInWork boat;

  std::string accepted;
  int number = 0;
  for (const QJsonValue press : object["presses"].toArray()) {
    const Cell cell = cellOf(press, line.where + QString(": press %1").arg(++number));
    const bool ok = grid.PFeld().contains(cell.X, cell.Y) && boat.accepts(grid, cell.X, cell.Y);
    if (ok && !boat.add(grid, cell.X, cell.Y))
      boat.next(grid);
    accepted += (accepted.empty() ? "" : ",") + std::string(ok ? "true" : "false");
  }
  return "{\"accepted\":[" + accepted + "]}";
}

void simulatePresses(const QString &path) {
  std::vector<std::string> results;
  for (const Line &line : readLines(path))
    results.push_back(acceptedPresses(line));
  for (const std::string &result : results)
    print(result);
}

// The command line.

constexpr const char *kHelp =
    "simulate --size S [--games N] [--fleets FILE | --fleet TASTE] [--bombs]\n"
    "    plays N games (1) of size S, 1 to 3, and prints a JSON line for each:\n"
    "    size, player, computer (the fleets, boat by boat, [x,y] point by point),\n"
    "    human, reply (the shots, [x,y,code]; 0 water, 1 repeated, 2 hit, 3 sunk),\n"
    "    winner (1 the human, 2 the computer). The human presses cells at random.\n"
    "    FILE holds a fleet a line for the human, used in turn; else it is random,\n"
    "    and TASTE is random for any shape, straight for boats in a line, or rim for\n"
    "    boats along the rim of the field.\n"
    "    With --bombs nobody shoots back, and a line holds size, computer, chance: the\n"
    "    bombs that the computer needs to sink the human's fleet, and those of a player\n"
    "    who takes any cell that he has not shot at, one as readily as another.\n"
    "simulate --presses FILE\n"
    "    each line of FILE is {\"size\":S,\"presses\":[[x,y],...]}; prints for each\n"
    "    which of these presses, setting a fleet on an empty field, are accepted.\n"
    "Errors are one line on stderr and exit status 2.\n";

int wholeNumber(const QString &text, const QString &option, int most) {
  if (const int value = number(text.toStdString(), most))
    return value;
  throw Error(option + " takes a whole number from 1 to " + QString::number(most));
}

Taste tasteOf(const QString &text) {
  const qsizetype i = QStringList{"random", "straight", "rim"}.indexOf(text);
  if (i < 0)
    throw Error("--fleet takes random, straight or rim");
  return static_cast<Taste>(i);
}

void run(const QStringList &arguments) {
  QCommandLineParser parser;
  parser.addOptions({{"size", "", "S"},
                     {"games", "", "N", "1"},
                     {"fleets", "", "FILE"},
                     {"fleet", "", "TASTE", "random"},
                     {"bombs", ""},
                     {"presses", "", "FILE"},
                     {"help", ""}});
  if (!parser.parse(arguments))
    throw Error(parser.errorText());
  if (!parser.positionalArguments().isEmpty())
    throw Error("unknown argument " + parser.positionalArguments().first());
  if (parser.isSet("help")) {
    std::fputs(kHelp, stdout);
    return;
  }
  if (parser.isSet("presses")) {
    if (parser.optionNames().size() > 1)
      throw Error("--presses goes alone");
    simulatePresses(parser.value("presses"));
    return;
  }
  if (!parser.isSet("size"))
    throw Error("--size or --presses is missing, see --help");
  if (parser.isSet("fleets") && parser.isSet("fleet"))
    throw Error("--fleets and --fleet exclude each other");
  simulateGames(parser.isSet("bombs") ? countBombs : play,
                wholeNumber(parser.value("size"), "--size", kSizes),
                wholeNumber(parser.value("games"), "--games", std::numeric_limits<int>::max()),
                parser.value("fleets"), tasteOf(parser.value("fleet")));
}

} // namespace

int main(int argc, char **argv) {
  QStringList arguments;
  for (int i = 0; i < argc; ++i)
    arguments << QString::fromLocal8Bit(argv[i]);
  try {
    run(arguments);
    if (std::fflush(stdout) != 0)
      throw Error("stdout: cannot write");
  } catch (const Error &error) {
    std::fprintf(stderr, "simulate: %s\n", error.what());
    return 2;
  }
  return 0;
}
