#include "Stage.h"

#include <QApplication>
#include <QFile>

namespace {

using Window = Stage;

TEST_F(Window, StartsIdleAndTellsOfADamagedFile) {
  EXPECT_EQ(window->Modus(), frmHaupt::Idle);
  EXPECT_EQ(window->grid()->Size(), 2);
  EXPECT_EQ(counters(), std::vector<QString>(12, "?"));
  EXPECT_EQ(Robot::control<QLabel>(*window, "lblName0").text(), "Unbekannt");
  EXPECT_FALSE(control("picpFeld").isEnabled() || control("imgMüll").isVisible());
  EXPECT_EQ(globals.ScorePath, folder.path() + "/Score.hsc");
  EXPECT_EQ(sound.log, Log{});
  QFile file(globals.ScorePath);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write("abc"));
  file.close();
  store.values["Korvel/Options/StdSize"] = "3";
  open();
  EXPECT_EQ(messages.log, std::vector<QString>{QString("Achtung!|") + Score::kDamaged});
  EXPECT_EQ(control("picpFeld").size(), QSize(323, 259)) << "the stored size counts at once";
  for (const QWidget *other : QApplication::topLevelWidgets())
    EXPECT_EQ(other->isVisible(), other == window.get()) << "the splash has gone";
}

TEST_F(Window, FleetThatCannotBeMadeEndsTheProgram) {
  struct : RandomDraw {
    double next() override { return 0; } // always a corner
  } stuck;
  window = Main(globals, {stuck, sound, store, messages, help}, folder.path());
  Robot(*window).newGame(1, "Jörg");
  EXPECT_EQ(messages.log, std::vector<QString>{"Fehler!|Systemfehler\r\n\r\n"
                                               "Computer kann Spielfeld nicht erstellen!"});
  EXPECT_FALSE(window->isVisible());
}

} // namespace
