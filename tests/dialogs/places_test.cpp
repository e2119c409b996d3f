#include "frmMeldung.h"
#include "frmNeu.h"
#include "windows.h"

namespace {

struct Place {
  const char *name;
  QRect place; ///< on the background
  QString text, toolTip;
};

void measure(QDialog &dialog, QPoint background, const std::vector<Place> &places) {
  dialog.show();
  for (const Place &expected : places) {
    auto &control = Robot::control(dialog, expected.name);
    EXPECT_EQ(QRect(control.mapTo(&dialog, -background), control.size()), expected.place);
    EXPECT_EQ(control.property("text").toString(), expected.text);
    EXPECT_EQ(control.toolTip(), expected.toolTip);
  }
}

TEST(Places, frmNeu) {
  MainWindow main;
  frmNeu dialog(&main, 2, "Jörg", {});
  measure(dialog, {0, 0},
          {{"cboName", {56, 32, 161, 24}, "", "Gib hier Deinen Namen ein."},
           {"optSize0", {56, 88, 49, 49}, "Größe 1", "Schnelles Spiel"},
           {"optSize1", {112, 88, 49, 49}, "Größe 2", "Normales Spiel"},
           {"optSize2", {168, 88, 49, 49}, "Größe 3", "Langes Spiel"},
           {"cmdOK", {80, 168, 57, 25}, "&OK!", "Einstellungen übernehmen"},
           {"cmdAbbruch", {144, 168, 57, 25}, "&Abbruch", "Dialog abbrechen"}});
  EXPECT_EQ(dialog.size(), QSize(284, 203));
  EXPECT_EQ(dialog.windowTitle(), "Neues Spiel");
}

TEST(Places, frmMeldungWithALongText) {
  const QString text = QString("Ein sehr langer Text ").repeated(40) + "\r\n" + QString(400, 'W');
  MainWindow main;
  frmMeldung dialog(&main);
  dialog.setText(text);
  measure(dialog, {2, 2},
          {{"lblMeldung", {16, 16, 313, 57}, text, ""},
           {"cmdOK", {88, 96, 73, 25}, "&Ja", ""},
           {"cmdAbbruch", {168, 96, 73, 25}, "&Nein", ""}});
  EXPECT_EQ(dialog.size(), QSize(354, 141));
  EXPECT_EQ(Robot::control(dialog, "cmdOK").parentWidget()->geometry(), QRect(2, 2, 349, 137));
}

} // namespace
