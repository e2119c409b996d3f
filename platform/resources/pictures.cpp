#include "pictures.h"

#include <QGuiApplication>
#include <QResource>

#include <cstring>

QImage loadImage(const QString &name) {
  Q_INIT_RESOURCE(decoded); // has the linker take them from the library
  Q_INIT_RESOURCE(korvel);
  const QResource decoded(":/decoded/" + name);
  if (!decoded.isValid()) {
    QImage image(":/pictures/" + name); // tries all endings that Qt can read
    Q_ASSERT(!image.isNull());
    return image;
  }
  DecodedHead head;
  std::memcpy(&head, decoded.data(), sizeof head);
  QImage image(head.width, head.height, static_cast<QImage::Format>(head.format));
  std::memcpy(image.bits(), decoded.data() + sizeof head,
              static_cast<std::size_t>(image.sizeInBytes()));
  image.setDevicePixelRatio(head.ratio);
  return image;
}

QPixmap loadPicture(const QString &name) {
  const bool dense = qApp->devicePixelRatio() > 1;
  return QPixmap::fromImage(loadImage(dense ? name + "@2x" : name));
}

QCursor loadPointer(const QString &name) {
  const QPixmap picture = loadPicture(name);
  QSizeF centre = picture.deviceIndependentSize() / 2;
  // Qt scales the hot spot with the picture everywhere but on X11.
  if (QGuiApplication::platformName() == "xcb")
    centre *= picture.devicePixelRatio();
  return QCursor(picture, qRound(centre.width()), qRound(centre.height()));
}
