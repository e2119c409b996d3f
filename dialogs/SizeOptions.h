#pragma once

#include "controls.h"

#include <array>

/// The three option buttons `optSize0` to `optSize2`, of which one is pressed.
class SizeOptions {
public:
  /// In a row from the place `first`, each `step` pixels right of the one before, with `Size`
  /// pressed, 1 to 3; any other number presses none.
  SizeOptions(QWidget *parent, const QRect &first, int step, int Size);

  /// The size that is pressed, 1 to 3; 0 for none.
  int pressed() const;

private:
  std::array<BlueButton *, 3> optSize_;
};
