// The end of a game and the top ten.

#include "Stage.h"

#include <QAbstractButton>
#include <QTest>
#include <QTimer>

namespace {

using End = Stage;

QString text(QDialog &dialog, const QString &label) {
  return Robot::control<QLabel>(dialog, label).text();
}

QColor color(QDialog &dialog, const QString &label) {
  return Robot::control<QLabel>(dialog, label).palette().color(QPalette::WindowText);
}

QTimer *timer(QDialog &topTen) { return topTen.findChild<QTimer *>("timBlinker"); }

TEST_F(End, HumanIsFiledThenCelebratedThenShown) {
  startBattle(1);
  bool seen = false;
  Robot::onDialog([&](QDialog &end) {
    EXPECT_EQ(globals.score.row(1, 1), (Score::Row{"Jörg", "17"})) << "filed before it is shown";
    EXPECT_EQ(window->Modus(), frmHaupt::Battle);
    EXPECT_EQ(sound.log.back(), "start Sieg");
    EXPECT_EQ(text(end, "lblText"),
              "Jörg, Du hast den Sieg errungen.\r\nSomit hast Du es auf den 1. Platz geschafft.");
    EXPECT_EQ(text(end, "lblBomben"), "Mit nur 17 Wasserbomben!");
    Robot::onDialog([&](QDialog &topTen) {
      seen = true;
      EXPECT_FALSE(end.isVisible());
      EXPECT_EQ(sound.log.back(), "start Top10");
      EXPECT_EQ(text(topTen, "lblQuote0"), "17 (100%)");
      for (const auto colour : {Qt::red, Qt::black, Qt::red}) {
        QMetaObject::invokeMethod(timer(topTen), "timeout"); // a tick from the test's hand
        EXPECT_EQ(color(topTen, "lblQuote0"), QColor(colour));
        EXPECT_EQ(color(topTen, "lblQuote1"), QColor(Qt::black));
      }
      Robot::click(Robot::control(topTen, "optSize1"));
      EXPECT_EQ(text(topTen, "lblQuote0"), "?");
      EXPECT_EQ(color(topTen, "lblName0"), QColor(Qt::black)) << "a tab ends the blinking";
      EXPECT_FALSE(timer(topTen)->isActive());
      Robot::click(Robot::control(topTen, "lblName3"));
      EXPECT_FALSE(topTen.isVisible()) << "a click almost anywhere closes";
    });
    Robot::click(Robot::control(end, "cmdJa"));
  });
  winAsHuman();
  EXPECT_TRUE(seen);
  EXPECT_EQ(sound.log.back(), "start silence") << "the jingle stops";
  EXPECT_EQ(window->Modus(), frmHaupt::Over);
  EXPECT_FALSE(control("picpFeld").isEnabled());
  EXPECT_EQ(window->Bomben(), "17");
}

TEST_F(End, ComputerEntersTheSameList) {
  startBattle(1);
  for (const int bombs : {17, 80})
    globals.score.EnterScore(1, "Anna", bombs);
  Robot::onDialog([&](QDialog &end) {
    EXPECT_EQ(text(end, "lblText"), "Der Computer hat wiedermal gegen Dich gewonnen.\r\n"
                                    "Somit hat er es auf den 2. Platz geschafft.");
    QTest::keyClick(&end, Qt::Key_Escape);
    EXPECT_FALSE(end.isVisible()) << "Escape is Nein";
  });
  letComputerWin();
  EXPECT_EQ(globals.score.row(1, 2).name, "Computer");
  EXPECT_EQ(globals.score.row(1, 2).quote, QString::number(window->BombenZahl(1)).toStdString());
}

TEST_F(End, ResultWithoutAPlaceIsStillAskedAbout) {
  startBattle(1);
  for (int i = 0; i < 10; ++i)
    globals.score.EnterScore(1, "Anna", 1);
  int asked = 0;
  Robot::onDialog([&](QDialog &end) {
    ++asked;
    EXPECT_EQ(text(end, "lblText"), "Jörg, Du hast den Sieg errungen.\r\n"
                                    "Zu den Besten gehörst Du leider trotzdem nicht!");
    Robot::onDialog([&](QDialog &topTen) {
      ++asked;
      EXPECT_FALSE(timer(topTen)->isActive());
      QTest::keyClick(&topTen, Qt::Key_Escape);
    });
    Robot::click(Robot::control(end, "cmdJa"));
  });
  winAsHuman();
  EXPECT_EQ(asked, 2);
}

TEST_F(End, FailedSaveOrClearingEndsTheProgramWithItsMessage) {
  const std::pair<const char *, std::function<void()>> cases[] = {
      {Score::kSaveFailed, [&] { winAsHuman(); }},
      {Score::kResetFailed,
       [&] {
         Robot::onDialog([](QDialog &topTen) {
           Robot::answer("cmdOK");
           Robot::click(Robot::control(topTen, "cmdClear"));
         });
         robot->command("keyTop10");
       }},
  };
  for (const auto &[message, act] : cases) {
    messages.log.clear();
    open();
    startBattle(1);
    QFile::remove(globals.ScorePath);
    QDir().mkdir(globals.ScorePath);
    act();
    EXPECT_EQ(messages.log, std::vector<QString>{QString("Korvel|") + message});
    EXPECT_FALSE(window->isVisible());
    QDir().rmdir(globals.ScorePath);
  }
}

TEST_F(End, DamagedFileIsToldAtTheStart) {
  QFile file(globals.ScorePath);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write("abc"));
  file.close();
  open();
  EXPECT_EQ(messages.log, std::vector<QString>{QString("Achtung!|") + Score::kDamaged});
  EXPECT_TRUE(window->isVisible());
}

using TopTen = Stage;

TEST_F(TopTen, ClearingAsksOverTheHiddenWindowWhichComesAgain) {
  newGame(3);
  globals.score.EnterScore(3, "Anna", 47);
  int shown = 0;
  const auto withAnswer = [&](const char *button, const char *name) {
    Robot::onDialog([=, &shown](QDialog &topTen) {
      EXPECT_TRUE(Robot::control<QAbstractButton>(topTen, "optSize2").isChecked());
      EXPECT_EQ(text(topTen, "lblQuote0"), "47 (85%)");
      Robot::onDialog([=, &shown, &topTen](QDialog &question) {
        EXPECT_FALSE(topTen.isVisible());
        EXPECT_EQ(text(question, "lblMeldung"), "\r\nSoll die Top-Ten wirklich gelöscht werden?");
        Robot::onDialog([=, &shown](QDialog &again) {
          ++shown;
          EXPECT_EQ(text(again, "lblName0"), name);
          again.close();
        });
        Robot::click(Robot::control(question, button));
      });
      Robot::click(Robot::control(topTen, "cmdClear"));
    });
    robot->command("keyTop10");
  };
  withAnswer("cmdAbbruch", "Anna");
  withAnswer("cmdOK", "unbekannt");
  EXPECT_EQ(shown, 2);
  EXPECT_EQ(Score(globals.score).LoadScore(), Score::Loaded::whole);
  EXPECT_EQ(window->Modus(), frmHaupt::Setup) << "the game goes on";
}

} // namespace
