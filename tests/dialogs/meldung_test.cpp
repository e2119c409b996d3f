#include "frmMeldung.h"
#include "windows.h"

namespace {

TEST(frmMeldung, EachWayOutHasItsAnswer) {
  const std::tuple<const char *, std::function<void(QDialog &)>, bool> cases[] = {
      {"Ja", [](QDialog &box) { Robot::click(Robot::control(box, "cmdOK")); }, true},
      {"frame after Ja", closeFrame, false}, // the answer before must not stick
      {"Alt+J", [](QDialog &box) { key(box, Qt::Key_J, "j", Qt::AltModifier); }, true},
      {"Escape", [](QDialog &box) { key(box, Qt::Key_Escape, "\x1b"); }, false},
      {"Space on Ja", [](QDialog &box) { key(box, Qt::Key_Space, " "); }, true},
      {"Alt+N", [](QDialog &box) { key(box, Qt::Key_N, "n", Qt::AltModifier); }, false},
      {"Enter on Ja", [](QDialog &box) { key(box, Qt::Key_Enter, "\r"); }, true},
      {"Nein", [](QDialog &box) { Robot::click(Robot::control(box, "cmdAbbruch")); }, false},
  };
  MainWindow main;
  for (const auto &[way, act, answer] : cases) {
    Robot::onDialog([&, &text = way, &deed = act](QDialog &box) {
      EXPECT_EQ(Robot::control<QLabel>(box, "lblMeldung").text(), text);
      EXPECT_TRUE(QTest::qWaitForWindowActive(&box));
      deed(box);
      EXPECT_TRUE(closes(box)) << text;
      box.hide(); // so that a fault doesn't hang the test
    });
    EXPECT_EQ(ask(&main, way), answer) << way;
  }
}

} // namespace
