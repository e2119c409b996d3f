#include "Settings.h"
#include "windows.h"

namespace {

TEST(Settings, WhatIsNoUsableNumberGivesTheDefault) {
  const std::tuple<std::optional<QString>, int, int, int> cases[] = {
      {std::nullopt, 1, 1, 2}, {"0", 0, 0, 2},   {"1", 1, 1, 1},          {"2", 2, 2, 2},
      {"3", 3, 3, 3},          {"4", 4, 4, 2},   {"255", 255, 255, 2},    {"256", 1, 1, 2},
      {"259", 1, 1, 2},        {"-1", 1, 1, 2},  {"4294967299", 1, 1, 2}, {"abc", 1, 1, 2},
      {"3x", 1, 1, 2},         {"0x3", 1, 1, 2}, {"1.5", 1, 1, 2},        {"", 1, 1, 2},
      {" ", 1, 1, 2},          {" 3", 3, 3, 3}, // a blank beside a number is harmless
  };
  for (const auto &[text, Sound, Help, StdSize] : cases) {
    RecordingStore store;
    store.text = text;
    const Settings s = Settings::read(store);
    EXPECT_EQ(std::tuple(s.Sound, s.Help, s.StdSize), std::tuple(Sound, Help, StdSize))
        << text.value_or("absent").toStdString();
  }
}

} // namespace
