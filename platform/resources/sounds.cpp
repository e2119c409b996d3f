#include "sounds.h"

#include <QResource>

QByteArray loadSound(const QString &name) {
  Q_INIT_RESOURCE(korvel); // has the linker take them from the library
  const QResource resource(":/sounds/" + name + ".wav");
  Q_ASSERT(resource.isValid());
  return QByteArray::fromRawData(reinterpret_cast<const char *>(resource.data()), resource.size());
}
