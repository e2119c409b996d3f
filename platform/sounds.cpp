#include "sounds.h"

#include <QResource>

Klang loadSound(const QString &name) {
  const QResource resource(":/sounds/" + name + ".wav");
  Q_ASSERT(resource.isValid());
  return Klang::fromRawData(reinterpret_cast<const char *>(resource.data()), resource.size());
}
