#pragma once

#include "Robot.h"
#include "ScriptedDraw.h"
#include "printQt.h"
#include "startup.h"

#include <QCoreApplication>
#include <QEvent>
#include <QTemporaryDir>
#include <gtest/gtest.h>

/// The real main window with everything outside it replaced.
class Stage : public testing::Test {
protected:
  Stage() { open(); }
  void open();

  QWidget &control(const QString &name) { return Robot::control(*window, name); }
  PictureBox &field(const char *name) { return Robot::control<PictureBox>(*window, name); }
  std::vector<QString> counters();
  void newGame(int size) { robot->newGame(size, "Jörg"); }
  /// Lets all be painted and forgets what was logged and seen so far.
  void forget();
  /// From the new-game command to the battle; forgets the log.
  void startBattle(int size);
  /// Presses until the game is over; the end's dialog has to be answered.
  void winAsHuman();
  void letComputerWin();
  /// A cell of the hidden fleet that was not shot at, of the boat, or water for boat 0. Without one
  /// its `X` is 0.
  Cell fresh(int BootID) const;

  ScriptedDraw draw;
  QuietSound sound; ///< its log is worded by `heard`
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
  std::string heard(const std::string &call, const Klang &klang);
  std::string changes();
  void shootAll(int BootID);

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
