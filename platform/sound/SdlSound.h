#pragma once

#include "SoundDevice.h"

#include <QHash>
#include <QTimer>

#include <chrono>
#include <cstdint>
#include <optional>

/// Sound through SDL, audio only. The device is opened by `open` or the first sound and stays open
/// while sounds come; an open one keeps a thread busy, so after half a minute of silence it is
/// closed.
class SdlSound : public SoundDevice {
public:
  SdlSound();
  SdlSound(const SdlSound &) = delete;
  SdlSound &operator=(const SdlSound &) = delete;
  ~SdlSound() override;

  /// Opens the device if it is not open. After a failure the next attempt is made ten seconds later
  /// at the earliest.
  bool open() override;

  void start(const Klang &klang) override { play(klang); }
  bool playToEnd(const Klang &klang) override;

  /// So many frames a cut sound takes to fade out, 5 ms, as a sudden end would click.
  static constexpr int kFadeFrames = 220;

  /// The sound in the format of the device, 44.1 kHz, stereo, 16 bits; empty if it is no WAV file
  /// that SDL knows.
  static QByteArray decoded(const Klang &klang);

private:
  /// Starts a sound and gives its length; nothing if it can't be heard.
  std::optional<std::chrono::microseconds> play(const Klang &klang);
  QByteArray remembered(const Klang &klang);
  void cut();
  void close();

  std::uint32_t device_ = 0; ///< SDL's number of the open device, 0 for none
  std::optional<std::chrono::steady_clock::time_point> failedAt_;
  QHash<Klang, QByteArray> decoded_;
  QByteArray playing_; ///< the sound that was queued last, in the format of the device
  QTimer silence_;     ///< runs from the last sound on
};
