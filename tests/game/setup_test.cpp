#include "Stage.h"
#include "pictures.h"

#include <QAbstractButton>
#include <QWindow>

namespace {

struct FleetSetup : Stage {
  FleetSetup() { newGame(1); }
};

// Every pixel from before the border to beyond it, along a row and a column through the cells:
// only the inside of a cell takes a press.
TEST_F(FleetSetup, OnlyCellsTakePresses) {
  for (int at = -1; at <= 251; ++at)
    for (const QPoint pixel : {QPoint(at, 53), QPoint(53, std::min(at, 201))}) {
      robot->press(pixel);
      const bool inside =
          pixel.x() % 25 != 0 && pixel.y() % 25 != 0 && QRect(1, 1, 249, 199).contains(pixel);
      const Cell cell{pixel.x() / 25 + 1, pixel.y() / 25 + 1};
      EXPECT_EQ(window->grid()->PBoote(1).cell(1), inside ? cell : Cell());
      Robot::click(control("imgMüll"));
    }
}

TEST_F(FleetSetup, BinIsRedWhileABoatIsInWork) {
  auto &bin = Robot::control<ImageButton>(*window, "imgMüll");
  const auto expectAfter = [&](const Cell &press, bool inWork) {
    robot->press(press);
    EXPECT_EQ(bin.isEnabled(), inWork);
    EXPECT_EQ(bin.picture().toImage(), loadPicture(inWork ? "muell-rot" : "muell-grau").toImage());
  };
  robot->press(QPoint(112, 112), Qt::RightButton); // does nothing
  expectAfter({1, 1}, true);
  expectAfter({2, 1}, true);
  expectAfter({3, 1}, true);
  expectAfter({4, 1}, false);
  expectAfter({1, 3}, true);
  forget();
  Robot::click(bin);
  EXPECT_EQ(sound.log, Log{"start Muell"});
  expectAfter({1, 2}, false); // nothing, but the bin is grey again
  expectAfter({8, 8}, true);
  Robot::onDialog([](QDialog &dialog) {
    EXPECT_TRUE(Robot::control<QAbstractButton>(dialog, "optSize0").isChecked()) << "the last size";
    Robot::click(Robot::control(dialog, "cmdAbbruch"));
  });
  robot->command("keyNew"); // and changes nothing
  EXPECT_EQ(window->grid()->PBoote(2).cell(1), (Cell{8, 8})) << "the same boat, its first point";
}

TEST_F(FleetSetup, WholeFleetIsAskedForAndMoves) {
  for (const char *answer : {"cmdAbbruch", "cmdOK"}) {
    EXPECT_EQ(counters()[5], "3");
    const std::string board = window->grid()->toText();
    const Cell last = robot->setFleetButOne(draw);
    forget();
    Robot::onDialog([&](QDialog &dialog) {
      EXPECT_TRUE(window->windowHandle()->flags() & Qt::WindowDoesNotAcceptFocus);
      EXPECT_EQ(dialog.windowModality(), Qt::WindowModal) << "the help stays open to presses";
      EXPECT_EQ(sound.log, (Log{"start Boot", "LC wait Boot", "start Alle"}));
      EXPECT_EQ(Robot::control<QLabel>(dialog, "lblMeldung").text(),
                "Alle Boote wurden gesetzt.\r\n\r\nBist Du mit der Aufstellung zufrieden?");
      EXPECT_EQ(counters(), std::vector<QString>(12, "0"));
      EXPECT_TRUE(!control("imgMüll").isEnabled() && control("imgMüll").isVisible());
      Robot::click(Robot::control(dialog, answer));
    });
    robot->press(last);
    EXPECT_NE(window->grid()->toText(), board) << "after Nein the computer sets anew";
  }
  EXPECT_EQ(sound.log.back(), "start Start");
  EXPECT_EQ(window->Modus(), frmHaupt::Battle);
  EXPECT_FALSE(control("imgMüll").isVisible());
  EXPECT_EQ(counters(),
            (std::vector<QString>{"0", "0", "1", "2", "2", "3", "0", "0", "1", "2", "2", "3"}));
}

} // namespace
