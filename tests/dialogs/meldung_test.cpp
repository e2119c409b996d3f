#include "frmMeldung.h"
#include "windows.h"

namespace {

TEST(frmMeldung, EachWayOutHasItsAnswer) {
  const auto click = [](const char *button) {
    return [=](QDialog &box) { Robot::click(Robot::control(box, button)); };
  };
  const auto press = [](Qt::Key code, const char *text, Qt::KeyboardModifiers modifiers = {}) {
    return [=](QDialog &box) { key(box, code, text, modifiers); };
  };
  const std::tuple<const char *, std::function<void(QDialog &)>, bool> cases[] = {
      {"Ja", click("cmdOK"), true},
      {"frame after Ja", closeFrame, false}, // the answer before must not stick
      {"Alt+J", press(Qt::Key_J, "j", Qt::AltModifier), true},
      {"Escape after Ja", press(Qt::Key_Escape, "\x1b"), false},
      {"Nein", click("cmdAbbruch"), false},
      {"Alt+N", press(Qt::Key_N, "n", Qt::AltModifier), false},
      {"Space on Ja", press(Qt::Key_Space, " "), true},
      {"Enter on Ja", press(Qt::Key_Return, "\r"), true},
      {"Enter on Nein",
       [](QDialog &box) {
         Robot::control(box, "cmdAbbruch").setFocus();
         key(box, Qt::Key_Enter, "\r", Qt::KeypadModifier);
       },
       false},
  };
  MainWindow main;
  for (const auto &[way, deed, answer] : cases) {
    SCOPED_TRACE(way);
    Robot::onDialog([&, text = way, &act = deed](QDialog &box) {
      EXPECT_TRUE(QTest::qWaitForWindowActive(&box));
      EXPECT_EQ(Robot::control<QLabel>(box, "lblMeldung").text(), text);
      act(box);
      EXPECT_TRUE(closes(box));
      box.hide(); // so that a fault doesn't hang the test
    });
    EXPECT_EQ(ask(&main, way), answer);
  }
}

} // namespace
