#pragma once

#include "SoundDevice.h"

#include <cstdint>

/// Plays every sound of the game on the device.
class SoundPlayer {
public:
  /// `Sound` is the user's switch: 0 off, any other value on. Both must outlive the player.
  SoundPlayer(SoundDevice &device, const std::uint8_t &Sound) : device_(device), Sound_(Sound) {}

  /// Starts the sound, cutting the one before. Unless `Async`, waits for its end: the pause
  /// between two shots. If it can't be heard, being switched off or without a device, a waiting
  /// sound still costs the time of `waitFor`.
  void PlayWav(const Klang &klang, bool Async);

  /// Ends the sound that is playing, unless sound is switched off.
  void stop() { PlayWav({}, true); }

  /// 800 ms for each 22158 bytes of the file, rounded to whole milliseconds.
  static int waitFor(const Klang &klang);

private:
  SoundDevice &device_;
  const std::uint8_t &Sound_;
};
