#include "Globals.h"

#include <QResource>

namespace {

Klang loadSound(const QString &name) {
  const QResource resource(":/sounds/" + name + ".wav");
  Q_ASSERT(resource.isValid());
  // A view of the executable's own bytes, which stay.
  return Klang::fromRawData(reinterpret_cast<const char *>(resource.data()), resource.size());
}

} // namespace

Sounds Sounds::load() {
  return {.SndMuell = loadSound("muell"),
          .SndBoot = loadSound("boot"),
          .SndAlle = loadSound("alle"),
          .SndStart = loadSound("start"),
          .SndWasser = loadSound("wasser"),
          .SndDoppelt = loadSound("doppelt"),
          .SndTreffer = loadSound("treffer"),
          .SndVersenkt = loadSound("versenkt"),
          .SndSieg = loadSound("sieg"),
          .SndVerloren = loadSound("verloren")};
}

QString dataPath(const QString &folder, const QString &file) {
  return folder.endsWith('/') ? folder + file : folder + '/' + file;
}
