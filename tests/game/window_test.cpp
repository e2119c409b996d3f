#include "Stage.h"
#include "press.h"

#include <QPushButton>
#include <QTest>

namespace {

TEST(Press, CellUnderThePixel) {
  struct {
    int x, y;
    int size;
    std::optional<Cell> cell;
  } const cases[] = {
      {1, 1, 1, Cell{1, 1}},       {24, 24, 1, Cell{1, 1}},     {25, 12, 1, {}},
      {12, 25, 1, {}},             {26, 26, 1, Cell{2, 2}},     {0, 12, 1, {}},
      {12, 0, 1, {}},              {249, 199, 1, Cell{10, 8}},  {250, 199, 1, {}},
      {249, 200, 1, {}},           {-1, 12, 1, {}},             {251, 12, 1, {}},
      {284, 227, 2, Cell{15, 12}}, {285, 227, 2, {}},           {19, 5, 2, {}},
      {319, 255, 3, Cell{20, 16}}, {319, 256, 3, {}},           {17, 17, 3, Cell{2, 2}},
  };
  for (const auto &c : cases) {
    const int p = kCellSize[sizeIndex(c.size)] + 1;
    EXPECT_EQ(cellAt(c.x, c.y, columnsOf(c.size) * p + 1, rowsOf(c.size) * p + 1, p - 1), c.cell)
        << c.x << ", " << c.y << " at size " << c.size;
  }
}

TEST(Paths, NoSeparatorIsDoubled) {
  EXPECT_EQ(dataPath("/", "Score.hsc"), "/Score.hsc");
  EXPECT_EQ(dataPath("/opt/Korvel", "Score.hsc"), "/opt/Korvel/Score.hsc");
}

using Window = Stage;

TEST_F(Window, StartsIdle) {
  EXPECT_EQ(window->windowTitle(), "Korvel");
  EXPECT_EQ(window->size(), QSize(700, 473));
  EXPECT_EQ(window->Modus(), frmHaupt::Idle);
  EXPECT_EQ(window->grid()->Size(), 2);
  EXPECT_EQ(counters(), std::vector<QString>(12, "?"));
  EXPECT_EQ(Robot::control<QLabel>(*window, "lblName0").text(), "Unbekannt");
  EXPECT_EQ(Robot::control<QLabel>(*window, "lblName1").text(), "Computer");
  EXPECT_FALSE(control("picpFeld").isEnabled());
  EXPECT_FALSE(control("piccFeld").isEnabled());
  EXPECT_FALSE(control("imgMüll").isVisible());
  EXPECT_EQ(globals.ScorePath, folder.path() + "/Score.hsc");
  EXPECT_EQ(sound.log, std::vector<std::string>{});
}

TEST_F(Window, StoredSizeCountsAtOnce) {
  store.values["StdSize"] = "3";
  open();
  EXPECT_EQ(window->grid()->Size(), 3);
  EXPECT_EQ(control("picpFeld").size(), QSize(323, 259));
}

TEST_F(Window, FieldsGrowAroundTheirCentres) {
  struct {
    int size;
    QRect left, right, name, bin;
  } const places[] = {
      {1, {52, 65, 253, 203}, {396, 65, 253, 203}, {52, 46, 253, 19}, {273, 270, 32, 32}},
      {3, {17, 37, 323, 259}, {361, 37, 323, 259}, {17, 18, 323, 19}, {308, 298, 32, 32}},
      {2, {34, 51, 288, 231}, {378, 51, 288, 231}, {34, 32, 288, 19}, {290, 284, 32, 32}},
  };
  for (const auto &place : places) {
    newGame(place.size);
    EXPECT_EQ(control("picpFeld").geometry(), place.left);
    EXPECT_EQ(control("piccFeld").geometry(), place.right);
    EXPECT_EQ(control("lblName0").geometry(), place.name);
    EXPECT_EQ(control("lblName1").geometry().left(), place.right.left());
    EXPECT_EQ(control("imgMüll").geometry(), place.bin);
    EXPECT_EQ(control("lblpBoote0").geometry(), QRect(64, 360, 33, 25));
    EXPECT_EQ(control("lblcBoote5").geometry(), QRect(608, 360, 33, 25));
    EXPECT_EQ(control("picpFeld").parentWidget()->geometry(), QRect(0, 68, 701, 405));
  }
}

TEST_F(Window, ToolbarHasItsFiveButtons) {
  const char *const buttons[][3] = {
      {"keyNew", "&Neues Spiel", "Neues Spiel beginnen."},
      {"keyOptionen", "&Optionen", "Spieleinstellungen ändern"},
      {"keyTop10", "&Top 10", "Zeigt die Bestenliste."},
      {"keyEnde", "&Ausgang", "Spiel verlassen"},
      {"keyHilfe", "&Hilfe", "Einige Infos rund ums Spiel."},
  };
  int x = 0;
  for (const auto &[key, caption, toolTip] : buttons) {
    auto &button = Robot::control<QAbstractButton>(*window, key);
    EXPECT_EQ(button.text(), caption);
    EXPECT_EQ(button.toolTip(), toolTip);
    EXPECT_EQ(button.geometry(), QRect(x, 1, 90, 63));
    x += 90;
  }
}

TEST_F(Window, NewGameTakesNameAndSizeAndCancelNothing) {
  newGame(3);
  EXPECT_EQ(window->Modus(), frmHaupt::Setup);
  EXPECT_EQ(window->grid()->Size(), 3);
  EXPECT_EQ(Robot::control<QLabel>(*window, "lblName0").text(), "Jörg");
  robot->press(Cell{1, 1});
  const auto before = counters();
  Robot::onDialog([&](QDialog &dialog) {
    Robot::click(Robot::control(dialog, "optSize0"));
    Robot::click(Robot::control(dialog, "cmdAbbruch"));
  });
  robot->command("keyNew");
  EXPECT_EQ(window->Modus(), frmHaupt::Setup);
  EXPECT_EQ(window->grid()->Size(), 3);
  EXPECT_EQ(counters(), before);
  EXPECT_TRUE(window->grid()->PBoote(1).hasPoints()) << "the boat in work is still there";
}

TEST_F(Window, DialogOffersTheLastNameAndSize) {
  newGame(1);
  bool asked = false;
  Robot::onDialog([&](QDialog &dialog) {
    asked = true;
    EXPECT_TRUE(Robot::control<QAbstractButton>(dialog, "optSize0").isChecked());
    dialog.close();
  });
  robot->command("keyNew");
  EXPECT_TRUE(asked);
}

TEST_F(Window, LeavingAsksFirst) {
  Robot::onDialog([](QDialog &dialog) {
    EXPECT_EQ(Robot::control<QLabel>(dialog, "lblMeldung").text(),
              "\r\nWillst Du das Spiel wirklich beenden?");
    Robot::click(Robot::control(dialog, "cmdAbbruch"));
  });
  robot->command("keyEnde");
  EXPECT_TRUE(window->isVisible());
  Robot::answer("cmdOK");
  robot->command("keyEnde");
  EXPECT_FALSE(window->isVisible());
  EXPECT_EQ(sound.log, std::vector<std::string>{"start silence"});
}

TEST_F(Window, FleetThatCannotBeMadeEndsTheProgram) {
  struct : RandomDraw {
    double next() override { return 0; } // a corner, for ever
  } stuck;
  robot.reset();
  window = Main(globals, {stuck, sound, store, messages}, folder.path());
  robot.emplace(*window);
  newGame(1);
  EXPECT_EQ(messages.shown, std::vector<QString>{"Fehler!|Systemfehler\r\n\r\n"
                                                 "Computer kann Spielfeld nicht erstellen!"});
  EXPECT_FALSE(window->isVisible());
  EXPECT_EQ(window->grid(), nullptr);
}

} // namespace
