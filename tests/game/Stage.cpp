#include "Stage.h"

#include "sounds.h"

#include <utility>

Stage::Stage() { open(); }

void Stage::open() {
  robot.reset();
  window = Main(globals, services, folder.path());
  robot.emplace(*window);
  control("picpFeld").installEventFilter(&left_);
  sound.wording = [this](const std::string &call, const Klang &klang) {
    return heard(call, klang);
  };
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

void Stage::winAsHuman() {
  for (int i = 1; window->grid() && i <= window->grid()->BoatCount(); ++i)
    while (window->grid() && window->Modus() == frmHaupt::Battle &&
           !window->grid()->CBoote(i).isSunk())
      robot->press(fresh(i));
}

void Stage::letComputerWin() {
  // Water as long as there is some, then boats other than the first.
  int water = 0;
  for (int Y = 1; Y <= window->grid()->rows(); ++Y)
    for (int X = 1; X <= window->grid()->columns(); ++X)
      water += window->grid()->CFeld()(X, Y, 1) == 0 && window->grid()->CFeld()(X, Y, 2) == 0;
  while (window->grid() && window->Modus() == frmHaupt::Battle)
    robot->press(fresh(water-- > 0 ? 0 : window->grid()->CBoote(2).isSunk() ? 3 : 2));
}

Cell Stage::fresh(int BootID) const {
  const Field &sea = window->grid()->CFeld();
  for (int Y = 1; Y <= sea.rows(); ++Y)
    for (int X = 1; X <= sea.columns(); ++X)
      if (sea(X, Y, 1) == BootID && sea(X, Y, 2) == Shot::none)
        return {X, Y};
  ADD_FAILURE() << "no cell is left\n" << window->grid()->toText();
  return {1, 1};
}
