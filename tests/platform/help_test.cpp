// The help book as it is built, in its window.

#include "QtHelpViewer.h"

#include <QDir>
#include <QHelpContentWidget>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTest>
#include <gtest/gtest.h>

#include <sys/stat.h>

namespace {

using Entry = HelpViewer::Entry;

template <typename T>
T &part(const QtHelpViewer &viewer) {
  return *viewer.window()->findChild<T *>();
}

TEST(Help, OneWalkThroughTheBook) {
  const QTemporaryDir folder;
  qputenv("TMPDIR", folder.path().toLocal8Bit());
  QtHelpViewer viewer;
  ASSERT_EQ(viewer.show(KORVEL_BOOK, Entry::contents), "");
  EXPECT_EQ(part<QTabWidget>(viewer).currentIndex(), 0);
  auto &contents = part<QHelpContentWidget>(viewer);
  auto &text = part<QTextBrowser>(viewer);
  const auto page = [&] { return text.source().toString().section('/', -1); };
  const auto content = [&](const QUrl &url) {
    return QString(text.loadResource(QTextDocument::HtmlResource, url).toByteArray());
  };
  const auto check = [&](const QString &from, const QUrl &to) {
    const QString found = content(to), mark = "name=\"" + to.fragment() + '"';
    EXPECT_TRUE(to.hasFragment() ? found.contains(mark) : !found.isEmpty()) << from.toStdString();
  };
  ASSERT_TRUE(QTest::qWaitFor([&] { return contents.currentIndex().row() == 0; }));
  QStringList pages;
  for (int row = 0; row < contents.model()->rowCount(); ++row) {
    emit contents.clicked(contents.model()->index(row, 0));
    EXPECT_EQ(contents.currentIndex().row(), row);
    EXPECT_EQ(text.horizontalScrollBar()->maximum(), 0);
    pages << page();
    const QRegularExpression link("(?:src|href)=\"([^\"]+)");
    for (const auto &found : link.globalMatch(content(text.source())))
      check(page() + found.captured(), text.source().resolved(found.captured(1)));
  }
  pages.sort();
  EXPECT_EQ(pages, QDir(KORVEL_PAGES).entryList({"*.html"}));

  HelpWindow *window = viewer.window();
  window->showMinimized();
  ASSERT_EQ(viewer.show(KORVEL_BOOK, Entry::index), "");
  EXPECT_TRUE(viewer.window() == window && !window->isMinimized());
  auto &index = part<QListView>(viewer);
  ASSERT_TRUE(QTest::qWaitFor([&] { return index.model()->rowCount() > 60; }));
  EXPECT_TRUE(QTest::qWaitFor([&] { return QDir(folder.path()).isEmpty(); }))
      << "a killed game leaves nothing";
  QString word;
  for (int row = 0; row < index.model()->rowCount(); ++row) {
    text.setSource(QUrl());
    emit index.clicked(index.model()->index(row, 0));
    word = index.model()->index(row, 0).data().toString();
    check(word, text.source());
  }
  EXPECT_EQ(word.left(1), "Z") << "German order, where no Ü is last";
  const QString last = page();
  QTest::keyClicks(window->focusWidget(), "ÜBERNEHM\r");
  EXPECT_EQ(page(), "optionen.html#uebernehmen");
  EXPECT_EQ(contents.currentIndex().row(), 6);
  part<QLineEdit>(viewer).setText("tr");
  EXPECT_EQ(index.currentIndex().data().toString().left(2), "Tr");
  QTest::keyClick(window, Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(page(), last);
  QTest::keyClick(window, Qt::Key_Right, Qt::AltModifier);
  EXPECT_EQ(page(), "optionen.html#uebernehmen");

  QTest::keyClick(window, Qt::Key_Escape);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  ASSERT_EQ(viewer.show(KORVEL_BOOK, Entry::contents), "");
  EXPECT_EQ(part<QTextBrowser>(viewer).source().fileName(), "korvel.html");
  viewer.close();
  EXPECT_EQ(viewer.window(), nullptr);
}

TEST(Help, WhatIsNoBookOpensNothing) {
  const QTemporaryDir folder;
  QtHelpViewer viewer;
  QFile book(KORVEL_BOOK), damaged(folder.filePath("damaged"));
  ASSERT_TRUE(book.open(QFile::ReadOnly) && damaged.open(QFile::WriteOnly));
  damaged.write(book.read(4096));
  while (!book.atEnd()) // holes in all pages of the file but the first
    damaged.write(book.read(4096).replace(0, 64, QByteArray(64, 'x')));
  damaged.close();
  ASSERT_EQ(mkfifo(qPrintable(folder.filePath("pipe")), 0600), 0);
  for (const char *name : {"missing", "pipe", "damaged"}) {
    const QString failure = viewer.show(folder.filePath(name), Entry::index);
    EXPECT_EQ(failure, "Die Hilfedatei fehlt oder ist beschädigt.") << name;
    EXPECT_EQ(viewer.window(), nullptr) << name;
  }
  qputenv("TMPDIR", "/proc"); // where nobody can write
  EXPECT_TRUE(viewer.show(KORVEL_BOOK, Entry::index).contains("TMPDIR"));
  qunsetenv("TMPDIR");
}

} // namespace
