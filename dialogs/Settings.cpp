#include "Settings.h"

namespace {

void readKey(const SettingsStore &store, const QString &key, std::uint8_t &value, int least,
             int most) {
  bool isNumber = false;
  const int number =
      store.read("Korvel", "Options", key, QString::number(value)).toInt(&isNumber, 10);
  if (isNumber && number >= least && number <= most)
    value = static_cast<std::uint8_t>(number);
}

} // namespace

Settings Settings::read(const SettingsStore &store) {
  Settings settings;
  readKey(store, "Sound", settings.Sound, 0, 255);
  readKey(store, "Help", settings.Help, 0, 255);
  readKey(store, "StdSize", settings.StdSize, 1, 3);
  return settings;
}
