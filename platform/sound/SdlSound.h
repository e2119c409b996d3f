#pragma once

#include "SoundDevice.h"

#include <memory>

/// Sound through SDL, audio only. The device is opened by `open` or the first sound and stays open
/// while sounds come; an open one keeps a thread busy, so after half a minute of silence it is
/// closed.
///
/// A stalled sound server may keep any call of SDL from returning. So SDL belongs to a thread of
/// its own, and the game waits for that half a second at most.
class SdlSound : public SoundDevice {
public:
  SdlSound();
  SdlSound(const SdlSound &) = delete;
  SdlSound &operator=(const SdlSound &) = delete;
  /// If the thread is stuck in SDL it is detached.
  ~SdlSound() override;

  /// After a failure the next attempt is made ten seconds later at the earliest.
  bool open() override;

  void start(const Klang &klang) override;
  /// A device that has been opening for half a second counts as none, until it is open.
  bool playToEnd(const Klang &klang) override;

  /// Frames that a cut sound takes to fade out, 5 ms, as a sudden end would click.
  static constexpr int kFadeFrames = 220;

  /// The sound in the format of the device, 44.1 kHz, stereo, 16 bits; empty if it is no WAV file
  /// that SDL knows.
  static QByteArray decoded(const Klang &klang);

private:
  class Card;

  std::shared_ptr<Card> card_; ///< shared with the thread
  std::thread thread_;
};
