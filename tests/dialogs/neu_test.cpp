#include "frmNeu.h"
#include "windows.h"

#include <QClipboard>
#include <QLineEdit>

namespace {

const QString kFull = "abcdefghijklmn"; // 14 characters

struct frmNeuTest : testing::Test {
  MainWindow main;
  QString started; ///< size and name of the game
  std::optional<frmNeu> dialog;
  QLineEdit *edit = nullptr;

  void open(int size, const QString &name) {
    started.clear();
    dialog.emplace(&main, size, name, "", [this](int chosen, const QString &player) {
      EXPECT_FALSE(dialog->isVisible());
      started += QString("%1 '%2'").arg(chosen).arg(player);
    });
    edit = dialog->findChild<QLineEdit *>();
    dialog->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&*dialog));
  }
  void click(const char *name) { Robot::click(Robot::control(*dialog, name)); }
};

TEST_F(frmNeuTest, AFullNameTakesDeleteAndNothingThatTypes) {
  const std::tuple<Qt::Key, QString, Qt::KeyboardModifiers> typing[] = {
      {Qt::Key_Odiaeresis, "Ö", Qt::ShiftModifier},
      {Qt::Key_Space, " ", {}},
      {Qt::Key_V, "\x16", Qt::ControlModifier},
      {Qt::Key_Backspace, "\b", {}}};
  QApplication::clipboard()->setText("pasted");
  open(1, kFull);
  auto &cboName = Robot::control<QComboBox>(*dialog, "cboName");
  for (const auto &[code, text, modifiers] : typing) {
    key(*dialog, code, text, modifiers);
    QInputMethodEvent composed("ni", {});
    QApplication::sendEvent(&cboName, &composed);
    EXPECT_EQ(edit->text(), kFull) << code << ", with all selected";
  }
  edit->setCursorPosition(4);
  key(*dialog, Qt::Key_Delete, "\x7f");
  key(*dialog, Qt::Key_Y, "y", Qt::AltModifier); // no access key
  compose(cboName, "éü");
  EXPECT_EQ(edit->text(), "abcdéfghijklmn") << "as far as it has room";
  cboName.addItems({"first", "Friedrich-Wilhelm der Große"});
  key(*dialog, Qt::Key_Down);
  EXPECT_EQ(edit->text(), "Friedrich-Wilhelm der Große");
}

TEST_F(frmNeuTest, EachWayOutStartsItsGameOnceOrNone) {
  const std::tuple<int, QString, std::function<void()>, QString> cases[] = {
      {1, "Jörg", [&] { click("cmdOK"); }, "1 'Jörg'"},
      {2, "", [&] { click("cmdOK"); }, "2 'Unbekannt'"},
      {3, " J\nMoritz\r\n", [&] { click("cmdOK"); }, "3 ' J'"},
      {1, "Jörg", [&] { click("optSize2"), click("optSize0"), click("cmdOK"); }, "1 'Jörg'"},
      {2, kFull, [&] { key(*dialog, Qt::Key_O, "o", Qt::AltModifier); }, "2 '" + kFull + "'"},
      {1, "Jörg", [&] { click("cmdAbbruch"); }, ""},
      {1, "Jörg", [&] { key(*dialog, Qt::Key_A, "a", Qt::AltModifier); }, ""},
      {1, "Jörg", [&] { closeFrame(*dialog); }, ""},
  };
  for (const auto &[size, player, way, expected] : cases) {
    open(size, player);
    EXPECT_EQ(dialog->GetSize(), size);
    way();
    EXPECT_TRUE(closes(*dialog));
    EXPECT_EQ(started, expected);
  }
}

TEST_F(frmNeuTest, EscapeDoesNothingNorEnterInTheName) {
  open(2, "Jörg");
  EXPECT_EQ(edit->selectedText(), "Jörg") << "ready to be overwritten";
  QStringList visited;
  for (int i = 0; i < 7; ++i) {
    visited << QApplication::focusWidget()->objectName();
    if (visited.last() == "cboName")
      key(*dialog, Qt::Key_Return, "\r");
    key(*dialog, Qt::Key_Escape, "\x1b");
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(edit->text(), "Jörg");
    key(*dialog, Qt::Key_Tab, "\t");
  }
  EXPECT_EQ(visited.join(' '), "cboName optSize0 optSize1 optSize2 cmdOK cmdAbbruch cboName");
  dialog->hide();
  dialog->show();
  EXPECT_EQ(dialog->focusWidget()->objectName(), "cboName");
}

} // namespace
