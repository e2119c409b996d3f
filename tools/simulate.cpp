// Bulk games of the computer by the game's own library, as JSON Lines.

#include "BoatInWork.h"
#include "ClockDraw.h"
#include "players.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cstdio>
#include <limits>
#include <stdexcept>

namespace {

/// What ends the program: one line for stderr.
struct Error : std::runtime_error {
  explicit Error(const QString &text) : std::runtime_error(text.toStdString()) {}
};

using Cells = std::vector<Cell>;

// Input.

/// Hands each line of a file on, as JSON, with where it stands.
template <typename Take>
void forEachLine(const QString &path, Take take) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly))
    throw Error(path + ": " + file.errorString());
  for (int number = 1; !file.atEnd(); ++number) {
    const QString where = QString("%1, line %2").arg(path).arg(number);
    QJsonParseError error{};
    const auto json = QJsonDocument::fromJson(file.readLine(), &error);
    if (error.error != QJsonParseError::NoError)
      throw Error(where + ": " + error.errorString());
    take(json, where);
  }
}

/// Appends pairs; what is no pair of whole numbers counts as a cell off the field.
void append(Cells &cells, const QJsonArray &pairs) {
  for (const QJsonValue pair : pairs)
    cells.push_back(pair.toArray().size() == 2 ? Cell{pair[0].toInt(), pair[1].toInt()} : Cell{});
}

/// Presses the cells in turn, to set the human's fleet on an empty field: which are accepted.
QJsonArray press(clsGrid &grid, const Cells &cells) {
  BoatInWork boat;
  QJsonArray accepted;
  for (const auto &[X, Y] : cells) {
    accepted.append(grid.PFeld().contains(X, Y) && boat.accepts(grid, X, Y));
    if (accepted.last().toBool() && !boat.add(grid, X, Y))
      boat.next(grid);
  }
  return accepted;
}

/// Whole fleets that keep to the rules, as the presses that set them.
std::vector<Cells> readFleets(const QString &path, clsGrid &grid) {
  std::vector<Cells> fleets;
  forEachLine(path, [&](const QJsonDocument &json, const QString &where) {
    Cells &fleet = fleets.emplace_back();
    for (const QJsonValue boat : json.array())
      append(fleet, boat.toArray());
    grid.ResetFields();
    if (static_cast<int>(fleet.size()) != clsGrid::FleetCells(grid.Size()) ||
        press(grid, fleet).contains(false))
      throw Error(where + ": not a whole fleet by the rules of placement");
  });
  if (fleets.empty())
    throw Error(path + ": no line in it");
  return fleets;
}

// Output.

void print(const QByteArray &line) { std::puts(line.constData()); }

void print(const QJsonObject &object) {
  print(QJsonDocument(object).toJson(QJsonDocument::Compact));
}

// The game.

template <typename Boat>
QJsonArray fleetOf(const clsGrid &grid, Boat boat) {
  QJsonArray fleet;
  for (int i = 1; i <= grid.BoatCount(); ++i) {
    QJsonArray cells;
    for (int j = 1; j <= boat(i).length(); ++j)
      cells.append(QJsonArray{boat(i).X(j), boat(i).Y(j)});
    fleet.append(cells);
  }
  return fleet;
}

