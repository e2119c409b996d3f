#include "clsIntelliCombo.h"
#include "windows.h"

#include <QAbstractItemView>
#include <QFile>
#include <QInputMethodEvent>
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
  void fill(const QStringList &entries) {
    box.clear();
    box.addItems(entries);
    box.setCurrentIndex(-1);
    box.clearEditText();
  }
  /// Types, one key a character: `<` is Backspace, `>` Delete, `{` Home, `}` End, `*` selects all,
  /// `v` drops the list down, `+` is Down, `~` Enter.
  void type(const QString &keys) {
    for (const QChar c : keys) {
      if (c == '<')
        key(main, Qt::Key_Backspace, "\b");
      else if (c == '>')
        key(main, Qt::Key_Delete, "\x7f");
      else if (c == '{' || c == '}')
        key(main, c == '{' ? Qt::Key_Home : Qt::Key_End);
      else if (c == '*')
        box.lineEdit()->selectAll();
      else if (c == 'v')
        box.showPopup();
      else if (c == '+')
        key(main, Qt::Key_Down);
      else if (c == '~')
        key(main, Qt::Key_Return, "\r");
      else
        key(main, Qt::Key(c.toUpper().unicode()), c);
    }
  }
  /// The text with its selection in brackets, and the selected entry.
  QString state() {
    QString text = box.currentText();
    if (const QLineEdit &edit = *box.lineEdit(); edit.hasSelectedText())
      text.insert(edit.selectionEnd(), ']').insert(edit.selectionStart(), '[');
    return QString("%1 %2").arg(text).arg(box.currentIndex());
  }
  QString path(const char *name) { return folder.filePath(name); }
  void write(const char *name, const QByteArray &content) {
    QFile file(path(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
  }
  QByteArray content(const char *name) {
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : "cannot be read";
  }
  QStringList entries() {
    QStringList texts;
    for (int i = 0; i < box.count(); ++i)
      texts << box.itemText(i);
    return texts;
  }
};

TEST_F(IntelliCombo, CompletesKeyByKey) {
  fill({"Anna", "Anton", "Örtel", "St. Max", "Ann", "anna"});
  const std::pair<const char *, const char *> cases[] = {
      {"A", "A[nna] 0"},
      {"a", "A[nna] 0"},
      {"AN", "An[na] 0"},
      {"Ant", "Ant[on] 1"},
      {"Ant<", "Ant 1"}, // deleted, not completed again
      {"Ant<<", "An 1"},
      {"Ant<n", "Antn 1"},    // the selection in the list stays
      {"Ant<o", "Anto[n] 1"}, // from the selected entry on
      {"Ant<<n", "Ann 4"},    // wrapping later: Ann comes before Anna from here
      {"Ann<a", "anna 5"},
      {"ö", "Ö[rtel] 2"},     // umlauts have a case too
      {"St.", "St.[ Max] 3"}, // the full stop is no Delete
      {"x", "x -1"},
      {"Anx<", "An 0"},
      {"Annx<", "Ann 4"}, // exactly an entry,
                          // whatever its case
      {"xAnn{>", "Ann 4"},
      {"Ant{x", "xAnton 1"}, // in front of it all
      {"A{>", "nna 0"},
      {"A>", "A 0"},
      {"Anna}n", "Annan 0"},
      {"A*<", " -1"}, // an emptied box selects no entry
      {"Ant*<<", " -1"},
      {"A*>", " -1"},
      {"Ant*>>", " -1"},
      {"vx~", "x -1"}, // the open list takes no key from the text
      {"van", "An[na] 0"},
      {"Antv<", "Ant 1"},
      {"Annaxv~", "Annax 0"}, // nor an entry over it
      {"xv++~", "Anton 1"},
  };
  for (const auto &[keys, expected] : cases) {
    fill(entries());
    type(keys);
    EXPECT_EQ(state(), expected) << keys;
  }
}

TEST_F(IntelliCombo, LivesWithMouseWheelListAndOtherKeys) {
  fill({"Anna", "Anton", "Berta"});
  type("Anton}");
  QTest::mouseDClick(box.lineEdit(), Qt::LeftButton, {}, {12, 10});
  EXPECT_EQ(state(), "[Anton] 1");
  type("b");
  EXPECT_EQ(state(), "B[erta] 2");
  key(main, Qt::Key_Up);
  EXPECT_EQ(box.currentText(), "Anton");
  QWheelEvent wheel({5, 5}, box.mapToGlobal(QPointF(5, 5)), {}, {0, 120}, {}, {}, Qt::NoScrollPhase,
                    false);
  QApplication::sendEvent(&box, &wheel);
  EXPECT_EQ(box.currentText(), "Anna");
  box.showPopup();
  const QRect entry = box.view()->visualRect(box.model()->index(2, 0));
  QTest::mouseClick(box.view()->viewport(), Qt::LeftButton, {}, entry.center());
  EXPECT_EQ(state(), "Berta 2");
  box.setCurrentIndex(0);
  box.lineEdit()->selectAll();
  key(main, Qt::Key_X, "\x18", Qt::ControlModifier); // cut
  EXPECT_EQ(box.currentText(), "");
  key(main, Qt::Key_V, "\x16", Qt::ControlModifier);
  EXPECT_EQ(state().section(' ', 0, 0), "Anna") << "pasted, not completed";
  key(main, Qt::Key_Backspace, "\b", Qt::ControlModifier); // the word
  EXPECT_EQ(box.currentText(), "");
}

TEST_F(IntelliCombo, CompletesWhatADeadKeyComposes) {
  fill({"Anna", "Émile"});
  const auto compose = [&](const QString &preedit, const QString &commit) {
    QInputMethodEvent event(preedit, {});
    event.setCommitString(commit);
    QApplication::sendEvent(&box, &event);
  };
  compose("´", "");
  EXPECT_EQ(state(), " -1");
  compose("", "é");
  EXPECT_EQ(state(), "É[mile] 1");
  compose("", "x");
  EXPECT_EQ(state(), "Éx 1");
}

TEST_F(IntelliCombo, CompletesNothingWhenDisabledOrLetGo) {
  fill({"Anna"});
  combo.setEnabled(false);
  type("a");
  EXPECT_EQ(state(), "a -1");
  combo.setEnabled(true);
  QComboBox other(&main);
  other.setEditable(true);
  combo.setCombo(&other);
  type("<a");
  EXPECT_EQ(state(), "a -1");
  EXPECT_EQ(combo.Combo(), &other);
  combo.setCombo(nullptr);
  write("names", "Berta\r\n");
  EXPECT_FALSE(combo.Load(path("names")));
  EXPECT_FALSE(combo.Save(path("names")));
  EXPECT_EQ(content("names"), "Berta\r\n");
}

TEST_F(IntelliCombo, LoadsALongFile) {
  QByteArray lines;
  for (int i = 0; i < 100'000; ++i)
    lines += QByteArray::number(i) + "\r\n";
  write("names", lines + QByteArray(1001, '9') + "\r\n"); // too long to be a name
  EXPECT_TRUE(combo.Load(path("names")));
  EXPECT_EQ(box.count(), 100'000);
  type("99999");
  EXPECT_EQ(state(), "99999 99999");
}

TEST_F(IntelliCombo, FailuresTellAndLoseNothing) {
  fill({"Anna"});
  EXPECT_FALSE(combo.Load(path("missing"), true));
  EXPECT_EQ(entries(), QStringList("Anna"));
  EXPECT_EQ(combo.LastError(), QFileDevice::OpenError);
  EXPECT_FALSE(combo.Load(folder.path()));
  EXPECT_EQ(entries(), QStringList()) << "cleared all the same";
  write("large", "");
  ASSERT_TRUE(QFile::resize(path("large"), 5'000'000'000));
  EXPECT_FALSE(combo.Load(path("large")));
  EXPECT_FALSE(combo.Save(path("large"), true));
  EXPECT_EQ(QFile(path("large")).size(), 5'000'000'000);
  EXPECT_FALSE(combo.Save(path("nowhere/names")));
  EXPECT_FALSE(combo.Save(folder.path(), true));
  ASSERT_EQ(mkfifo(qPrintable(path("pipe")), 0600), 0);
  EXPECT_FALSE(combo.Load(path("pipe")));
  EXPECT_FALSE(combo.Save(path("pipe"), true));
  EXPECT_FALSE(combo.Save(folder.path()));
  EXPECT_TRUE(combo.Save(path("names")));
  EXPECT_EQ(combo.LastError(), QFileDevice::WriteError) << "of the last that failed";
}

TEST_F(IntelliCombo, SaveAndLoadGoRound) {
  const QStringList names{"Jörg", "", "  ", "Zoë €", "Jörg"};
  fill(names);
  EXPECT_TRUE(combo.Save(path("names")));
  EXPECT_EQ(content("names"), "J\xf6rg\r\n\r\n  \r\nZo\xeb \x80\r\nJ\xf6rg\r\n");
  box.setEditText("typed");
  EXPECT_TRUE(combo.Load(path("names"), true));
  EXPECT_EQ(entries(), names + names);
  EXPECT_EQ(state(), "typed -1") << "appending leaves what was typed";
  EXPECT_TRUE(combo.Save(path("names"), true));
  EXPECT_TRUE(combo.Load(path("names")));
  EXPECT_EQ(entries(), names + names + names);
  fill({"Ωmega"});
  EXPECT_TRUE(combo.Save(path("names")));
  EXPECT_EQ(content("names"), "?mega\r\n");
  for (const QByteArray before : {"", "open end", "Anna\r", "Anna\r\n"}) {
    write("names", before);
    EXPECT_TRUE(combo.Save(path("names"), true));
    EXPECT_EQ(content("names"), before + (before == "open end" ? "\r\n" : "") + "?mega\r\n");
  }
}

} // namespace
