#include "SettingsStore.h"

#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>

namespace {

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
  if (!isUsable(application))
    return;
  QSettings settings(application, application);
  settings.setValue(section + '/' + key, text);
  settings.sync();
}
