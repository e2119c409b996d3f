#include "Settings.h"
#include "frmMeldung.h"
#include "frmOptions.h"
#include "pictures.h"
#include "windows.h"

#include <QFile>

#include <sys/stat.h>

namespace {

TEST(Settings, WhatIsNoUsableNumberGivesTheDefault) {
  const std::tuple<const char *, int, int> cases[] = {
      {"0", 0, 2},   {"1", 1, 1},  {"3", 3, 3},   {"4", 4, 2},  {"255", 255, 2},
      {"256", 1, 2}, {"-1", 1, 2}, {"abc", 1, 2}, {"3x", 1, 2}, {"", 1, 2},
  };
  for (const auto &[text, onOff, size] : cases) {
    MemoryStore store;
    for (const char *key : {"Sound", "Help", "StdSize"})
      store.write("Korvel", "Options", key, text);
    const Settings s = Settings::read(store);
    EXPECT_EQ(std::tuple(s.Sound, s.Help, s.StdSize), std::tuple(onOff, onOff, size)) << text;
  }
}

TEST(Settings, APipeInThePlaceOfTheFileStopsNothing) {
  QtSettingsStore store;
  const auto stored = [&](const char *text) {
    store.write("Korvel", "Options", "StdSize", text);
    return store.read("Korvel", "Options", "StdSize", "none");
  };
  EXPECT_EQ(stored("3"), "3");
  const QString file = qEnvironmentVariable("XDG_CONFIG_HOME") + "/Korvel/Korvel.conf";
  ASSERT_TRUE(QFile::remove(file) && mkfifo(qPrintable(file), 0600) == 0);
  EXPECT_EQ(stored("1"), "none");
}

TEST(frmOptions, ShowsWhatHoldsAndTakesOverOnlyByItsButton) {
  QWidget main;
  MemoryStore store;
  const std::tuple<Settings, const char *, const char *, const char *> cases[] = {
      {{1, 0, 2}, "10010", "cmdÜbernehmen", "Sound=0 StdSize=3 Help=1 "},
      {{0, 1, 1}, "01100", "cmdÜbernehmen", "Sound=1 StdSize=3 Help=0 "},
      {{2, 2, 3}, "10001", "cmdÜbernehmen", "Sound=0 StdSize=3 Help=1 "},
      {{1, 1, 2}, "11010", "cmdAbbruch", ""},
      {{1, 1, 2}, "11010", "Escape", ""},
      {{1, 1, 2}, "11010", "frame", ""}};
  for (const auto &[held, shown, way, stored] : cases) {
    Settings settings = held;
    store.log.clear();
    frmOptions dialog(&main, settings, store);
    dialog.show();
    QString pressed;
    for (const char *name : {"chkSound", "chkHelp", "optSize0", "optSize1", "optSize2"})
      pressed += Robot::control<BlueButton>(dialog, name).isChecked() ? '1' : '0';
    EXPECT_EQ(pressed, shown);
    auto on = Robot::control<BlueButton>(dialog, "chkHelp").icon().pixmap(99, {}, QIcon::On);
    EXPECT_EQ(on.toImage(), loadPicture("hilfe-an").toImage());
    act(dialog, QString("chkSound chkHelp optSize2 ") + way);
    EXPECT_FALSE(dialog.isVisible()) << way;
    EXPECT_EQ(store.log.remove("Korvel/Options/"), stored);
    EXPECT_EQ(settings.StdSize, *stored ? 3 : 2);
  }
}

TEST(frmMeldung, EachWayOutHasItsAnswer) {
  const std::pair<const char *, bool> cases[] = {
      {"cmdOK", true}, {"frame", false}, {"Enter", true}, {"Escape", false}, {"cmdAbbruch", false}};
  QWidget main;
  for (const auto &[way, answer] : cases) {
    Robot::onDialog([&way = way](QDialog &box) {
      EXPECT_EQ(Robot::control<QLabel>(box, "lblMeldung").text(), way);
      EXPECT_TRUE(QTest::qWaitForWindowActive(&box));
      act(box, way);
      EXPECT_FALSE(box.isVisible()) << way;
      box.hide(); // so that a fault doesn't hang the test
    });
    EXPECT_EQ(ask(&main, way), answer) << way;
  }
}

} // namespace
