#pragma once

#include <string>

/// A text on the window that the board writes: the player's name.
class Label {
public:
  virtual ~Label() = default;

  /// Shows `text`, UTF-8.
  virtual void setCaption(const std::string &text) = 0;
};
