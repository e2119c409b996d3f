#pragma once

#include <QByteArray>

#include <chrono>
#include <thread>

/// A complete WAV file in memory; empty for silence.
using Klang = QByteArray;

/// What can be heard, and the waiting that goes with it. One sound plays at a time. No call lets
/// events run.
class SoundDevice {
public:
  virtual ~SoundDevice() = default;

  /// Begins to get ready for the first sound, which may take longer than the call. Costs
  /// milliseconds, so it is best called when nobody waits. Whether it is ready.
  virtual bool open() { return true; }

  /// Cuts the sound that is playing and starts this one; an empty buffer only stops. Returns at
  /// once. What can't be decoded or heard is skipped.
  virtual void start(const Klang &klang) = 0;

  /// Like `start`, but blocks the thread until the sound has ended. False, at once, if it can't be
  /// heard.
  virtual bool playToEnd(const Klang &klang) = 0;

  /// Blocks the thread for `ms` milliseconds.
  virtual void sleep(int ms) { std::this_thread::sleep_for(std::chrono::milliseconds(ms)); }
};
