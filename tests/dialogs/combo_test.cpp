#include "clsIntelliCombo.h"
#include "windows.h"

#include <QAbstractItemView>
#include <QFile>
#include <QLineEdit>
#include <QTemporaryDir>

#include <sys/stat.h>

namespace {

struct IntelliCombo : testing::Test {
  QComboBox box;
  clsIntelliCombo combo;

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
  }
  /// Types, one key a character: `<` is Backspace, `>` Delete, `{` Home, `+` Down, `~` Enter, `v`
  /// drops the list down, `ö` is composed.
  void type(const QString &keys) {
    static const QMap<QChar, Qt::Key> special{
        {'{', Qt::Key_Home}, {'+', Qt::Key_Down}, {'~', Qt::Key_Return}};
    for (const QChar c : keys)
      if (c == 'v')
        box.showPopup();
      else if (c == QChar(0xf6))
        compose(box, c);
      else if (c == '<' || c == '>')
        key(box, c == '<' ? Qt::Key_Backspace : Qt::Key_Delete, "\b");
      else if (special.contains(c))
        key(box, special[c]);
      else
        key(box, Qt::Key(c.toUpper().unicode()), c);
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
      {"a", "A[nna] 0"},      {"ö", "Ö[rtel] 2"}, // umlauts have a case too
      {"Ant<", "Ant 1"},                          // deleted, not completed again
      {"Ant<o", "Anto[n] 1"},                     // from the selected entry on
      {"Ant<<n", "Ann 4"},                        // wrapping later: Ann comes before Anna from here
      {"St.", "St.[ Max] 3"},                     // the full stop is no Delete
      {"Annx<", "Ann 4"},     {"xAnn{>", "Ann 4"}, // exactly an entry
      {"Ant{x", "xAnton 1"},                       // in front of it all
      {"A>", "A 0"},          {"A<<", " -1"},      // an emptied box selects no entry
      {"van", "An[na] 0"},    {"vö", "Ö[rtel] 2"},  {"Antv<", "Ant 1"}, // the list takes no key
      {"Annaxv~", "Annax 0"}, {"xv++~", "Anton 1"}, // nor an entry over it, but a chosen one
  };
  for (const auto &[keys, expected] : cases) {
    fill();
    type(keys);
    EXPECT_EQ(state(), expected) << keys;
    EXPECT_FALSE(box.view()->isVisible()) << keys;
  }
  key(box, Qt::CTRL | Qt::Key_Backspace, "\b"); // the word, as ever
  EXPECT_EQ(box.currentText(), "");
}

TEST_F(IntelliCombo, FailuresTellAndLoseNothing) {
  const QTemporaryDir folder;
  const QString names = folder.filePath("names"), pipe = folder.filePath("pipe");
  ASSERT_EQ(mkfifo(qPrintable(pipe), 0600), 0);
  EXPECT_FALSE(combo.Load(names) || combo.Load(pipe) || combo.Save(pipe, true));
  EXPECT_EQ(combo.LastError(), QFileDevice::OpenError);
  QFile file(names);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("first\r\n" + QByteArray(1001, '9') + "\r\nopen"); // one too long to be a name
  file.close();
  box.setEditText("typed");
  EXPECT_TRUE(combo.Load(names, true));
  EXPECT_EQ(state(), "typed -1");
  EXPECT_TRUE(combo.Save(names, true) && combo.Load(names));
  EXPECT_EQ(box.itemText(3), "open") << "twice, and the second time on lines of their own";
}

} // namespace
