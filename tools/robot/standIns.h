#pragma once

#include "HelpViewer.h"
#include "MessageBox.h"
#include "SettingsStore.h"
#include "SoundDevice.h"

#include <QMap>

#include <functional>
#include <string>
#include <vector>

// What stands in for the world outside, in tests and tools. Each writes down what it is asked for.

using Log = std::vector<std::string>;

/// A device that is heard by nobody and costs no time.
struct QuietSound : SoundDevice {
  Log log;            ///< "start 9636", "wait 9636": the bytes of a sound; "sleep 348": ms
  bool usable = true; ///< whether it claims that a sound is heard
  /// Words a line of the log in another way, if it is set.
  std::function<std::string(const std::string &call, const Klang &klang)> wording;

  void start(const Klang &klang) override { note("start", klang); }
  bool playToEnd(const Klang &klang) override {
    note("wait", klang);
    return usable;
  }
  void sleep(int ms) override { log.push_back("sleep " + std::to_string(ms)); }

private:
  void note(const std::string &call, const Klang &klang) {
    log.push_back(wording ? wording(call, klang) : call + ' ' + std::to_string(klang.size()));
  }
};

/// A store that holds what it is given, at first nothing.
struct MemoryStore : SettingsStore {
  QMap<QString, QString> values; ///< by "application/section/key"
  QString log;                   ///< "application/section/key=text " for each write

  QString read(const QString &application, const QString &section, const QString &key,
               const QString &fallback) const override {
    return values.value(application + '/' + section + '/' + key, fallback);
  }
  void write(const QString &application, const QString &section, const QString &key,
             const QString &text) override {
    const QString path = application + '/' + section + '/' + key;
    values[path] = text;
    log += path + '=' + text + ' ';
  }
};

/// A book that opens for nobody.
struct ClosedHelp : HelpViewer {
  Log log;         ///< "1 FILE", "2 FILE" for contents and index, "close"
  QString failure; ///< why it can't be shown

  QString show(const QString &file, Entry entry) override {
    log.push_back(std::to_string(static_cast<int>(entry)) + ' ' + file.toStdString());
    return failure;
  }
  void close() override { log.push_back("close"); }
};

/// A box that nobody has to close.
struct ClosedMessages : MessageBox {
  std::vector<QString> log; ///< "TITLE|TEXT"

  void critical(const QString &title, const QString &text) override {
    log.push_back(title + '|' + text);
  }
  void warning(const QString &title, const QString &text) override { critical(title, text); }
};
