#include "SettingsStore.h"

#include <QFileInfo>
#include <QLockFile>
#include <QSettings>
#include <QStandardPaths>

namespace {

constexpr int kLockTime = 100; // ms

/// The file of the store on systems that have one.
QString fileOf(const QString &application) {
  return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + '/' +
         application + '/' + application + ".conf";
}

/// Whether Qt may open it: if it is a pipe, Qt would wait forever.
bool isUsable(const QString &application) {
  const QFileInfo file(fileOf(application));
  return !file.exists() || file.isFile();
}

/// Whether somebody holds the lock that Qt takes to write. A lock left behind by a crash, too,
/// would keep Qt waiting for half a minute and longer.
bool isLocked(const QString &application) {
  QLockFile lock(fileOf(application) + ".lock");
  return !lock.tryLock(kLockTime) && lock.error() == QLockFile::LockFailedError;
}

} // namespace

QString QtSettingsStore::read(const QString &application, const QString &section,
                              const QString &key, const QString &fallback) const {
  if (!isUsable(application))
    return fallback;
  const QSettings settings(application, application);
  return settings.value(section + '/' + key, fallback).toString();
}

void QtSettingsStore::write(const QString &application, const QString &section, const QString &key,
                            const QString &text) {
  if (!isUsable(application) || isLocked(application))
    return;
  QSettings settings(application, application);
  settings.setValue(section + '/' + key, text);
  settings.sync();
}
