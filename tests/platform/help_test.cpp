// The help book as it is built, in its window.

#include "QtHelpViewer.h"

#include <QFile>
#include <QHelpContentWidget>
#include <QHelpIndexModel>
#include <QHelpLink>
#include <QScrollBar>
#include <QTest>
#include <QToolButton>
#include <gtest/gtest.h>

#include <sys/stat.h>

namespace {

using Entry = HelpViewer::Entry;

constexpr const char *kNoBook = "Die Hilfedatei fehlt oder ist beschädigt.";

struct Help : testing::Test {
  const QByteArray temporaryBefore = qgetenv("TMPDIR");
  QtHelpViewer viewer;

  void TearDown() override { qputenv("TMPDIR", temporaryBefore); }

  template <typename T>
  T &part() {
    return *viewer.window()->findChild<T *>();
  }
  QString page() { return part<QTextBrowser>().source().toString().section('/', -1); }
  QAction &action(const QString &text) {
    for (QAction *found : viewer.window()->findChildren<QAction *>())
      if (found->text() == text)
        return *found;
    throw std::runtime_error("no action " + text.toStdString());
  }
};

TEST_F(Help, OpensOnContentsAndIndexBesideTheText) {
  ASSERT_EQ(viewer.show(KORVEL_BOOK, Entry::contents), "");
  auto &tabs = part<QTabWidget>();
  EXPECT_EQ(tabs.tabText(tabs.currentIndex()), "Inhalt");
  auto &contents = part<QHelpContentWidget>();
  ASSERT_TRUE(QTest::qWaitFor([&] { return contents.model()->rowCount() == 10; }));
  EXPECT_EQ(page(), "korvel.html");
  EXPECT_TRUE(QTest::qWaitFor([&] { return contents.currentIndex().row() == 0; }));
  emit contents.clicked(contents.model()->index(3, 0));
  EXPECT_EQ(page(), "schlacht.html");
  EXPECT_EQ(contents.currentIndex().row(), 3);

  const HelpWindow *window = viewer.window();
  ASSERT_EQ(viewer.show(KORVEL_BOOK, Entry::index), "");
  EXPECT_EQ(viewer.window(), window) << "the same window comes to the front";
  EXPECT_EQ(tabs.tabText(tabs.currentIndex()), "Index");
  auto &search = part<QLineEdit>();
  auto &index = part<QListView>();
  ASSERT_TRUE(QTest::qWaitFor([&] { return index.model()->rowCount() > 60; }));
  QTest::keyClicks(&search, "ÜBERNEHM");
  ASSERT_EQ(index.model()->rowCount(), 1);
  QTest::keyClick(&search, Qt::Key_Return);
  EXPECT_EQ(page(), "optionen.html#uebernehmen");
  EXPECT_EQ(contents.currentIndex().row(), 6);
  EXPECT_FALSE(action("Vor").isEnabled());
  search.clear();
  QTest::keyClicks(&search, "tr");
  QTest::keyClick(&search, Qt::Key_Return);
  EXPECT_EQ(index.currentIndex().data().toString().left(2), "Tr");
  action("Zurück").trigger();
  search.clear();

  action("Zurück").trigger();
  EXPECT_EQ(page(), "schlacht.html");
  EXPECT_EQ(contents.currentIndex().row(), 3);
  action("Vor").trigger();
  EXPECT_EQ(page(), "optionen.html#uebernehmen");

  viewer.close();
  EXPECT_EQ(viewer.window(), nullptr);
  ASSERT_EQ(viewer.show(KORVEL_BOOK, Entry::contents), "");
  EXPECT_EQ(page(), "korvel.html") << "nothing is remembered";
  viewer.window()->close();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(viewer.window(), nullptr);
}

TEST_F(Help, KeywordsAreInGermanOrderAndLeadSomewhere) {
  const QTemporaryDir temporary;
  qputenv("TMPDIR", temporary.path().toLocal8Bit());
  ASSERT_EQ(viewer.show(KORVEL_BOOK, Entry::index), "");
  auto &index = part<QListView>();
  ASSERT_TRUE(QTest::qWaitFor([&] { return index.model()->rowCount() > 60; }));
  EXPECT_TRUE(QTest::qWaitFor([&] { return QDir(temporary.path()).isEmpty(); }))
      << "a killed game leaves nothing";
  QStringList words;
  auto &text = part<QTextBrowser>();
  for (int row = 0; row < index.model()->rowCount(); ++row) {
    words << index.model()->index(row, 0).data().toString();
    text.setSource(QUrl());
    emit index.clicked(index.model()->index(row, 0));
    EXPECT_GT(text.toPlainText().size(), 200) << words.last().toStdString();
    EXPECT_EQ(text.horizontalScrollBar()->maximum(), 0) << words.last().toStdString();
  }
  EXPECT_LT(words.indexOf("Länge der Boote"), words.indexOf("Leiste"));
  EXPECT_LT(words.indexOf("Übernehmen"), words.indexOf("Zähler"));
}

TEST_F(Help, WhatIsNoBookOpensNothing) {
  const QTemporaryDir folder;
  QFile book(KORVEL_BOOK);
  ASSERT_TRUE(book.open(QIODevice::ReadOnly));
  const QByteArray whole = book.readAll();
  QByteArray holes = whole;
  for (qsizetype i = 4096; i < holes.size(); i += 4096)
    holes.replace(i, 64, QByteArray(64, 'x'));
  const QByteArray broken[] = {"", "no book", whole.left(3000), whole.left(whole.size() / 2),
                               holes};
  EXPECT_EQ(viewer.show(folder.path(), Entry::contents), kNoBook);
  EXPECT_EQ(viewer.show(folder.filePath("missing"), Entry::contents), kNoBook);
  ASSERT_EQ(mkfifo(qPrintable(folder.filePath("pipe")), 0600), 0);
  EXPECT_EQ(viewer.show(folder.filePath("pipe"), Entry::contents), kNoBook);
  for (const QByteArray &content : broken) {
    const QString path = folder.filePath(QString::number(qHash(content)));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
    file.close();
    EXPECT_EQ(viewer.show(path, Entry::index), kNoBook) << content.size();
    EXPECT_EQ(viewer.window(), nullptr);
  }
  qputenv("TMPDIR", "/proc"); // where nobody can write
  EXPECT_NE(viewer.show(KORVEL_BOOK, Entry::index), kNoBook);
  EXPECT_EQ(viewer.window(), nullptr);
  qputenv("TMPDIR", temporaryBefore);
  EXPECT_EQ(viewer.show(KORVEL_BOOK, Entry::index), "");
}

} // namespace
