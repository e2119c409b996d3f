#include "clsIntelliCombo.h"
#include "windows.h"

#include <QAbstractItemView>
#include <QFile>
#include <QLineEdit>
#include <QTemporaryDir>

#include <sys/stat.h>

namespace {

struct IntelliCombo : testing::Test {
  MainWindow main;
  QComboBox box{&main};
  clsIntelliCombo combo;
  QTemporaryDir folder;

  IntelliCombo() {
    box.setEditable(true);
    box.setInsertPolicy(QComboBox::NoInsert);
    combo.setCombo(&box);
    box.show();
    box.setFocus();
  }
  void fill() {
    box.clear();
    box.addItems({"Anna", "Anton", "Örtel", "St. Max", "Ann", "anna"});
    box.setCurrentIndex(-1);
    box.clearEditText();
  }
  /// Types, one key a character: `<` is Backspace, `>` Delete, `{` Home, `+` Down, `~` Enter, `v`
  /// drops the list down, `*` selects all, `ö` is composed.
  void type(const QString &keys) {
    static const QMap<QChar, Qt::Key> special{{'<', Qt::Key_Backspace},
                                              {'>', Qt::Key_Delete},
                                              {'{', Qt::Key_Home},
                                              {'+', Qt::Key_Down},
                                              {'~', Qt::Key_Return}};
    for (const QChar c : keys)
      if (c == '*')
        box.lineEdit()->selectAll();
      else if (c == 'v')
        box.showPopup();
      else if (c == QChar(0xf6))
        compose(box, c);
      else if (special.contains(c))
        key(main, special[c], c == '<' || c == '>' ? "\b" : "");
      else
        key(main, Qt::Key(c.toUpper().unicode()), c);
  }
  /// The text with its selection in brackets, and the selected entry.
  QString state() {
    QString text = box.currentText();
    if (const QLineEdit &edit = *box.lineEdit(); edit.hasSelectedText())
      text.insert(edit.selectionEnd(), ']').insert(edit.selectionStart(), '[');
    return QString("%1 %2").arg(text).arg(box.currentIndex());
  }
};

TEST_F(IntelliCombo, CompletesKeyByKey) {
  const std::pair<const char *, const char *> cases[] = {
      {"a", "A[nna] 0"},      {"Ant", "Ant[on] 1"},
      {"Ant<", "Ant 1"},                           // deleted, not completed again
      {"Ant<<", "An 1"},      {"Ant<n", "Antn 1"}, // the selection in the list stays
      {"Ant<o", "Anto[n] 1"},                      // from the selected entry on
      {"Ant<<n", "Ann 4"},                        // wrapping later: Ann comes before Anna from here
      {"Ann<a", "anna 5"},    {"ö", "Ö[rtel] 2"}, // umlauts have a case too
      {"St.", "St.[ Max] 3"},                     // the full stop is no Delete
      {"x", "x -1"},          {"Annx<", "Ann 4"}, // exactly an entry
      {"xAnn{>", "Ann 4"},    {"Ant{x", "xAnton 1"}, // in front of it all
      {"A{>", "nna 0"},       {"A>", "A 0"},
      {"A*<", " -1"},                          // an emptied box selects no entry
      {"A*>", " -1"},         {"vx~", "x -1"}, // the open list takes no key from the text
      {"van", "An[na] 0"},    {"vö", "Ö[rtel] 2"},
      {"Antv<", "Ant 1"},     {"Annaxv~", "Annax 0"}, // nor an entry over it
      {"xv++~", "Anton 1"},
  };
  for (const auto &[keys, expected] : cases) {
    fill();
    type(keys);
    EXPECT_EQ(state(), expected) << keys;
    EXPECT_FALSE(box.view()->isVisible()) << keys;
  }
  key(main, Qt::Key_Backspace, "\b", Qt::ControlModifier); // the word, as ever
  EXPECT_EQ(box.currentText(), "");
  combo.setEnabled(false);
  type("a");
  EXPECT_EQ(box.currentText(), "a");
}

TEST_F(IntelliCombo, FailuresTellAndLoseNothing) {
  const QString names = folder.filePath("names"), pipe = folder.filePath("pipe");
  fill();
  EXPECT_FALSE(combo.Load(names, true));
  EXPECT_EQ(combo.LastError(), QFileDevice::OpenError);
  EXPECT_EQ(box.count(), 6);
  ASSERT_EQ(mkfifo(qPrintable(pipe), 0600), 0);
  EXPECT_FALSE(combo.Load(pipe) || combo.Save(pipe, true));
  EXPECT_EQ(box.count(), 0) << "cleared all the same";
  fill();
  EXPECT_TRUE(combo.Save(names));
  EXPECT_FALSE(combo.Save(folder.path()));
  EXPECT_EQ(combo.LastError(), QFileDevice::WriteError);
  QFile file(names);
  ASSERT_TRUE(file.open(QIODevice::ReadWrite) && file.seek(file.size() - 2));
  file.write("--" + QByteArray(1001, '9') + "\r\nopen"); // a line too long to be a name
  file.close();
  EXPECT_TRUE(combo.Save(names, true));
  box.clear();
  box.setEditText("typed");
  EXPECT_TRUE(combo.Load(names, true));
  EXPECT_EQ(box.count(), 5 + 1 + 6);
  EXPECT_EQ(box.itemText(5), "open");
  EXPECT_EQ(state(), "typed -1");
  ASSERT_TRUE(QFile::resize(names, 5'000'000'000));
  EXPECT_FALSE(combo.Load(names) || combo.Save(names, true));
  EXPECT_EQ(QFile(names).size(), 5'000'000'000);
}

} // namespace
