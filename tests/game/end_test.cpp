// The end of a game, the top ten, and closing over their windows.

#include "Stage.h"

#include <QAbstractButton>
#include <QApplication>
#include <QTest>
#include <QTimer>

namespace {

struct End : Stage {
  static QString text(QDialog &dialog, const QString &label) {
    return Robot::control<QLabel>(dialog, label).text();
  }
  static QColor color(QDialog &topTen, const QString &label) {
    return Robot::control(topTen, label).palette().color(QPalette::WindowText);
  }
  static QTimer &timer(QDialog &topTen) { return *topTen.findChild<QTimer *>("timBlinker"); }
  Log lastSounds() { return {sound.log.end() - 2, sound.log.end()}; }
};

TEST_F(End, HumanIsFiledThenCelebratedThenShown) {
  startBattle(1);
  globals.score.EnterScore(2, "Anna", 50);
  Robot::onDialog([&](QDialog &end) {
    EXPECT_EQ(globals.score.row(1, 1), (Score::Row{"Jörg", "17"})) << "filed before it is shown";
    EXPECT_EQ(lastSounds(), (Log{"LC wait Versenkt", "start Sieg"})) << "no reply";
    EXPECT_EQ(text(end, "lblText"),
              "Jörg, Du hast den Sieg errungen.\r\nSomit hast Du es auf den 1. Platz geschafft.");
    EXPECT_EQ(text(end, "lblBomben"), "Mit nur 17 Wasserbomben!");
    Robot::onDialog([&](QDialog &topTen) {
      EXPECT_FALSE(end.isVisible());
      EXPECT_EQ(sound.log.back(), "start Top10");
      EXPECT_EQ(text(topTen, "lblQuote0"), "17 (100%)");
      QMetaObject::invokeMethod(&timer(topTen), "timeout"); // a tick from the test's hand
      EXPECT_EQ(color(topTen, "lblName0"), QColor(Qt::red));
      EXPECT_EQ(color(topTen, "lblQuote1"), QColor(Qt::black));
      Robot::click(Robot::control(topTen, "optSize1"));
      EXPECT_EQ(text(topTen, "lblQuote0"), "50 (58%)");
      EXPECT_EQ(color(topTen, "lblName0"), QColor(Qt::black)) << "a tab ends the blinking";
      EXPECT_FALSE(timer(topTen).isActive());
      Robot::click(Robot::control(topTen, "lblName3")); // almost anywhere closes
    });
    Robot::click(Robot::control(end, "cmdJa"));
  });
  winAsHuman();
  EXPECT_EQ(sound.log.back(), "start silence") << "the jingle stops";
  EXPECT_EQ(window->Modus(), frmHaupt::Over);
}

TEST_F(End, ComputerEntersTheSameListAndMayFindNoPlace) {
  for (const bool full : {false, true}) {
    startBattle(1);
    for (int i = 0; i < (full ? 10 : 1); ++i)
      globals.score.EnterScore(1, "Anna", 1);
    Robot::onDialog([&](QDialog &end) {
      EXPECT_EQ(lastSounds(), (Log{"RC start Versenkt", "L start Verloren"}));
      const auto [X, Y] = window->grid()->CBoote(1).cell(1);
      EXPECT_EQ(field("picpFeld").content().copy(25 * X - 24, 25 * Y - 24, 24, 24),
                globals.sprites.stretched(Picture::picBoot, 24, 24))
          << "what is left is shown";
      EXPECT_EQ(text(end, "lblText").section("\r\n", 0, 0),
                "Der Computer hat wiedermal gegen Dich gewonnen.");
      EXPECT_EQ(text(end, "lblText").section("\r\n", 1),
                full ? "Er gehört trotzdem nicht zu den Besten!"
                     : "Somit hat er es auf den 2. Platz geschafft.");
      EXPECT_EQ(globals.score.row(1, 2).name, full ? "Anna" : "Computer");
      Robot::onDialog([&](QDialog &topTen) {
        EXPECT_EQ(timer(topTen).isActive(), !full);
        topTen.close();
      });
      Robot::click(Robot::control(end, "cmdJa"));
    });
    letComputerWin();
  }
  startBattle(1);
  Robot::onDialog([&](QDialog &end) {
    EXPECT_EQ(text(end, "lblText").section("\r\n", 1),
              "Zu den Besten gehörst Du leider trotzdem nicht!");
    QTest::keyClick(&end, Qt::Key_Escape);
    EXPECT_FALSE(end.isVisible()) << "Escape is Nein";
    end.close();
  });
  winAsHuman();
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
}

// The window is closed at each run of events between the press that completes a fleet or ends a
// game and the dialog that follows.
TEST_F(End, MayBeClosedAtAnyMoment) {
  for (int i = 0; i < 24; ++i) {
    open();
    const int deed = i % 3;
    deed == 0 ? newGame(1) : startBattle(1);
    const Cell last = deed == 0 ? robot->setFleetButOne(draw) : Cell();
    int runs = i / 3;
    QTimer wake; // at each run of events
    QObject::connect(&wake, &QTimer::timeout, [&] {
      BoatTexts boats = window->grid() ? window->grid()->BoatTable(window->Modus()) : BoatTexts();
      if (deed == 0)
        boats[1] = {}; // the computer's are not counted yet
      if (winnerOf(boats) != 0 && --runs < 0)
        window->close();
    });
    wake.start(0);
    Robot::onDialog([&](QDialog &dialog) {
      EXPECT_TRUE(window->grid()) << "a dialog without its game";
      if (!window->grid())
        dialog.close();
    });
    deed == 0 ? robot->press(last) : deed == 1 ? winAsHuman() : letComputerWin();
    EXPECT_FALSE(window->grid());
    EXPECT_EQ(sound.log.back(), "start silence") << "press " << deed << ", run " << i / 3;
  }
}

} // namespace
