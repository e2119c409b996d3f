// The help book as it is built, in its window.

#include "QtHelpViewer.h"

#include <QDir>
#include <QHelpContentWidget>
#include <QRegularExpression>
#include <QTest>
#include <gtest/gtest.h>

#include <sys/stat.h>

namespace {

using Entry = HelpViewer::Entry;

TEST(Help, OneWalkThroughTheBook) {
  QtHelpViewer viewer;
  ASSERT_EQ(viewer.show(KORVEL_BOOK, Entry::contents), "");
  HelpWindow *window = viewer.window();
  auto &contents = *window->findChild<QHelpContentWidget *>();
  auto &text = *window->findChild<QTextBrowser *>();
  const auto page = [&] { return text.source().toString().section('/', -1); };
  const auto content = [&](const QUrl &url) {
    return QString(text.loadResource(QTextDocument::HtmlResource, url).toByteArray());
  };
  const auto isThere = [&](const QUrl &url) {
    const QString mark = "name=\"" + url.fragment() + '"';
    return url.hasFragment() ? content(url).contains(mark) : !content(url).isEmpty();
  };
  ASSERT_TRUE(QTest::qWaitFor([&] { return contents.currentIndex().row() == 0; }));
  QSet<QString> pages;
  for (int row = 0; row < contents.model()->rowCount(); ++row) {
    emit contents.clicked(contents.model()->index(row, 0));
    EXPECT_EQ(contents.currentIndex().row(), row);
    pages << page();
    const QRegularExpression link("(?:src|href)=\"([^\"]+)");
    for (const auto &found : link.globalMatch(content(text.source())))
      EXPECT_TRUE(isThere(text.source().resolved(found.captured(1)))) << qPrintable(page());
  }
  EXPECT_EQ(pages.size(), QDir(KORVEL_PAGES).entryList({"*.html"}).size());

  window->showMinimized();
  ASSERT_EQ(viewer.show(KORVEL_BOOK, Entry::index), "");
  EXPECT_TRUE(viewer.window() == window && !window->isMinimized());
  auto &index = *window->findChild<QListView *>();
  ASSERT_TRUE(QTest::qWaitFor([&] { return index.model()->rowCount() > 60; }));
  QString word;
  for (int row = 0; row < index.model()->rowCount(); ++row) {
    text.setSource(QUrl());
    emit index.clicked(index.model()->index(row, 0));
    word = index.model()->index(row, 0).data().toString();
    EXPECT_TRUE(isThere(text.source())) << qPrintable(word);
  }
  EXPECT_EQ(word.left(1), "Z") << "German order, where no Ü is last";
  QTest::keyClicks(window->focusWidget(), "ÜBERNEHM\r");
  EXPECT_EQ(page(), "optionen.html#uebernehmen");

  QTest::keyClick(window, Qt::Key_Escape);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(viewer.show(KORVEL_BOOK, Entry::contents), "");
}

TEST(Help, WhatIsNoBookOpensNothing) {
  const QTemporaryDir folder;
  QtHelpViewer viewer;
  const QString damaged = folder.filePath("damaged");
  ASSERT_TRUE(QFile::copy(KORVEL_BOOK, damaged) && QFile::resize(damaged, 9000));
  ASSERT_EQ(mkfifo(qPrintable(folder.filePath("pipe")), 0600), 0);
  for (const char *name : {"missing", "pipe", "damaged"}) {
    const QString failure = viewer.show(folder.filePath(name), Entry::index);
    EXPECT_EQ(failure, "Die Hilfedatei fehlt oder ist beschädigt.") << name;
    EXPECT_EQ(viewer.window(), nullptr) << name;
  }
  qputenv("TMPDIR", "/proc"); // where nobody can write
  EXPECT_TRUE(viewer.show(KORVEL_BOOK, Entry::index).endsWith("\n/proc"));
}

} // namespace
