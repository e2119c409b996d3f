#include "frmNeu.h"
#include "windows.h"

#include <QLineEdit>

namespace {

const QString kFull = "abcdefghijklmn"; // 14 characters

struct frmNeuTest : testing::Test {
  QWidget main;
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
};

TEST_F(frmNeuTest, AFullNameTakesDeleteAndNothingThatTypes) {
  open(1, kFull);
  auto &cboName = Robot::control<QComboBox>(*dialog, "cboName");
  key(*dialog, Qt::Key_Odiaeresis, "ö");
  key(*dialog, Qt::Key_Backspace, "\b");
  compose(cboName, "ni");
  EXPECT_EQ(edit->text(), kFull) << "though all is selected";
  edit->setCursorPosition(4);
  key(*dialog, Qt::Key_Delete, "\x7f");
  key(*dialog, Qt::ALT | Qt::Key_Y, "y"); // no access key
  compose(cboName, "éü");
  EXPECT_EQ(edit->text(), "abcdéfghijklmn") << "as far as it has room";
  cboName.addItems({"first", "Friedrich-Wilhelm der Große"});
  key(*dialog, Qt::Key_Down);
  EXPECT_EQ(edit->text(), "Friedrich-Wilhelm der Große");
}

TEST_F(frmNeuTest, EachWayOutStartsItsGameOnceOrNone) {
  const std::tuple<int, QString, const char *, QString> cases[] = {
      {2, "", "cmdOK", "2 'Unbekannt'"},
      {3, " J\nMoritz\r\n", "cmdOK", "3 ' J'"},
      {1, "Jörg", "optSize2 optSize0 cmdOK", "1 'Jörg'"},
      {2, kFull, "Alt+O", "2 '" + kFull + "'"},
      {1, "Jörg", "cmdAbbruch", ""},
      {1, "Jörg", "frame", ""},
  };
  for (const auto &[size, player, way, expected] : cases) {
    open(size, player);
    act(*dialog, way);
    // an access key clicks only when its button has been seen pressed
    EXPECT_TRUE(QTest::qWaitFor([this] { return !dialog->isVisible(); })) << way;
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
    EXPECT_TRUE(dialog->isVisible() && edit->text() == "Jörg") << qPrintable(visited.last());
    key(*dialog, Qt::Key_Tab, "\t");
  }
  EXPECT_EQ(visited.join(' '), "cboName optSize0 optSize1 optSize2 cmdOK cmdAbbruch cboName");
}

} // namespace
