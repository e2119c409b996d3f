#pragma once

#include <QString>

#include <optional>

/// Where the files of the game are. CMake's KORVEL_SYSTEM decides: a portable game has all of them
/// beside the executable; one that is installed in the system has the player's own in his folder.
struct Folders {
  QString player;  ///< of the top ten, and of the player's own `Combo.txt`
  QString data;    ///< of the help book, and of the `Combo.txt` that comes with the game
  QString modules; ///< of the shared libraries that the game loads

  /// All in one folder.
  Folders(const QString &folder) : player(folder), data(folder), modules(folder) {}

  /// The path of `Combo.txt`, which comes with the game unless the player has one of his own.
  QString names() const;
};

/// The path of a file in a folder, which may end in a separator or not.
QString pathIn(const QString &folder, const QString &file);

/// The folders of this game; nothing if the executable's own can't be found. The player's folder is
/// made, if it can be. To be called after the `QApplication` is made.
std::optional<Folders> findFolders();
