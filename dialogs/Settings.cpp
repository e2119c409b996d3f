#include "Settings.h"

namespace {

constexpr const char *kApplication = "Korvel";
constexpr const char *kSection = "Options";

void readKey(const SettingsStore &store, const QString &key, std::uint8_t &value, int least,
             int most) {
  bool isNumber = false;
  const int number =
      store.read(kApplication, kSection, key, QString::number(value)).toInt(&isNumber, 10);
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

void Settings::write(SettingsStore &store) const {
  const std::pair<const char *, int> values[] = {
      {"Sound", Sound}, {"StdSize", StdSize}, {"Help", Help}};
  for (const auto &[key, value] : values)
    store.write(kApplication, kSection, key, QString::number(value));
}
