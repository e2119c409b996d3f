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

QTimer &timer(QDialog &topTen) { return *topTen.findChild<QTimer *>("timBlinker"); }

TEST_F(End, HumanIsFiledThenCelebratedThenShown) {
  startBattle(1);
  Robot::onDialog([&](QDialog &end) {
    EXPECT_EQ(globals.score.row(1, 1), (Score::Row{"Jörg", "17"})) << "filed before it is shown";
    EXPECT_EQ(sound.log.back(), "start Sieg");
    EXPECT_EQ(text(end, "lblText"),
              "Jörg, Du hast den Sieg errungen.\r\nSomit hast Du es auf den 1. Platz geschafft.");
    EXPECT_EQ(text(end, "lblBomben"), "Mit nur 17 Wasserbomben!");
    Robot::onDialog([&](QDialog &topTen) {
      EXPECT_FALSE(end.isVisible());
      EXPECT_EQ(sound.log.back(), "start Top10");
      EXPECT_EQ(text(topTen, "lblQuote0"), "17 (100%)");
      for (const auto colour : {Qt::red, Qt::black, Qt::red}) {
        QMetaObject::invokeMethod(&timer(topTen), "timeout"); // a tick from the test's hand
        EXPECT_EQ(color(topTen, "lblQuote0"), QColor(colour));
        EXPECT_EQ(color(topTen, "lblQuote1"), QColor(Qt::black));
      }
      Robot::click(Robot::control(topTen, "optSize1"));
      EXPECT_EQ(text(topTen, "lblQuote0"), "?");
      EXPECT_EQ(color(topTen, "lblName0"), QColor(Qt::black)) << "a tab ends the blinking";
      EXPECT_FALSE(timer(topTen).isActive());
      Robot::click(Robot::control(topTen, "lblName3"));
      EXPECT_FALSE(topTen.isVisible()) << "a click almost anywhere closes";
    });
    Robot::click(Robot::control(end, "cmdJa"));
  });
  winAsHuman();
  EXPECT_EQ(sound.log.back(), "start silence") << "the jingle stops";
  EXPECT_EQ(window->Modus(), frmHaupt::Over);
  EXPECT_FALSE(control("picpFeld").isEnabled());
}

TEST_F(End, ComputerEntersTheSameListAndMayFindNoPlace) {
  for (const bool full : {false, true}) {
    startBattle(1);
    for (int i = 0; i < (full ? 10 : 1); ++i)
      globals.score.EnterScore(1, "Anna", 1);
    Robot::onDialog([&](QDialog &end) {
      EXPECT_EQ(text(end, "lblText"),
                QString("Der Computer hat wiedermal gegen Dich gewonnen.") +
                    (full ? "\r\nEr gehört trotzdem nicht zu den Besten!"
                          : "\r\nSomit hat er es auf den 2. Platz geschafft."));
      Robot::onDialog([&](QDialog &topTen) {
        EXPECT_EQ(timer(topTen).isActive(), !full);
        EXPECT_EQ(text(topTen, "lblName1"), full ? "Anna" : "Computer");
        QTest::keyClick(&topTen, Qt::Key_Escape);
      });
      Robot::click(Robot::control(end, "cmdJa"));
    });
    letComputerWin();
  }
  startBattle(1);
  Robot::onDialog([&](QDialog &end) {
    EXPECT_EQ(text(end, "lblText"), "Jörg, Du hast den Sieg errungen.\r\n"
                                    "Zu den Besten gehörst Du leider trotzdem nicht!");
    QTest::keyClick(&end, Qt::Key_Escape);
  });
  winAsHuman();
  EXPECT_EQ(window->Modus(), frmHaupt::Over) << "Escape is Nein";
}

TEST_F(End, FailedSaveOrClearingEndsTheProgramWithItsMessage) {
  for (const char *message : {Score::kSaveFailed, Score::kResetFailed}) {
    open();
    startBattle(1);
    QFile::remove(globals.ScorePath);
    QDir().mkdir(globals.ScorePath);
    Robot::onDialog([](QDialog &topTen) {
      Robot::answer("cmdOK");
      Robot::click(Robot::control(topTen, "cmdClear"));
    });
    message == Score::kSaveFailed ? winAsHuman() : robot->command("keyTop10");
    EXPECT_EQ(messages.log.back(), QString("Korvel|") + message);
    EXPECT_FALSE(window->isVisible());
    QDir().rmdir(globals.ScorePath);
  }
  EXPECT_EQ(messages.log.size(), 2u);
}

TEST_F(End, ClearingAsksOverTheHiddenTopTenWhichComesAgain) {
  newGame(3);
  globals.score.EnterScore(3, "Anna", 47);
  const std::pair<const char *, const char *> answers[] = {{"cmdAbbruch", "Anna"},
                                                           {"cmdOK", "unbekannt"}};
  for (const auto &[button, name] : answers) {
    QString shown;
    Robot::onDialog([&](QDialog &topTen) {
      EXPECT_TRUE(Robot::control<QAbstractButton>(topTen, "optSize2").isChecked());
      EXPECT_EQ(text(topTen, "lblQuote0"), "47 (85%)");
      Robot::onDialog([&](QDialog &question) {
        EXPECT_FALSE(topTen.isVisible());
        EXPECT_EQ(text(question, "lblMeldung"), "\r\nSoll die Top-Ten wirklich gelöscht werden?");
        Robot::onDialog([&](QDialog &again) {
          shown = text(again, "lblName0");
          again.close();
        });
        Robot::click(Robot::control(question, button));
      });
      Robot::click(Robot::control(topTen, "cmdClear"));
    });
    robot->command("keyTop10");
    EXPECT_EQ(shown, name);
  }
  EXPECT_EQ(Score(globals.score).LoadScore(), Score::Loaded::whole);
  EXPECT_EQ(window->Modus(), frmHaupt::Setup) << "the game goes on";
}

} // namespace
