#pragma once

#include <QString>

/// The user's settings: texts under an application name, a section and a key.
class SettingsStore {
public:
  virtual ~SettingsStore() = default;

  /// The stored text, or `fallback` if there is none or the store can't be read.
  virtual QString read(const QString &application, const QString &section, const QString &key,
                       const QString &fallback) const = 0;

  /// Stores the text before it returns. A store that can't be written stays as it is.
  virtual void write(const QString &application, const QString &section, const QString &key,
                     const QString &text) = 0;
};

/// Qt's settings store of the user.
class QtSettingsStore : public SettingsStore {
public:
  QString read(const QString &application, const QString &section, const QString &key,
               const QString &fallback) const override;
  void write(const QString &application, const QString &section, const QString &key,
             const QString &text) override;
};
