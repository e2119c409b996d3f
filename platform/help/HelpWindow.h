#pragma once

#include "HelpViewer.h"
#include "qtHelp.h"

#include <QCollator>
#include <QLineEdit>
#include <QListView>
#include <QSortFilterProxyModel>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTextBrowser>
#include <QWidget>

/// Puts the keywords into the order of a German dictionary.
class Keywords : public QSortFilterProxyModel {
  Q_OBJECT

public:
  using QSortFilterProxyModel::QSortFilterProxyModel;

protected:
  bool lessThan(const QModelIndex &left, const QModelIndex &right) const override;

private:
  QCollator collator_{QLocale(QLocale::German)};
};

/// Shows the pages of a help book, pictures on dense screens from their double-size versions.
class Pages : public QTextBrowser {
  Q_OBJECT

public:
  explicit Pages(const QHelpEngineCore &book);
  QVariant loadResource(int type, const QUrl &url) override;

private:
  const QHelpEngineCore &book_;
};

/// A help book: contents and index beside the text. It remembers nothing and deletes itself when it
/// is closed.
class HelpWindow : public QWidget {
  Q_OBJECT

public:
  explicit HelpWindow(const QString &file);
  ~HelpWindow() override;

  /// Whether the file is a help book.
  bool isReadable() const { return !home_.isEmpty(); }
  /// Whether the folder for temporary files can take what Qt Help needs.
  bool hasRoom() const;

  /// Comes to the front with the contents or the index.
  void open(HelpViewer::Entry entry);

protected:
  void keyPressEvent(QKeyEvent *event) override;

private:
  void buildContents();
  void buildIndex();
  void buildText();
  /// The keys go to what the tab shows.
  void enterTab();
  void showKeyword(const QModelIndex &keyword);

  QTemporaryDir folder_; ///< of the collection that Qt Help wants to have, until it is loaded
  QHelpEngine book_;
  QUrl home_; ///< the first page; empty if there is none
  QTabWidget tabs_;
  QLineEdit search_;
  QListView index_;
  Keywords keywords_;
  Pages pages_{book_};
};
