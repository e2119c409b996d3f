#include "Stage.h"

#include "sounds.h"

#include <functional>
#include <utility>

void Stage::open() {
  robot.reset();
  window = Main(globals, services, folder.path());
  robot.emplace(*window);
  control("picpFeld").installEventFilter(&left_);
  sound.wording = std::bind_front(&Stage::heard, this);
  sound.log.clear();
}

std::vector<QString> Stage::counters() {
  std::vector<QString> texts;
  for (const char *group : {"lblpBoote%1", "lblcBoote%1"})
    for (int i = 0; i < 6; ++i)
      texts.push_back(Robot::control<QLabel>(*window, QString(group).arg(i)).text());
  return texts;
}

/// A sound with what was seen to change on the window since the one before: `L` the left field
/// painted anew, `R` the right field drawn on, `C` a counter.
std::string Stage::heard(const std::string &call, const Klang &klang) {
  std::string name = klang.isEmpty() ? "silence" : "?";
  for (const char *known : {"Muell", "Boot", "Alle", "Start", "Wasser", "Doppelt", "Treffer",
                            "Versenkt", "Sieg", "Verloren", "Top10"})
    if (loadSound(QString(known).toLower()) == klang)
      name = known;
  const std::string seen = changes();
  return (seen.empty() ? "" : seen + ' ') + call + ' ' + name;
}

std::string Stage::changes() {
  if (!window->grid()) // closed
    return "";
  const QImage right = field("piccFeld").content();
  std::string letters;
  if (std::exchange(left_.paints, 0) > 0)
    letters += 'L';
  if (std::exchange(right_, right) != right)
    letters += 'R';
  if (const auto now = counters(); std::exchange(counters_, now) != now)
    letters += 'C';
  return letters;
}

void Stage::forget() {
  QCoreApplication::processEvents();
  changes();
  sound.log.clear();
}

void Stage::startBattle(int size) {
  robot->startBattle(size, draw);
  ASSERT_EQ(window->Modus(), frmHaupt::Battle);
  forget();
}

void Stage::shootAll(int BootID) {
  while (window->grid() && window->Modus() == frmHaupt::Battle && fresh(BootID).X != 0)
    robot->press(fresh(BootID));
}

void Stage::winAsHuman() {
  for (int i = 1; window->grid() && i <= window->grid()->BoatCount(); ++i)
    shootAll(i);
}

void Stage::letComputerWin() {
  for (const int BootID : {0, 2, 3}) // not the first
    shootAll(BootID);
}

Cell Stage::fresh(int BootID) const {
  const Field &sea = window->grid()->CFeld();
  for (int Y = 1; Y <= sea.rows(); ++Y)
    for (int X = 1; X <= sea.columns(); ++X)
      if (sea(X, Y, 1) == BootID && sea(X, Y, 2) == Shot::none)
        return {X, Y};
  return {0, 0};
}
