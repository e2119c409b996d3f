#include "frmOptions.h"
#include "windows.h"

namespace {

TEST(frmOptions, ShowsWhatHoldsAndTakesOverOnlyByItsButton) {
  MainWindow main;
  MemoryStore store;
  Settings settings;
  std::optional<frmOptions> dialog;
  const auto click = [&](const char *name) { Robot::click(Robot::control(*dialog, name)); };
  const auto alt = [&](Qt::Key code) {
    key(*dialog, code, QChar(code).toLower(), Qt::AltModifier);
  };
  const std::tuple<Settings, const char *, std::function<void()>, const char *> cases[] = {
      {{1, 0, 2}, "10010", [&] { click("cmdÜbernehmen"); }, "Sound=0 StdSize=3 Help=1 "},
      {{0, 1, 1}, "01100", [&] { alt(Qt::Key_Udiaeresis); }, "Sound=1 StdSize=3 Help=0 "},
      {{2, 2, 3}, "10001", [&] { click("cmdÜbernehmen"); }, "Sound=0 StdSize=3 Help=1 "},
      {{1, 1, 2}, "11010", [&] { click("cmdAbbruch"); }, ""},
      {{1, 1, 2}, "11010", [&] { alt(Qt::Key_A); }, ""},
      {{1, 1, 2}, "11010", [&] { key(*dialog, Qt::Key_Escape, "\x1b"); }, ""},
      {{1, 1, 2}, "11010", [&] { closeFrame(*dialog); }, ""}};
  for (const auto &[held, shown, way, stored] : cases) {
    settings = held;
    store.log.clear();
    dialog.emplace(&main, settings, store);
    dialog->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&*dialog));
    QString pressed;
    for (const char *name : {"chkSound", "chkHelp", "optSize0", "optSize1", "optSize2"})
      pressed += Robot::control<BlueButton>(*dialog, name).isChecked() ? '1' : '0';
    EXPECT_EQ(pressed, shown);
    auto &chkHelp = Robot::control(*dialog, "chkHelp");
    const QImage icon = chkHelp.grab().toImage();
    for (const char *name : {"chkSound", "chkHelp", "optSize2"})
      click(name);
    EXPECT_NE(chkHelp.grab().toImage(), icon);
    way();
    EXPECT_TRUE(closes(*dialog));
    EXPECT_EQ(store.log.remove("Korvel/Options/"), stored);
    EXPECT_EQ(settings.StdSize, *stored ? 3 : 2);
  }
}

} // namespace
