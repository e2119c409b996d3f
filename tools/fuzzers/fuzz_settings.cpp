// Any texts as stored settings; and any bytes as the file of Qt's store, if the last one is odd.

#include "Settings.h"
#include "fuzz.h"

#include <QMap>

#include <algorithm>
#include <chrono>
#include <filesystem>

namespace fs = std::filesystem;

namespace {

struct Texts : SettingsStore {
  QMap<QString, QString> values;

  QString read(const QString &, const QString &, const QString &key,
               const QString &fallback) const override {
    return values.value(key, fallback);
  }
  void write(const QString &, const QString &, const QString &key, const QString &text) override {
    values[key] = text;
  }
};

bool isSame(const Settings &a, const Settings &b) {
  return a.Sound == b.Sound && a.Help == b.Help && a.StdSize == b.StdSize;
}

/// Digits alone are taken as the number that they are, if it is allowed; what has no digit is not.
void checkValue(const QString &text, int value, int least, int most, int otherwise) {
  static const auto isDigit = [](QChar c) { return c >= '0' && c <= '9'; };
  const auto digits = std::count_if(text.begin(), text.end(), isDigit);
  if (digits == 0)
    PROMISE(value == otherwise);
  if (digits == text.size() && digits > 0 && digits < 10) {
    const int number = std::stoi(text.toStdString());
    PROMISE(value == (number >= least && number <= most ? number : otherwise));
  }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t length) {
  static const fs::path folder = fs::current_path();
  static const std::string file = folder / "Korvel/Korvel.conf";
  static const int home = setenv("XDG_CONFIG_HOME", folder.c_str(), 1);
  static const bool made = fs::create_directory("Korvel");
  PROMISE(home == 0 && made);
  FuzzedDataProvider input(data, length);
  Texts texts;
  QtSettingsStore real;
  SettingsStore &store = input.ConsumeBool() ? static_cast<SettingsStore &>(real) : texts;
  if (&store == &real) {
    writeFile(file, input.ConsumeRemainingBytesAsString());
    // Qt reads a file anew when its time or its length has changed.
    static fs::file_time_type time = fs::last_write_time(file);
    fs::last_write_time(file, time += std::chrono::seconds(1));
  } else {
    for (const char *key : {"Sound", "Help", "StdSize"})
      texts.values[key] = QString::fromStdString(input.ConsumeRandomLengthString());
  }

  const Settings settings = Settings::read(store);
  PROMISE(settings.StdSize >= 1 && settings.StdSize <= 3);
  if (&store == &texts) {
    checkValue(texts.values["Sound"], settings.Sound, 0, 255, 1);
    checkValue(texts.values["Help"], settings.Help, 0, 255, 1);
    checkValue(texts.values["StdSize"], settings.StdSize, 1, 3, 2);
  }
  settings.write(store);
  PROMISE(isSame(Settings::read(store), settings));
  return 0;
}
