#include "folders.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

QString pathIn(const QString &folder, const QString &file) {
  return folder.endsWith('/') ? folder + file : folder + '/' + file;
}

QString Folders::names() const {
  const QString own = pathIn(player, "Combo.txt");
  return QFileInfo::exists(own) ? own : pathIn(data, "Combo.txt");
}

std::optional<Folders> findFolders() {
  const QString executable = QCoreApplication::applicationDirPath();
  if (executable.isEmpty()) // a name that QString can't hold, or no /proc
    return std::nullopt;
  Folders folders(executable);
#ifdef KORVEL_SYSTEM
  // Seen from the executable, so that the whole can be tried out under another root.
  folders.data = QDir::cleanPath(pathIn(executable, KORVEL_DATA));
  folders.modules = QDir::cleanPath(pathIn(executable, KORVEL_MODULES));
  folders.player =
      pathIn(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation), "Korvel");
  QDir().mkpath(folders.player); // if it fails, it is as if it could not be written to
#endif
  return folders;
}
