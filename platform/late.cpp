#include "late.h"

#include <QCoreApplication>
#include <QLibrary>

QFunctionPointer serviceOf(const QString &module) {
  return QLibrary::resolve(QCoreApplication::applicationDirPath() + '/' + module, "korvelService");
}

bool LateSound::open() {
  SoundDevice *device = device_.get();
  return device && device->open();
}

void LateSound::start(const Klang &klang) {
  // Silence needs no device.
  if (SoundDevice *device = klang.isEmpty() ? device_.loaded() : device_.get())
    device->start(klang);
}

bool LateSound::playToEnd(const Klang &klang) {
  SoundDevice *device = device_.get();
  return device && device->playToEnd(klang);
}

QString LateHelp::show(const QString &file, Entry entry) {
  HelpViewer *viewer = viewer_.get();
  return viewer ? viewer->show(file, entry)
                : "Die Hilfe lässt sich nicht laden: libhilfe.so oder was sie braucht, fehlt.";
}

void LateHelp::close() {
  if (HelpViewer *viewer = viewer_.loaded())
    viewer->close();
}
