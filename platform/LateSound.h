#pragma once

#include "SoundDevice.h"

#include <QString>

#include <memory>

/// The sound of the module `klang`, a shared library. It is loaded when sound is first needed: the
/// libraries that it brings, some thirty, would lengthen the start. If it can't be loaded, the game
/// is silent. On Windows it is a part of the executable.
///
/// The module exports `extern "C" SoundDevice *korvelSound()`, which makes a device for the caller
/// to own.
class LateSound : public SoundDevice {
public:
  /// `folder` is that of the module.
  explicit LateSound(const QString &folder) : folder_(folder) {}

  bool open() override;
  void start(const Klang &klang) override;
  bool playToEnd(const Klang &klang) override;

private:
  /// Null if the module can't be loaded.
  SoundDevice *device();

  QString folder_;
  bool wasTried_ = false;
  std::unique_ptr<SoundDevice> device_;
};
