#include "SdlSound.h"
#include "SoundPlayer.h"
#include "sounds.h"
#include "standIns.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

namespace {

TEST(Sounds, KeepTheirLengthInTheFormatOfTheDevice) {
  const QByteArray pcm = SdlSound::decoded(loadSound("doppelt")); // compressed, mono
  EXPECT_NEAR(static_cast<double>(pcm.size()) / 4 / 44100, 0.97, 0.02);
}

TEST(SoundPlayer, WhatIsNotHeardCostsItsTimeStill) {
  QuietSound device;
  device.usable = false;
  std::uint8_t Sound = 255; // any value but 0 is on
  SoundPlayer player(device, Sound);
  player.PlayWav(Klang(9636, 'x'), false);
  Sound = 0;
  player.PlayWav(Klang(9636, 'x'), false);
  player.PlayWav(Klang(9636, 'x'), true);
  EXPECT_EQ(device.log, (Log{"wait 9636", "sleep 348", "sleep 348"}));
}

/// In the format of the device, all its bytes the same.
Klang tone(int ms, char byte) {
  const quint32 bytes = 441u * static_cast<quint32>(ms) / 10 * 4;
  const QByteArray length(reinterpret_cast<const char *>(&bytes), sizeof bytes);
  return loadSound("verloren").first(40) + length + Klang(bytes, byte);
}

/// What goes to the device lands in a file.
struct SdlSoundTest : testing::Test {
  QTemporaryDir folder;
  const QString file = folder.filePath("heard.raw");

  SdlSoundTest() {
    qputenv("SDL_DISKAUDIOFILE", file.toLocal8Bit());
    qputenv("SDL_AUDIODRIVER", "disk");
  }
  QByteArray heard() const {
    QFile bytes(file);
    return bytes.open(QIODevice::ReadOnly) ? bytes.readAll() : "";
  }
  bool hears(char byte) const {
    return QTest::qWaitFor([&] { return heard().contains(QByteArray(400, byte)); }, 30'000);
  }
};

TEST_F(SdlSoundTest, ANewSoundCutsTheOneBeforeAndAnEmptyOneStops) {
  SdlSound sound;
  ASSERT_TRUE(QTest::qWaitFor([&] { return sound.open(); }, 30'000));
  sound.start(tone(60'000, 0x12));
  EXPECT_TRUE(hears(0x12));
  QElapsedTimer timer;
  timer.start();
  sound.playToEnd(tone(200, 0x23));
  EXPECT_GE(timer.elapsed(), 200);
  sound.start(tone(60'000, 0x34));
  EXPECT_TRUE(hears(0x34)); // well before a minute is over
  sound.start({});
  EXPECT_TRUE(QTest::qWaitFor([&] { return heard().endsWith(QByteArray(4096, 0)); }, 30'000));
  const QByteArray all = heard();
  const auto last = all.lastIndexOf(QByteArray(4, 0x34));
  const auto *faded = reinterpret_cast<const qint16 *>(all.data() + last + 4);
  EXPECT_GT(*faded, 0x3000) << "a sudden end would click";
  EXPECT_TRUE(std::is_sorted(faded, faded + 1000, std::greater<>()));
}

TEST_F(SdlSoundTest, NoDeviceAndAStalledOneHoldNothingUp) {
  ASSERT_EQ(mkfifo(qPrintable(file), 0600), 0); // the device waits for somebody to read it
  alarm(20);                                    // seconds, then this program ends with an error
  for (const char *driver : {"there-is-no-such-driver", "disk"}) {
    qputenv("SDL_AUDIODRIVER", driver);
    SdlSound sound;
    EXPECT_FALSE(sound.open());
    EXPECT_FALSE(sound.playToEnd(tone(60'000, 0x12)));
  }
  alarm(0);
}

} // namespace
