#include "Robot.h"

#include "players.h"

#include <QApplication>
#include <QComboBox>
#include <QTest>
#include <QTimer>

void Robot::click(QWidget &control) {
  QTest::mouseClick(&control, Qt::LeftButton, {}, control.rect().center());
}

void Robot::press(QPoint pixel, Qt::MouseButton button) {
  // A disabled control gets no press from the window system either.
  auto &field = control<PictureBox>(window_, "picpFeld");
  if (field.isEnabled())
    QTest::mouseClick(&field, button, {}, pixel + QPoint(1, 1));
}

void Robot::press(const Cell &cell) {
  const auto geometry = window_.grid()->geometry();
  press(QPoint(geometry.middle(cell.X), geometry.middle(cell.Y)));
}

void Robot::onDialog(std::function<void(QDialog &)> deed) {
  static std::unique_ptr<QTimer> watch; // one deed at a time
  watch = std::make_unique<QTimer>();
  QObject::connect(watch.get(), &QTimer::timeout, qApp, [deed = std::move(deed)] {
    auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
    if (!dialog || !dialog->isVisible())
      return;
    const auto act = deed; // outlives the watch, which the deed may replace
    watch.reset();
    act(*dialog);
  });
  watch->start(0);
}

void Robot::answer(const QString &button) {
  onDialog([button](QDialog &dialog) { click(control(dialog, button)); });
}

void Robot::newGame(int size, const QString &name) {
  onDialog([=](QDialog &dialog) {
    click(control(dialog, QString("optSize%1").arg(size - 1)));
    control<QComboBox>(dialog, "cboName").setEditText(name);
    click(control(dialog, "cmdOK"));
  });
  command("keyNew");
}

Cell Robot::setFleetButOne(RandomDraw &draw,
                           const std::function<void(const BoatInWork &)> &afterPress) {
  BoatInWork boat; // the window's own, followed from outside
  for (;;) {
    const clsGrid &grid = *window_.grid();
    const auto cell = randomPoint(grid, boat.BootID, draw);
    if (!cell) {
      if (boat.TeilNr == 0) { // this fleet leaves no room
        newGame(grid.Size(), QString::fromStdString(grid.PlayerName()));
        boat = {};
        continue;
      }
      click(control(window_, "imgMüll"));
      boat.TeilNr = 0;
      continue;
    }
    const bool completesBoat = boat.TeilNr + 1 == grid.PBoote(boat.BootID).length();
    if (completesBoat && boat.BootID == grid.BoatCount())
      return *cell;
    press(*cell);
    ++boat.TeilNr;
    if (completesBoat)
      boat.next(grid);
    if (afterPress)
      afterPress(boat);
  }
}

void Robot::startBattle(int size, RandomDraw &draw) {
  newGame(size, "Jörg");
  const Cell last = setFleetButOne(draw);
  answer("cmdOK");
  press(last);
}
