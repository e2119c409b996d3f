#pragma once

#include "Robot.h"
#include "ScriptedDraw.h"
#include "printQt.h"
#include "startup.h"

#include <QCoreApplication>
#include <QEvent>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <functional>

using Log = std::vector<std::string>;

/// Writes down each sound with what was seen to change on the window since the one before:
/// `L` the left field painted anew, `R` the right field drawn on, `C` a counter.
class RecordingSound : public SoundDevice {
public:
  Log log;
  std::function<std::string()> changes; ///< the letters

  void start(const Klang &klang) override { note("start", klang); }
  bool playToEnd(const Klang &klang) override {
    note("wait", klang);
    return true;
  }
  void sleep(int ms) override { log.push_back("sleep " + std::to_string(ms)); }

private:
  void note(const char *what, const Klang &klang);
};

struct RecordingMessages : MessageBox {
  std::vector<QString> shown;
  void critical(const QString &title, const QString &text) override {
    shown.push_back(title + '|' + text);
  }
  void warning(const QString &title, const QString &text) override { critical(title, text); }
};

struct RecordingHelp : HelpViewer {
  Log log; ///< "1 FILE", "2 FILE" for contents and index, "close"
  QString failure;
  QString show(const QString &file, Entry entry) override {
    log.push_back(std::to_string(static_cast<int>(entry)) + ' ' + file.toStdString());
    return failure;
  }
  void close() override { log.push_back("close"); }
};

/// The real main window with everything outside it replaced.
class Stage : public testing::Test {
protected:
  Stage();

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
  /// A cell of the hidden fleet that was not shot at: of the boat, or water for boat 0.
  Cell fresh(int BootID) const;

  ScriptedDraw draw;
  RecordingSound sound;
  MemoryStore store;
  QTemporaryDir folder; ///< of the data files
  RecordingMessages messages;
  Globals globals;
  RecordingHelp help;
  Services services{draw, sound, store, messages, help};
  SoundPlayer player{sound, globals.settings.Sound};
  std::unique_ptr<frmHaupt> window;
  std::optional<Robot> robot;

  void open();

private:
  std::string changes();

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
