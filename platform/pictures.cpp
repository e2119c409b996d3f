#include "pictures.h"

#include <QGuiApplication>

QPixmap loadPicture(const QString &name, const QString &suffix) {
  const bool dense = qApp->devicePixelRatio() > 1;
  QPixmap pixmap(":/pictures/" + name + (dense ? "@2x." : ".") + suffix);
  Q_ASSERT(!pixmap.isNull());
  return pixmap;
}