/// Both fleets on the board; the human's is `given` or, without one, random to its taste.
void setFleets(clsGrid &grid, RandomDraw &draw, const Cells *given, Taste taste) {
  do {
    if (!grid.CreateComputerField())
      throw Error("the computer's fleet cannot be made");
  } while (!given && !setRandomFleet(grid, draw, taste));
  if (given)
    press(grid, *given);
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

QJsonObject play(clsGrid &grid, RandomDraw &draw) {
  const QJsonArray player = fleetOf(grid, [&](int i) { return grid.PBoote(i); });
  const QJsonArray computer = fleetOf(grid, [&](int i) { return grid.CBoote(i); });
  const auto shot = [](const Cell &cell, ShotCode code) {
    return QJsonArray{cell.X, cell.Y, static_cast<int>(code)};
  };
  QJsonArray human;
  QJsonArray reply;
  RandomGunner gunner(grid, draw);
  int winner = 0;
  while (winner == 0) {
    const Cell cell = gunner.next();
    const ShotCode result = grid.Shoot(cell.X, cell.Y);
    human.append(shot(cell, result));
    winner = winnerOf(grid.BoatTable(2));
    if (winner != 0 || result == ShotCode::repeated)
      continue;
    const Field before = grid.PFeld();
    const ShotCode code = grid.ComputerShoot();
    reply.append(shot(shotCell(before, grid.PFeld(), code), code));
    winner = winnerOf(grid.BoatTable(2));
  }
  return {{"size", grid.Size()}, {"player", player}, {"computer", computer},
          {"human", human},      {"reply", reply},   {"winner", winner}};
}

/// Bombs that sink the human's fleet if the computer alone shoots.
QByteArray countBombs(clsGrid &grid) {
  int bombs = 0;
  do
    ++bombs;
  while (grid.ComputerShoot() != ShotCode::sunk || winnerOf(grid.BoatTable(2)) == 0);
  return QByteArray::number(bombs);
}

// The command line.

constexpr const char *kHelp =
    "simulate --size S [--games N] [--fleets TASTE-OR-FILE] [--bombs]\n"
    "    plays N games (1) of size S, 1 to 3, and prints a JSON line for each:\n"
    "    size, player, computer (the fleets, boat by boat, [x,y] point by point),\n"
    "    human, reply (the shots, [x,y,code]; 0 water, 1 repeated, 2 hit, 3 sunk),\n"
    "    winner (1 the human, 2 the computer). The human presses cells at random.\n"
    "    His fleets are random of any shape, straight for boats in a line, rim for\n"
    "    boats along the rim of the field, or those of FILE in turn, one a line.\n"
    "    With --bombs nobody shoots back, and a line is the number of bombs that the\n"
    "    computer needs to sink the human's fleet.\n"
    "simulate --presses FILE\n"
    "    each line of FILE is {\"size\":S,\"presses\":[[x,y],...]}; prints for each\n"
    "    which of these presses, setting a fleet on an empty field, are accepted.\n"
    "Errors are one line on stderr and exit status 2.\n";

int wholeNumber(const QString &text, const QString &what, int most) {
  bool isNumber = false;
  const int number = text.toInt(&isNumber);
  if (!isNumber || number < 1 || number > most)
    throw Error(what + " takes a whole number from 1 to " + QString::number(most));
  return number;
}

void simulateGames(const QCommandLineParser &options) {
  ClockDraw draw;
  clsGrid grid(draw);
  grid.setSize(wholeNumber(options.value("size"), "--size", kSizes));
  const int games = wholeNumber(options.value("games"), "--games", std::numeric_limits<int>::max());
  const auto taste = QStringList{"random", "straight", "rim"}.indexOf(options.value("fleets"));
  const auto fleets = taste < 0 ? readFleets(options.value("fleets"), grid) : std::vector<Cells>();
  for (std::size_t i = 0; i < static_cast<std::size_t>(games); ++i) {
    setFleets(grid, draw, taste < 0 ? &fleets[i % fleets.size()] : nullptr,
              static_cast<Taste>(taste));
    if (options.isSet("bombs"))
      print(countBombs(grid));
    else
      print(play(grid, draw));
  }
}

void simulatePresses(const QString &path) {
  forEachLine(path, [](const QJsonDocument &json, const QString &where) {
    ClockDraw draw;
    clsGrid grid(draw);
    grid.setSize(wholeNumber(json["size"].toVariant().toString(), where + ": size", kSizes));
    grid.ResetFields();
    Cells cells;
    append(cells, json["presses"].toArray());
    print(QJsonObject{{"accepted", press(grid, cells)}});
  });
}

void run(const QStringList &arguments) {
  QCommandLineParser options;
  options.addOptions({{"size", "", "S"},
                      {"games", "", "N", "1"},
                      {"fleets", "", "TASTE-OR-FILE", "random"},
                      {"bombs", ""},
                      {"presses", "", "FILE"},
                      {"help", ""}});
  if (!options.parse(arguments))
    throw Error(options.errorText());
  if (!options.positionalArguments().isEmpty())
    throw Error("unknown argument " + options.positionalArguments().first());
  if (options.isSet("help"))
    std::fputs(kHelp, stdout);
  else if (options.isSet("presses"))
    simulatePresses(options.value("presses"));
  else
    simulateGames(options);
}

} // namespace

int main(int argc, char **argv) {
  const QCoreApplication app(argc, argv);
  try {
    run(app.arguments());
    if (std::fflush(stdout) != 0 || std::ferror(stdout))
      throw Error("stdout: cannot write");
  } catch (const Error &error) {
    std::fprintf(stderr, "simulate: %s\n", error.what());
    return 2;
  }
  return 0;
}
