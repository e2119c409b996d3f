#include "Settings.h"
#include "windows.h"

#include <QDir>

#include <sys/stat.h>

namespace {

TEST(Settings, WhatIsNoUsableNumberGivesTheDefault) {
  const std::tuple<std::optional<QString>, int, int, int> cases[] = {
      {std::nullopt, 1, 1, 2}, {"0", 0, 0, 2},      {"1", 1, 1, 1},          {"2", 2, 2, 2},
      {"3", 3, 3, 3},          {"4", 4, 4, 2},      {"255", 255, 255, 2},    {"256", 1, 1, 2},
      {"259", 1, 1, 2},        {"-1", 1, 1, 2},     {"4294967299", 1, 1, 2}, {"abc", 1, 1, 2},
      {"3x", 1, 1, 2},         {"0x3", 1, 1, 2},    {"1.5", 1, 1, 2},        {"", 1, 1, 2},
      {" ", 1, 1, 2},          {"\u0663", 1, 1, 2}, {" 3", 3, 3, 3}, // a blank does no harm
  };
  for (const auto &[text, Sound, Help, StdSize] : cases) {
    MemoryStore store;
    if (text)
      for (const char *key : {"Sound", "Help", "StdSize"})
        store.write("Korvel", "Options", key, *text);
    for (int i = 0; i < 2; ++i) { // as found, and stored again
      const Settings s = Settings::read(store);
      EXPECT_EQ(std::tuple(s.Sound, s.Help, s.StdSize), std::tuple(Sound, Help, StdSize))
          << text.value_or("absent").toStdString();
      s.write(store);
    }
  }
}

TEST(Settings, NothingInThePlaceOfTheFileStopsTheGame) {
  QtSettingsStore store;
  const QString folder = qEnvironmentVariable("XDG_CONFIG_HOME") + "/Korvel";
  const QString file = folder + "/Korvel.conf";
  const auto stored = [&] { return store.read("Korvel", "Options", "StdSize", "none"); };
  const auto write = [&](const char *text) { store.write("Korvel", "Options", "StdSize", text); };
  EXPECT_EQ(stored(), "none");
  write("3");
  EXPECT_EQ(stored(), "3");
  QFile broken(file);
  ASSERT_TRUE(broken.open(QIODevice::WriteOnly));
  broken.write(
      "[Options\n[Options]\nHelp=@Variant(\\0\\0\\0\\b)\nSound=\"1, 2\nStdSize=%55\\x41\n=\n\1");
  broken.close();
  const Settings s = Settings::read(store);
  EXPECT_EQ(std::tuple(s.Sound, s.Help, s.StdSize), std::tuple(1, 1, 2));
  write("3");
  EXPECT_EQ(stored(), "3");

  QFile::remove(file);
  ASSERT_EQ(mkfifo(qPrintable(file), 0600), 0);
  write("1");
  EXPECT_EQ(stored(), "none");
  QDir(folder).removeRecursively();
  ASSERT_TRUE(QFile(folder).open(QIODevice::WriteOnly)); // a file where its folder should be
  write("1");
  EXPECT_EQ(stored(), "none");
}

} // namespace
