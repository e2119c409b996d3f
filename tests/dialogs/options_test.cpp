#include "frmOptions.h"
#include "windows.h"

namespace {

struct frmOptionsTest : testing::Test {
  MainWindow main;
  MemoryStore store;
  Settings settings;
  std::optional<frmOptions> dialog;

  void open() {
    dialog.emplace(&main, settings, store);
    dialog->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&*dialog));
  }
  void click(const char *name) { Robot::click(Robot::control(*dialog, name)); }
  std::string pressed() {
    std::string states;
    for (const char *name : {"chkSound", "chkHelp", "optSize0", "optSize1", "optSize2"})
      states += Robot::control<BlueButton>(*dialog, name).isChecked() ? '1' : '0';
    return states;
  }
};

TEST_F(frmOptionsTest, ShowsWhatHoldsAndStoresAllThreeInOrder) {
  const std::tuple<Settings, const char *, const char *> cases[] = {
      {{1, 0, 2}, "10010", "Sound=0 StdSize=3 Help=1 "},
      {{0, 1, 1}, "01100", "Sound=1 StdSize=3 Help=0 "},
      {{2, 2, 3}, "10001", "Sound=0 StdSize=3 Help=1 "}};
  for (const auto &[held, shown, stored] : cases) {
    settings = held;
    store.log.clear();
    open();
    EXPECT_EQ(pressed(), shown);
    const QImage icon = Robot::control(*dialog, "chkHelp").grab().toImage();
    for (const char *name : {"chkSound", "chkHelp", "optSize2"})
      click(name);
    EXPECT_NE(Robot::control(*dialog, "chkHelp").grab().toImage(), icon);
    click("cmdÜbernehmen");
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(store.log.remove("Korvel/Options/"), stored);
    EXPECT_EQ(settings.StdSize, 3);
  }
}

TEST_F(frmOptionsTest, EveryOtherWayOutChangesNothing) {
  const std::function<void()> ways[] = {
      [&] { click("cmdAbbruch"); }, [&] { key(*dialog, Qt::Key_A, "a", Qt::AltModifier); },
      [&] { key(*dialog, Qt::Key_Escape, "\x1b"); }, [&] { closeFrame(*dialog); }};
  for (const auto &way : ways) {
    open();
    click("chkSound");
    way();
    EXPECT_TRUE(closes(*dialog));
    EXPECT_EQ(settings.Sound, 1);
    EXPECT_EQ(store.log, "");
  }
}

} // namespace
