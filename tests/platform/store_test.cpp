#include "SettingsStore.h"

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

TEST(QtSettingsStore, ReadsTheUsersFileAndFallsBackWithoutOne) {
  const QTemporaryDir folder;
  for (const auto scope : {QSettings::UserScope, QSettings::SystemScope})
    QSettings::setPath(QSettings::NativeFormat, scope,
                       folder.filePath(scope == QSettings::UserScope ? "user" : "system"));
  const QString path = folder.filePath("user/Korvel/Korvel.conf");
  const auto write = [&](const QByteArray &content) {
    QDir().mkpath(folder.filePath("user/Korvel"));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
  };
  const auto read = [](const QString &section, const QString &key) {
    return QtSettingsStore().read("Korvel", section, key, "fallback").toStdString();
  };
  EXPECT_EQ(read("Options", "Sound"), "fallback");
  write("[Options]\nSound=0\nHelp=\" 3\"\nName=J\xc3\xb6rg\nEmpty=\n[Other]\nStdSize=3\n");
  EXPECT_EQ(read("Options", "Sound"), "0");
  EXPECT_EQ(read("Options", "Help"), " 3");
  EXPECT_EQ(read("Options", "Name"), "Jörg");
  EXPECT_EQ(read("Options", "Empty"), "");
  EXPECT_EQ(read("Options", "StdSize"), "fallback"); // that of another section
  EXPECT_EQ(read("Other", "StdSize"), "3");
  write(QByteArray("\0\xff[\n]=Sound\\", 13));
  EXPECT_EQ(read("Options", "Sound"), "fallback");
  QFile::remove(path);
  QDir().mkpath(path); // a folder in its place
  EXPECT_EQ(read("Options", "Sound"), "fallback");
}

} // namespace
