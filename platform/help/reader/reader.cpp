// A book is an SQLite database.

#include "reader.h"

#include <QDataStream>
#include <QSqlDatabase>
#include <QSqlQuery>

#include <algorithm>

QHelpContentItem::QHelpContentItem(const QString &title, const QUrl &url) : QStandardItem(title) {
  setData(url);
  setEditable(false);
}

QHelpContentItem *QHelpContentModel::contentItemAt(const QModelIndex &index) const {
  return static_cast<QHelpContentItem *>(itemFromIndex(index));
}

QModelIndex QHelpContentWidget::indexOf(const QUrl &url) const {
  const QModelIndexList found = model()->match(model()->index(0, 0), Qt::UserRole + 1, url, 1,
                                               Qt::MatchExactly | Qt::MatchRecursive);
  return found.value(0);
}

QHelpContentWidget *QHelpEngine::contentWidget() {
  if (!contentWidget_) {
    contentWidget_ = new QHelpContentWidget;
    contentWidget_->setHeaderHidden(true);
    contentWidget_->setModel(&contents_);
  }
  return contentWidget_;
}

bool QHelpEngine::registerDocumentation(const QString &file) {
  {
    QSqlDatabase book = QSqlDatabase::addDatabase("QSQLITE", file);
    book.setConnectOptions("QSQLITE_OPEN_READONLY");
    book.setDatabaseName(file);
    book.open();

    QSqlQuery query(book);
    query.exec("SELECT 'qthelp://' || n.Name || '/' || f.Name || '/', c.Data FROM NamespaceTable n "
               "JOIN FolderTable f ON f.NamespaceID = n.Id JOIN ContentsTable c");
    const bool isBook = query.next();
    const QString folder = isBook ? query.value(0).toString() : QString();
    if (isBook)
      readContents(query.value(1).toByteArray(), folder);

    query.exec("SELECT Name, Data FROM FileNameTable JOIN FileDataTable ON Id = FileId "
               "WHERE Name <> ''");
    while (query.next())
      pages_[folder + query.value(0).toString()] = qUncompress(query.value(1).toByteArray());

    query.exec("SELECT i.Name, f.Name, Anchor FROM IndexTable i JOIN FileNameTable f "
               "ON f.FileId = i.FileId");
    while (query.next()) {
      QUrl url(folder + query.value(1).toString());
      url.setFragment(query.value(2).toString());
      keywords_[query.value(0).toString()].append({url});
    }
  }
  QSqlDatabase::removeDatabase(file);
  index_.setStringList(keywords_.keys());
  return !pages_.isEmpty();
}

void QHelpEngine::readContents(const QByteArray &data, const QString &folder) {
  QDataStream stream(data);
  QList<QStandardItem *> path{contents_.invisibleRootItem()};
  while (!stream.atEnd()) {
    qint32 depth = 0;
    QString page;
    QString title;
    stream >> depth >> page >> title;
    path.resize(std::clamp<qsizetype>(depth, 0, path.size() - 1) + 1);
    auto *item = new QHelpContentItem(title, folder + page);
    path.last()->appendRow(item);
    path.append(item);
  }
}

QList<QUrl> QHelpEngine::files(const QString &, const QString &, const QString &ending) const {
  QList<QUrl> found;
  for (const QUrl &url : pages_.keys())
    if (url.path().endsWith('.' + ending))
      found.append(url);
  return found;
}
