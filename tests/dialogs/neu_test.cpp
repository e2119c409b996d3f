#include "frmNeu.h"
#include "windows.h"

#include <QClipboard>
#include <QInputMethodEvent>
#include <QLineEdit>

namespace {

const QString kFull = "abcdefghijklmn"; // 14 characters

struct frmNeuTest : testing::Test {
  MainWindow main;
  QString ComboPath; ///< of no file
  QString started;   ///< size and name of the game
  std::unique_ptr<frmNeu> dialog;
  QComboBox *cboName = nullptr;
  QLineEdit *edit = nullptr;

  void open(int size, const QString &name) {
    started.clear();
    dialog = std::make_unique<frmNeu>(&main, size, name, ComboPath,
                                      [this](int chosen, const QString &player) {
                                        EXPECT_FALSE(dialog->isVisible());
                                        started += QString("%1 '%2'").arg(chosen).arg(player);
                                      });
    cboName = &Robot::control<QComboBox>(*dialog, "cboName");
    edit = cboName->lineEdit();
    dialog->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
  }
  QWidget &control(const QString &name) { return Robot::control(*dialog, name); }
  QString name() const { return cboName->currentText(); }
  void compose(const QString &text, const QString &commit) {
    QInputMethodEvent event(text, {});
    event.setCommitString(commit);
    QApplication::sendEvent(QApplication::focusObject(), &event);
  }
};

TEST_F(frmNeuTest, OpensWithTheLastGameReadyToBeOverwritten) {
  for (int size = 0; size <= 3; ++size) {
    open(size, "Jörg");
    EXPECT_EQ(dialog->GetSize(), size);
    EXPECT_EQ(edit->selectedText(), "Jörg");
    key(*dialog, Qt::Key_X, "x");
    EXPECT_EQ(name(), "x");
    control("cmdOK").setFocus();
    dialog->hide();
    dialog->show();
    EXPECT_EQ(dialog->focusWidget(), cboName);
    for (const int pressed : {2, 1, 3, 3}) { // one at a time
      Robot::click(control(QString("optSize%1").arg(pressed - 1)));
      for (int i = 1; i <= 3; ++i)
        EXPECT_EQ(control(QString("optSize%1").arg(i - 1)).property("checked"), i == pressed);
      EXPECT_EQ(dialog->GetSize(), pressed);
    }
  }
}

TEST_F(frmNeuTest, AFullNameDiscardsEveryTypingKey) {
  const std::tuple<Qt::Key, QString, Qt::KeyboardModifiers> keys[] = {
      {Qt::Key_Odiaeresis, "Ö", Qt::ShiftModifier},
      {Qt::Key_5, "5", Qt::KeypadModifier},
      {Qt::Key_Space, " ", {}},
      {Qt::Key_V, "\x16", Qt::ControlModifier},
      {Qt::Key_Backspace, "\b", {}},
      {Qt::Key_X, "\x18", Qt::ControlModifier}};
  QApplication::clipboard()->setText("pasted");
  for (const QString &full : {kFull, kFull + " and more"})
    for (const bool selected : {true, false}) {
      open(1, full);
      selected ? edit->selectAll() : edit->setCursorPosition(3);
      for (const auto &[code, text, modifiers] : keys) {
        key(*dialog, code, text, modifiers);
        EXPECT_EQ(name(), full) << code;
      }
      compose("ni", "");
      EXPECT_EQ(edit->displayText(), full);
      compose("", "é");
      EXPECT_EQ(name(), full);
      EXPECT_EQ(edit->hasSelectedText(), selected);
    }
}

TEST_F(frmNeuTest, AFullNameStillTakesDeleteArrowsAndAccessKeys) {
  open(2, kFull);
  key(*dialog, Qt::Key_Home);
  key(*dialog, Qt::Key_Delete, "\x7f");
  key(*dialog, Qt::Key_X, "x"); // full again
  key(*dialog, Qt::Key_Y, "y");
  EXPECT_EQ(name(), "xbcdefghijklmn");
  for (const auto code : {Qt::Key_End, Qt::Key_Left, Qt::Key_Left, Qt::Key_Right, Qt::Key_Delete})
    key(*dialog, code);
  EXPECT_EQ(name(), "xbcdefghijklm");
  compose("", "éü");
  EXPECT_EQ(name(), "xbcdefghijklmé") << "as far as it has room";
  edit->selectAll();
  key(*dialog, Qt::Key_Delete, "\x7f");
  EXPECT_EQ(name(), "");
  cboName->setEditText(kFull);
  key(*dialog, Qt::Key_O, "o", Qt::AltModifier);
  EXPECT_TRUE(closes(*dialog));
  EXPECT_EQ(started, "2 'abcdefghijklmn'");
}

TEST_F(frmNeuTest, ALongNameMayBeChosenFromTheList) {
  open(1, kFull);
  cboName->addItems({"first", "Friedrich-Wilhelm der Große"});
  cboName->setEditText(kFull);
  key(*dialog, Qt::Key_Down);
  EXPECT_EQ(name(), "Friedrich-Wilhelm der Große");
  Robot::click(control("cmdOK"));
  EXPECT_EQ(started, "1 'Friedrich-Wilhelm der Große'");
}

TEST_F(frmNeuTest, EachWayOutStartsItsGameOnceOrNone) {
  const auto click = [this](const char *button) {
    return [=, this] { Robot::click(control(button)); };
  };
  const std::tuple<int, QString, std::function<void()>, QString> cases[] = {
      {1, "Jörg", click("cmdOK"), "1 'Jörg'"},
      {2, "", click("cmdOK"), "2 'Unbekannt'"},
      {3, "   ", click("cmdOK"), "3 '   '"},
      {3, "Max\r\nMoritz\n", click("cmdOK"), "3 'Max'"},
      {0, " J g ", click("cmdOK"), "0 ' J g '"},
      {2, "Jörg",
       [this] {
         control("optSize0").setFocus();
         key(*dialog, Qt::Key_Return, "\r");
         control("cmdOK").setFocus();
         key(*dialog, Qt::Key_Return, "\r");
       },
       "1 'Jörg'"},
      {1, "Jörg", click("cmdAbbruch"), ""},
      {1, "Jörg", [this] { key(*dialog, Qt::Key_A, "a", Qt::AltModifier); }, ""},
      {1, "Jörg", [this] { closeFrame(*dialog); }, ""},
  };
  for (const auto &[size, player, way, expected] : cases) {
    open(size, player);
    way();
    EXPECT_TRUE(closes(*dialog));
    EXPECT_EQ(started, expected);
  }
}

TEST_F(frmNeuTest, EscapeDoesNothingNorEnterInTheName) {
  for (const QString &text : {QString("Jörg"), kFull}) {
    open(2, text);
    QStringList visited;
    for (int i = 0; i < 7; ++i) {
      visited << QApplication::focusWidget()->objectName();
      if (cboName->hasFocus())
        key(*dialog, Qt::Key_Return, "\r");
      key(*dialog, Qt::Key_Escape, "\x1b");
      EXPECT_TRUE(dialog->isVisible());
      EXPECT_EQ(dialog->GetSize(), 2);
      EXPECT_EQ(name(), text);
      key(*dialog, Qt::Key_Tab, "\t");
    }
    EXPECT_EQ(visited.join(' '), "cboName optSize0 optSize1 optSize2 cmdOK cmdAbbruch cboName");
    EXPECT_EQ(started, "");
  }
}

} // namespace
