#include "Stage.h"

#include <QApplication>
#include <QMouseEvent>

namespace {

using FleetSetup = Stage;

// Every pixel from before the border to beyond it, along a row and a column through the cells, at
// every size: only the inside of a cell takes a press.
TEST_F(FleetSetup, OnlyCellsTakePresses) {
  for (int size = 1; size <= 3; ++size) {
    newGame(size);
    const clsGrid &grid = *window->grid();
    const int p = grid.CellSize() + 1;
    const auto tryAt = [&](QPoint pixel) {
      robot->press(pixel);
      const bool inside = pixel.x() % p != 0 && pixel.y() % p != 0 && pixel.x() > 0 &&
                          pixel.y() > 0 && pixel.x() < p * grid.columns() &&
                          pixel.y() < p * grid.rows();
      ASSERT_EQ(grid.PBoote(1).hasPoints(), inside) << pixel.x() << ", " << pixel.y();
      if (inside) {
        ASSERT_EQ(grid.PBoote(1).cell(1), (Cell{pixel.x() / p + 1, pixel.y() / p + 1}));
        Robot::click(control("imgMüll"));
      }
    };
    for (int x = -1; x <= field("picpFeld").innerWidth(); ++x)
      tryAt({x, p * 2 + 3});
    for (int y = -1; y <= field("picpFeld").innerHeight(); ++y)
      tryAt({p * 2 + 3, y});
  }
}

TEST_F(FleetSetup, BinIsRedWhileABoatIsInWork) {
  newGame(1);
  robot->press(QPoint(12, 12), Qt::RightButton);
  robot->press(QPoint(12, 12), Qt::MiddleButton);
  EXPECT_FALSE(window->grid()->PBoote(1).hasPoints()) << "other buttons do nothing";
  auto &bin = Robot::control<ImageButton>(*window, "imgMüll");
  const auto isRed = [&] { return bin.picture().cacheKey() == globals.MuellIcon[1].cacheKey(); };
  EXPECT_FALSE(bin.isEnabled() || isRed());
  for (int x = 1; x <= 4; ++x) {
    robot->press(Cell{x, 1});
    EXPECT_EQ(bin.isEnabled(), x < 4);
    EXPECT_EQ(isRed(), x < 4);
  }
  EXPECT_EQ(counters()[2], "0");
  robot->press(Cell{5, 1});
  robot->press(Cell{5, 2});
  EXPECT_FALSE(bin.isEnabled()) << "beside a boat nothing was set";

  for (const Cell &cell : {Cell{1, 3}, {2, 3}, {3, 4}})
    robot->press(cell);
  forget();
  Robot::click(bin);
  EXPECT_EQ(sound.log, Log{"start Muell"});
  EXPECT_FALSE(bin.isEnabled() || isRed());
  EXPECT_FALSE(window->grid()->PBoote(2).hasPoints());
  EXPECT_TRUE(window->grid()->PBoote(1).hasPoints());
  EXPECT_EQ(counters()[3], "2");
  robot->press(Cell{8, 8});
  EXPECT_EQ(window->grid()->PBoote(2).cell(1), (Cell{8, 8}))
      << "the same boat, from its first point";
}

TEST_F(FleetSetup, WholeFleetIsAskedForAndMoves) {
  newGame(1);
  const Cell last = robot->setFleetButOne(draw);
  forget();
  Robot::onDialog([&](QDialog &dialog) {
    EXPECT_EQ(sound.log, (Log{"start Boot", "LC wait Boot", "start Alle"}));
    EXPECT_EQ(Robot::control<QLabel>(dialog, "lblMeldung").text(),
              "Alle Boote wurden gesetzt.\r\n\r\nBist Du mit der Aufstellung zufrieden?");
    EXPECT_EQ(counters(), std::vector<QString>(12, "0"));
    EXPECT_FALSE(control("imgMüll").isEnabled());
    EXPECT_TRUE(control("imgMüll").isVisible());
    Robot::click(Robot::control(dialog, "cmdOK"));
  });
  robot->press(last);
  EXPECT_EQ(sound.log.back(), "start Start");
  EXPECT_EQ(window->Modus(), frmHaupt::Battle);
  EXPECT_FALSE(control("imgMüll").isVisible());
  EXPECT_EQ(counters(),
            (std::vector<QString>{"0", "0", "1", "2", "2", "3", "0", "0", "1", "2", "2", "3"}));

  // The second press of a double click on Ja is no press on the field below.
  const QPointF place(13, 13);
  QMouseEvent second(QEvent::MouseButtonDblClick, place, place, Qt::LeftButton, Qt::LeftButton, {});
  QApplication::sendEvent(&control("picpFeld"), &second);

  // The left field is water again, the right one shows the fleet.
  const QImage left = field("picpFeld").content(), right = field("piccFeld").content();
  for (int Y = 1; Y <= 8; ++Y)
    for (int X = 1; X <= 10; ++X) {
      const QRect cell(25 * (X - 1) + 1, 25 * (Y - 1) + 1, 24, 24);
      EXPECT_EQ(left.copy(cell), globals.sprites.stretched(Picture::picWasser, 24, 24));
      const bool boat = window->grid()->PFeld()(X, Y, 1) != 0;
      EXPECT_EQ(right.copy(cell),
                globals.sprites.stretched(boat ? Picture::picBoot : Picture::picWasser, 24, 24));
    }
}

TEST_F(FleetSetup, NeinStartsOverWithANewFleetOfTheComputer) {
  newGame(1);
  const std::string before = window->grid()->toText();
  const QImage water = field("picpFeld").content();
  const Cell last = robot->setFleetButOne(draw);
  Robot::answer("cmdAbbruch");
  robot->press(last);
  EXPECT_EQ(window->Modus(), frmHaupt::Setup);
  EXPECT_EQ(counters()[5], "3");
  EXPECT_NE(window->grid()->toText(), before);
  EXPECT_EQ(field("picpFeld").content(), water);
  robot->press(Cell{1, 1});
  EXPECT_EQ(window->grid()->PBoote(1).cell(1), (Cell{1, 1}));
  newGame(1); // in the middle of a boat: from the beginning as well
  EXPECT_FALSE(control("imgMüll").isEnabled());
  EXPECT_FALSE(window->grid()->PBoote(1).hasPoints());
  robot->press(Cell{10, 8});
  EXPECT_EQ(window->grid()->PBoote(1).cell(1), (Cell{10, 8}));
}

} // namespace
