#pragma once

// What the help window uses of Qt Help, under the same names, where Qt Help is not to be had. It
// reads the same books, at once and as a whole, and writes nothing.

#include <QHash>
#include <QStandardItemModel>
#include <QStringListModel>
#include <QTreeView>
#include <QUrl>

struct QHelpLink {
  QUrl url;
};

class QHelpContentItem : public QStandardItem {
public:
  QHelpContentItem(const QString &title, const QUrl &url);
  QUrl url() const { return data().toUrl(); }
};

class QHelpContentModel : public QStandardItemModel {
  Q_OBJECT

public:
  QHelpContentItem *contentItemAt(const QModelIndex &index) const;
  void createContents(const QString &) { emit contentsCreated(); }
  static bool isCreatingContents() { return false; }

signals:
  void contentsCreated();
};

class QHelpContentWidget : public QTreeView {
  Q_OBJECT

public:
  QModelIndex indexOf(const QUrl &url) const;
};

class QHelpIndexModel : public QStringListModel {
  Q_OBJECT

public:
  void createIndex(const QString &) { emit indexCreated(); }
  static bool isCreatingIndex() { return false; }

signals:
  void indexCreated();
};

class QHelpEngine {
public:
  explicit QHelpEngine(const QString &) {}
  static void setReadOnly(bool) {}
  static void setUsesFilterEngine(bool) {}
  static bool setupData() { return true; }
  static QString namespaceName(const QString &) { return {}; }

  bool registerDocumentation(const QString &file);
  QList<QUrl> files(const QString &, const QString &, const QString &ending) const;
  QByteArray fileData(const QUrl &url) const { return pages_[url.adjusted(QUrl::RemoveFragment)]; }
  QList<QHelpLink> documentsForKeyword(const QString &word) const { return keywords_[word]; }
  QHelpContentModel *contentModel() { return &contents_; }
  QHelpContentWidget *contentWidget();
  QHelpIndexModel *indexModel() { return &index_; }

private:
  void readContents(const QByteArray &data, const QString &folder);

  QHash<QUrl, QByteArray> pages_;
  QHash<QString, QList<QHelpLink>> keywords_;
  QHelpContentModel contents_;
  QHelpIndexModel index_;
  QHelpContentWidget *contentWidget_ = nullptr; ///< the window's, once it is asked for
};

using QHelpEngineCore = QHelpEngine;
