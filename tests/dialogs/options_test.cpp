#include "frmOptions.h"
#include "windows.h"

namespace {

struct frmOptionsTest : testing::Test {
  MainWindow main;
  MemoryStore store;
  Settings settings;
  std::unique_ptr<frmOptions> dialog;

  void open() {
    dialog = std::make_unique<frmOptions>(&main, settings, store);
    dialog->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
  }
  void click(const char *name) { Robot::click(Robot::control(*dialog, name)); }
  QString pressed() {
    QString names;
    for (const char *name : {"chkSound", "chkHelp", "optSize0", "optSize1", "optSize2"})
      if (Robot::control<BlueButton>(*dialog, name).isChecked())
        names += QString(name) + ' ';
    return names.trimmed();
  }
};

TEST_F(frmOptionsTest, ShowsWhatHolds) {
  const std::pair<Settings, const char *> cases[] = {{{1, 1, 2}, "chkSound chkHelp optSize1"},
                                                     {{0, 1, 1}, "chkHelp optSize0"},
                                                     {{1, 0, 3}, "chkSound optSize2"},
                                                     {{2, 2, 3}, "chkSound optSize2"}};
  for (const auto &[held, shown] : cases) {
    settings = held;
    open();
    EXPECT_EQ(pressed(), shown);
    click("optSize0");
    click("optSize1");
    EXPECT_FALSE(pressed().contains("optSize0")) << "one size at a time";
  }
  open();
  const auto icon = [&] { return Robot::control(*dialog, "chkHelp").grab().toImage(); };
  const QImage off = icon();
  click("chkHelp");
  EXPECT_NE(icon(), off);
}

TEST_F(frmOptionsTest, TakingOverStoresAllThreeInOrder) {
  open();
  click("cmdÜbernehmen");
  EXPECT_EQ(store.log, "Korvel/Options/Sound=1 Korvel/Options/StdSize=2 Korvel/Options/Help=1 ");
  store.log.clear();
  open();
  for (const char *name : {"chkSound", "chkHelp", "optSize2"})
    click(name);
  key(*dialog, Qt::Key_Udiaeresis, "ü", Qt::AltModifier);
  EXPECT_TRUE(closes(*dialog));
  EXPECT_EQ(store.log, "Korvel/Options/Sound=0 Korvel/Options/StdSize=3 Korvel/Options/Help=0 ");
  EXPECT_EQ(std::tuple(settings.Sound, settings.Help, settings.StdSize), std::tuple(0, 0, 3));
}

TEST_F(frmOptionsTest, EveryOtherWayOutChangesNothing) {
  const std::function<void()> ways[] = {
      [&] { click("cmdAbbruch"); }, [&] { key(*dialog, Qt::Key_A, "a", Qt::AltModifier); },
      [&] { key(*dialog, Qt::Key_Escape, "\x1b"); }, [&] { closeFrame(*dialog); }};
  for (const auto &way : ways) {
    open();
    for (const char *name : {"chkSound", "chkHelp", "optSize0"})
      click(name);
    way();
    EXPECT_TRUE(closes(*dialog));
    EXPECT_EQ(std::tuple(settings.Sound, settings.Help, settings.StdSize), std::tuple(1, 1, 2));
    EXPECT_EQ(store.log, "");
  }
}

} // namespace
