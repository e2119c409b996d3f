#include "SoundPlayer.h"

#include <cmath>

void SoundPlayer::PlayWav(const Klang &klang, bool Async) {
  if (Async) {
    if (Sound_ != 0)
      device_.start(klang);
    return;
  }
  if (Sound_ == 0 || !device_.playToEnd(klang))
    device_.sleep(waitFor(klang));
}

int SoundPlayer::waitFor(const Klang &klang) {
  return static_cast<int>(std::lround(static_cast<double>(klang.size()) / 22158 * 800));
}
