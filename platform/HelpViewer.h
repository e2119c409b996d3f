#pragma once

#include <QString>

/// Shows the help book in a window of its own.
class HelpViewer {
public:
  virtual ~HelpViewer() = default;

  /// Where a book is opened.
  enum class Entry { contents = 1, index = 2 };

  /// Opens the book, or comes back to it. Doesn't wait for its closing. Empty, or why it can't be
  /// shown, in words for the player.
  virtual QString show(const QString &file, Entry entry) = 0;
  /// Closes the window, if there is one.
  virtual void close() = 0;
};
