#include "LateSound.h"

#include "folders.h"

#include <QLibrary>

#include <utility>

#ifdef Q_OS_WIN
extern "C" SoundDevice *korvelSound();
#endif

SoundDevice *LateSound::device() {
  if (!std::exchange(wasTried_, true)) {
#ifdef Q_OS_WIN
    device_.reset(korvelSound());
#else
    if (const auto make = reinterpret_cast<SoundDevice *(*)()>(
            QLibrary::resolve(pathIn(folder_, "klang"), "korvelSound")))
      device_.reset(make());
#endif
  }
  return device_.get();
}

bool LateSound::open() { return device() && device()->open(); }

void LateSound::start(const Klang &klang) {
  if (klang.isEmpty() && !device_)
    return; // silence needs no device
  if (device())
    device()->start(klang);
}

bool LateSound::playToEnd(const Klang &klang) { return device() && device()->playToEnd(klang); }
