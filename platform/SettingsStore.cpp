#include "SettingsStore.h"

#include <QSettings>

QString QtSettingsStore::read(const QString &application, const QString &section,
                              const QString &key, const QString &fallback) const {
  const QSettings settings(application, application);
  return settings.value(section + '/' + key, fallback).toString();
}

void QtSettingsStore::write(const QString &application, const QString &section, const QString &key,
                            const QString &text) {
  QSettings settings(application, application);
  settings.setValue(section + '/' + key, text);
  settings.sync();
}
