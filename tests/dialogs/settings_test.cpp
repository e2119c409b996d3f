#include "Settings.h"

#include <gtest/gtest.h>

#include <optional>

namespace {

/// Holds one text under each key of the program's section.
struct OneTextStore : SettingsStore {
  std::optional<QString> text;

  QString read(const QString &application, const QString &section, const QString &,
               const QString &fallback) const override {
    return application == "Korvel" && section == "Options" ? text.value_or(fallback) : fallback;
  }
};

TEST(Settings, WhatIsNoUsableNumberGivesTheDefault) {
  struct Case {
    std::optional<QString> text;
    int Sound, Help, StdSize;
  };
  const Case cases[] = {
      {std::nullopt, 1, 1, 2}, {"0", 0, 0, 2},   {"1", 1, 1, 1},          {"2", 2, 2, 2},
      {"3", 3, 3, 3},          {"4", 4, 4, 2},   {"255", 255, 255, 2},    {"256", 1, 1, 2},
      {"259", 1, 1, 2},        {"-1", 1, 1, 2},  {"4294967299", 1, 1, 2}, {"abc", 1, 1, 2},
      {"3x", 1, 1, 2},         {"0x3", 1, 1, 2}, {"1.5", 1, 1, 2},        {"", 1, 1, 2},
      {" ", 1, 1, 2},          {" 3", 3, 3, 3}, // a blank beside a number is harmless
  };
  for (const Case &c : cases) {
    SCOPED_TRACE(c.text.value_or("absent").toStdString());
    OneTextStore store;
    store.text = c.text;
    const Settings settings = Settings::read(store);
    EXPECT_EQ(settings.Sound, c.Sound);
    EXPECT_EQ(settings.Help, c.Help);
    EXPECT_EQ(settings.StdSize, c.StdSize);
  }
}

} // namespace
