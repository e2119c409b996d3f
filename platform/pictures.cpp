#include "pictures.h"

#include <QGuiApplication>

QPixmap loadPicture(const QString &name) {
  const bool dense = qApp->devicePixelRatio() > 1;
  QPixmap pixmap(":/pictures/" + name + (dense ? "@2x.png" : ".png"));
  Q_ASSERT(!pixmap.isNull());
  return pixmap;
}
