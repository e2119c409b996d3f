#include "Settings.h"
#include "windows.h"

#include <QDir>

#include <sys/stat.h>

namespace {

TEST(Settings, WhatIsNoUsableNumberGivesTheDefault) {
  const std::tuple<const char *, int, int> cases[] = {
      {"0", 0, 2},   {"1", 1, 1},  {"3", 3, 3},   {"4", 4, 2},  {"255", 255, 2},
      {"256", 1, 2}, {"-1", 1, 2}, {"abc", 1, 2}, {"3x", 1, 2}, {"", 1, 2},
  };
  for (const auto &[text, onOff, size] : cases) {
    MemoryStore store;
    for (const char *key : {"Sound", "Help", "StdSize"})
      store.write("Korvel", "Options", key, text);
    const Settings s = Settings::read(store);
    EXPECT_EQ(std::tuple(s.Sound, s.Help, s.StdSize), std::tuple(onOff, onOff, size)) << text;
  }
}

TEST(Settings, NothingInThePlaceOfTheFileStopsTheGame) {
  QtSettingsStore store;
  const QString folder = qEnvironmentVariable("XDG_CONFIG_HOME") + "/Korvel";
  const auto stored = [&](const char *text) {
    store.write("Korvel", "Options", "StdSize", text);
    return store.read("Korvel", "Options", "StdSize", "none");
  };
  EXPECT_EQ(stored("3"), "3");
  QFile::remove(folder + "/Korvel.conf");
  ASSERT_EQ(mkfifo(qPrintable(folder + "/Korvel.conf"), 0600), 0);
  EXPECT_EQ(stored("1"), "none");
  QDir(folder).removeRecursively();
  ASSERT_TRUE(QFile(folder).open(QIODevice::WriteOnly)); // a file where its folder should be
  EXPECT_EQ(stored("1"), "none");
}

} // namespace
