#include "SdlSound.h"

#include <QDataStream>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

constexpr qint16 kFirst = 0x1234, kSecond = 0x2345, kThird = 0x3456;

/// A WAV file in the rate of the device, 16 bits mono, with the same sample throughout.
Klang tone(int ms, qint16 sample) {
  const quint32 samples = 441u * static_cast<quint32>(ms) / 10;
  Klang wav;
  QDataStream out(&wav, QIODevice::WriteOnly);
  out.setByteOrder(QDataStream::LittleEndian);
  out.writeRawData("RIFF", 4);
  out << 36 + 2 * samples;
  out.writeRawData("WAVEfmt ", 8);
  out << quint32(16) << quint16(1) << quint16(1) << quint32(44100) << quint32(88200) << quint16(2)
      << quint16(16);
  out.writeRawData("data", 4);
  out << 2 * samples;
  for (quint32 i = 0; i < samples; ++i)
    out << sample;
  return wav;
}

/// What goes to the device lands in a file.
struct SdlSoundTest : testing::Test {
  QTemporaryDir folder;
  const QByteArray driverBefore = qgetenv("SDL_AUDIODRIVER");
  SdlSound sound;

  void SetUp() override {
    qputenv("SDL_DISKAUDIOFILE", folder.filePath("heard.raw").toLocal8Bit());
    qputenv("SDL_AUDIODRIVER", "disk");
  }
  void TearDown() override { qputenv("SDL_AUDIODRIVER", driverBefore); }

  bool opens() {
    return QTest::qWaitFor([&] { return sound.open(); }, 30'000);
  }

  bool hears(const std::function<bool(const QByteArray &)> &what) const {
    return QTest::qWaitFor(
        [&] {
          QFile file(folder.filePath("heard.raw"));
          return file.open(QIODevice::ReadOnly) && what(file.readAll());
        },
        30'000);
  }
  bool hears(qint16 sample) const {
    const QByteArray bytes(reinterpret_cast<const char *>(&sample), sizeof sample);
    return hears([&](const QByteArray &file) { return file.contains(bytes + bytes); });
  }
};

TEST_F(SdlSoundTest, ANewSoundCutsTheOneBeforeAndAnEmptyOneStops) {
  ASSERT_TRUE(opens());
  sound.start(tone(60'000, kFirst));
  EXPECT_TRUE(hears(kFirst));
  EXPECT_TRUE(sound.playToEnd(tone(20, kSecond)));
  EXPECT_TRUE(hears(kSecond)); // well before a minute is over
  sound.start(tone(60'000, kThird));
  EXPECT_TRUE(hears(kThird));
  sound.start({});
  EXPECT_TRUE(hears([](const QByteArray &file) { return file.endsWith(QByteArray(4096, 0)); }));
  EXPECT_TRUE(hears([](const QByteArray &file) { // the end falls off, and by steps
    const auto *samples = reinterpret_cast<const qint16 *>(file.constData());
    const auto *end = samples + file.size() / 2;
    const auto *faded = std::find_end(samples, end, &kThird, &kThird + 1) + 1;
    return faded<end && * faded> 0 && std::is_sorted(faded, end, std::greater<>());
  }));
}

TEST_F(SdlSoundTest, BrokenFilesAreNotHeardAndHarmNothing) {
  ASSERT_TRUE(opens());
  const Klang whole = tone(20, kFirst);
  Klang unknownFormat = whole, noChannels = whole;
  unknownFormat[20] = 0x55;
  noChannels[22] = 0;
  for (const Klang &broken : {Klang("x"), Klang(5000, 'x'), whole.left(12), whole.left(30),
                              whole.left(44), unknownFormat, noChannels, tone(0, kFirst)}) {
    sound.start(broken);
    EXPECT_FALSE(sound.playToEnd(broken)) << broken.left(50).toHex(' ').toStdString();
  }
  EXPECT_TRUE(sound.playToEnd(whole));
}

TEST_F(SdlSoundTest, WithoutADeviceNothingIsHeardAndNothingBreaks) {
  qputenv("SDL_AUDIODRIVER", "there-is-no-such-driver");
  EXPECT_FALSE(sound.open());
  sound.start(tone(20, kFirst));
  sound.start({});
  EXPECT_FALSE(sound.playToEnd(tone(60'000, kFirst)));
}

TEST_F(SdlSoundTest, AServerThatNeverAnswersHoldsNothingUp) {
  sockaddr_un address{AF_UNIX, {}};
  const QByteArray path = folder.filePath("server").toLocal8Bit();
  ASSERT_LT(path.size(), qsizetype(sizeof address.sun_path));
  std::copy(path.begin(), path.end(), address.sun_path);
  const int server = socket(AF_UNIX, SOCK_STREAM, 0);
  ASSERT_EQ(bind(server, reinterpret_cast<sockaddr *>(&address), sizeof address), 0);
  ASSERT_EQ(listen(server, 9), 0);
  qputenv("PULSE_SERVER", "unix:" + path);
  qputenv("SDL_AUDIODRIVER", "pulseaudio");
  QElapsedTimer timer;
  timer.start();
  EXPECT_FALSE(sound.open());
  EXPECT_FALSE(sound.playToEnd(tone(20, kFirst)));
  EXPECT_FALSE(sound.playToEnd(tone(20, kFirst)));
  EXPECT_LT(timer.elapsed(), 20'000) << "the library gives up after half a minute";
  close(server); // which lets it give up
}

} // namespace
