#include "pictures.h"

#include <QGuiApplication>

QString picturePath(const QString &name, const QString &suffix) {
  const bool dense = qApp->devicePixelRatio() > 1;
  return ":/pictures/" + name + (dense ? "@2x." : ".") + suffix;
}

QPixmap loadPicture(const QString &name) {
  QPixmap pixmap(picturePath(name));
  Q_ASSERT(!pixmap.isNull());
  return pixmap;
}
