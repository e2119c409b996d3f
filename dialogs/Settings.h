#pragma once

#include "SettingsStore.h"

#include <cstdint>

/// The user's settings.
struct Settings {
  std::uint8_t Sound = 1;   ///< 0 off, any other value on
  std::uint8_t Help = 1;    ///< hints appear if it is exactly 1
  std::uint8_t StdSize = 2; ///< board size at the start of the program, 1 to 3

  /// Reads the stored settings. A text that is no number from 0 to 255, or a size that there is
  /// not, gives the default of its key.
  static Settings read(const SettingsStore &store);

  /// Stores all three, changed or not.
  void write(SettingsStore &store) const;
};
