#pragma once

#include "Robot.h"
#include "players.h"
#include "printQt.h"
#include "sounds.h"
#include "startup.h"

#include <QCoreApplication>
#include <QEvent>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <utility>

/// The real main window with everything outside it replaced.
class Stage : public testing::Test {
protected:
  Stage() { open(); }
  void open() {
    window = Main(globals, services, folder.path());
    robot.emplace(*window);
    control("picpFeld").installEventFilter(&left_);
    sound.wording = [this](const std::string &call, const Klang &klang) {
      return changes() + call + ' ' + nameOf(klang);
    };
    sound.log.clear();
  }

  QWidget &control(const QString &name) { return Robot::control(*window, name); }
  PictureBox &field(const char *name) { return Robot::control<PictureBox>(*window, name); }
  std::vector<QString> counters() {
    std::vector<QString> texts;
    for (const char *group : {"lblpBoote%1", "lblcBoote%1"})
      for (int i = 0; i < 6; ++i)
        texts.push_back(Robot::control<QLabel>(*window, QString(group).arg(i)).text());
    return texts;
  }

  void newGame(int size) { robot->newGame(size, "Jörg"); }
  /// From the new-game command to the battle; forgets the log.
  void startBattle(int size) {
    robot->startBattle(size, draw);
    ASSERT_EQ(window->Modus(), frmHaupt::Battle);
    forget();
  }
  /// Lets all be painted and forgets what was logged and seen so far.
  void forget() {
    QCoreApplication::processEvents();
    changes();
    sound.log.clear();
  }

  /// A cell of the hidden fleet that was not shot at, of the boat, or water for boat 0. Without one
  /// its `X` is 0.
  Cell fresh(int BootID) const {
    const Field &sea = window->grid()->CFeld();
    for (int Y = 1; Y <= sea.rows(); ++Y)
      for (int X = 1; X <= sea.columns(); ++X)
        if (sea(X, Y, 1) == BootID && sea(X, Y, 2) == Shot::none)
          return {X, Y};
    return {};
  }
  /// Presses on these boats of size 1 until the game is over; the end's dialog has to be answered.
  void shootAt(const std::vector<int> &boats) {
    for (const int BootID : boats)
      while (window->grid() && window->Modus() == frmHaupt::Battle && fresh(BootID).X != 0)
        robot->press(fresh(BootID));
  }
  void winAsHuman() { shootAt({1, 2, 3, 4, 5, 6, 7, 8}); }
  void letComputerWin() { shootAt({0, 2, 3}); } // all water, and the first boat stays

  SeededDraw draw{1};
  QuietSound sound; ///< "L start Boot": what was seen to change before, as `changes` says it
  MemoryStore store;
  QTemporaryDir folder; ///< of the data files
  ClosedMessages messages;
  Globals globals;
  ClosedHelp help;
  Services services{draw, sound, store, messages, help};
  SoundPlayer player{sound, globals.settings.Sound};
  std::unique_ptr<frmHaupt> window;
  std::optional<Robot> robot;

private:
  static std::string nameOf(const Klang &klang) {
    for (const char *name : {"Muell", "Boot", "Alle", "Start", "Wasser", "Doppelt", "Treffer",
                             "Versenkt", "Sieg", "Verloren", "Top10"})
      if (loadSound(QString(name).toLower()) == klang)
        return name;
    return klang.isEmpty() ? "silence" : "?";
  }
  /// What has changed on the window since the last call: `L` the left field was painted anew, `R`
  /// the right field drawn on, `C` a counter.
  std::string changes() {
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
    return letters.empty() ? "" : letters + ' ';
  }

  QImage right_;
  std::vector<QString> counters_;
  struct PaintCounter : QObject {
    int paints = 0;
    bool eventFilter(QObject *, QEvent *event) override {
      paints += event->type() == QEvent::Paint;
      return false;
    }
  } left_;
};
