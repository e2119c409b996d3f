#define SDL_MAIN_HANDLED
#include <QFile>
#include <QImage>
#include <QtEndian>
#include <SDL.h>
#include <gtest/gtest.h>

namespace {

TEST(Assets, SoundsHaveTheirFormatAndLength) {
  struct Case {
    const char *name;
    int bytes, tag, channels, rate, bits;
    double seconds;
  };
  const Case cases[] = {
      {"muell", 31820, 2, 2, 22050, 4, 1.32},      {"boot", 33280, 1, 1, 22050, 16, 0.75},
      {"alle", 135544, 1, 1, 22050, 16, 3.07},     {"start", 62888, 1, 1, 22050, 16, 1.41},
      {"wasser", 9636, 1, 1, 11025, 8, 0.87},      {"doppelt", 10972, 2, 1, 22050, 4, 0.97},
      {"treffer", 16556, 1, 1, 22050, 8, 0.75},    {"versenkt", 39104, 1, 1, 22050, 8, 1.77},
      {"sieg", 64200, 1, 1, 11025, 16, 2.91},      {"top10", 209296, 1, 1, 11025, 8, 18.98},
      {"verloren", 451600, 1, 2, 44100, 16, 2.56},
  };
  for (const Case &c : cases) {
    SCOPED_TRACE(c.name);
    QFile resource(QString(":/sounds/%1.wav").arg(c.name));
    ASSERT_TRUE(resource.open(QIODevice::ReadOnly));
    const QByteArray file = resource.readAll();
    EXPECT_EQ(file.size(), c.bytes);

    const char *format = file.constData() + file.indexOf("fmt ") + 8;
    EXPECT_EQ(qFromLittleEndian<quint16>(format), c.tag);
    EXPECT_EQ(qFromLittleEndian<quint16>(format + 14), c.bits);
    SDL_AudioSpec audio{};
    Uint8 *data = nullptr;
    Uint32 length = 0;
    SDL_RWops *bytes = SDL_RWFromConstMem(file.constData(), static_cast<int>(file.size()));
    ASSERT_TRUE(SDL_LoadWAV_RW(bytes, 1, &audio, &data, &length)) << SDL_GetError();
    SDL_FreeWAV(data);
    EXPECT_EQ(audio.channels, c.channels);
    EXPECT_EQ(audio.freq, c.rate);
    const int frame = audio.channels * SDL_AUDIO_BITSIZE(audio.format) / 8;
    EXPECT_NEAR(static_cast<double>(length) / frame / audio.freq, c.seconds, 0.02);
  }
}

TEST(Assets, PicturesHaveTheSizeOfTheDesignAndTwiceThat) {
  const std::pair<QSize, QStringList> cases[] = {
      {{701, 405}, {"haupt-hintergrund"}},
      {{700, 50}, {"leiste"}},
      {{90, 60}, {"leiste-bild"}},
      {{49, 40}, {"tb-neu", "tb-optionen", "tb-top10", "tb-ende", "tb-hilfe"}},
      {{97, 51}, {"boot-klein"}},
      {{32, 32}, {"fadenkreuz", "muell-grau", "muell-rot", "groesse-1", "groesse-2", "groesse-3"}},
      {{25, 25}, {"wasser", "daneben", "versenkt"}},
      {{34, 33}, {"boot", "treffer"}},
      {{332, 245}, {"neu-hintergrund"}},
      {{401, 198}, {"meldung-hintergrund"}},
  };
  for (const auto &[size, names] : cases)
    for (const QString &name : names) {
      // Without an ending Qt tries those that it knows.
      EXPECT_EQ(QImage(":/pictures/" + name).size(), size) << name.toStdString();
      EXPECT_EQ(QImage(":/pictures/" + name + "@2x").size(), 2 * size) << name.toStdString();
    }
}

} // namespace
