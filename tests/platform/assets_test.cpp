#define SDL_MAIN_HANDLED
#include "pictures.h"

#include <QDir>
#include <QFile>
#include <QtEndian>
#include <SDL.h>
#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace {

double decibel(double value) { return 20 * std::log10(value); }

/// A sound as its player hears it: the samples of a frame side by side, from -1 to 1.
struct Sound {
  std::vector<float> samples;
  int channels = 0, rate = 0;

  explicit Sound(const QByteArray &file) {
    SDL_AudioSpec audio{};
    Uint8 *data = nullptr;
    Uint32 length = 0;
    if (!SDL_LoadWAV_RW(SDL_RWFromConstMem(file.constData(), static_cast<int>(file.size())), 1,
                        &audio, &data, &length))
      return;
    channels = audio.channels;
    rate = audio.freq;
    SDL_AudioStream *stream =
        SDL_NewAudioStream(audio.format, audio.channels, rate, AUDIO_F32SYS, audio.channels, rate);
    SDL_AudioStreamPut(stream, data, static_cast<int>(length));
    SDL_AudioStreamFlush(stream);
    samples.resize(static_cast<std::size_t>(SDL_AudioStreamAvailable(stream)) / sizeof(float));
    SDL_AudioStreamGet(stream, samples.data(), static_cast<int>(samples.size() * sizeof(float)));
    SDL_FreeAudioStream(stream);
    SDL_FreeWAV(data);
  }

  std::size_t frames() const { return samples.size() / static_cast<std::size_t>(channels); }

  double peak(std::size_t from, std::size_t to) const {
    double highest = 0;
    for (std::size_t i = from; i < to; ++i)
      highest = std::max(highest, std::abs(static_cast<double>(samples[i])));
    return highest;
  }

  /// Of the loudest 400 ms, in dB, by the K weighting of ITU-R BS.1770: highs count more, rumble
  /// less. A mono sound comes from two speakers, which have no sound below the lowest Hz.
  double loudness(double lowest = 38.1355) const {
    const auto c = static_cast<std::size_t>(channels);
    const std::size_t window = static_cast<std::size_t>(rate) * 2 / 5;
    std::vector<double> power(frames() + window);
    for (std::size_t channel = 0; channel < c; ++channel) {
      const double high = std::pow(10, 3.99984 / 20), band = std::pow(high, 0.49967);
      double k = std::tan(std::numbers::pi * 1681.97 / rate), q = 0.70718;
      double a0 = 1 + k / q + k * k;
      Filter shelf{{(high + band * k / q + k * k) / a0, 2 * (k * k - high) / a0,
                    (high - band * k / q + k * k) / a0},
                   {2 * (k * k - 1) / a0, (1 - k / q + k * k) / a0}};
      k = std::tan(std::numbers::pi * lowest / rate), q = 0.50033;
      a0 = 1 + k / q + k * k;
      Filter lowCut{{1 / a0, -2 / a0, 1 / a0}, {2 * (k * k - 1) / a0, (1 - k / q + k * k) / a0}};
      for (std::size_t i = 0; i < frames(); ++i)
        power[i] += std::pow(lowCut(shelf(samples[c * i + channel])), 2) * (c == 1 ? 2 : 1);
    }
    double sum = 0, loudest = 0;
    for (std::size_t i = 0; i < power.size(); ++i) {
      sum += power[i] - (i < window ? 0 : power[i - window]);
      loudest = std::max(loudest, sum);
    }
    return -0.691 + decibel(loudest / static_cast<double>(window)) / 2;
  }

private:
  struct Filter {
    double b[3], a[2], x1 = 0, x2 = 0, y1 = 0, y2 = 0;
    double operator()(double x) {
      const double y = b[0] * x + b[1] * x1 + b[2] * x2 - a[0] * y1 - a[1] * y2;
      x2 = std::exchange(x1, x);
      y2 = std::exchange(y1, y);
      return y;
    }
  };
};

TEST(Assets, SoundsHaveTheirFormatLengthAndOneLoudness) {
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

    const Sound sound(file);
    ASSERT_EQ(sound.channels, c.channels) << SDL_GetError();
    EXPECT_EQ(sound.rate, c.rate);
    EXPECT_NEAR(static_cast<double>(sound.frames()) / sound.rate, c.seconds, 0.02);
    const std::size_t all = sound.samples.size(),
                      twoMs = all / sound.frames() * static_cast<std::size_t>(c.rate) / 500;
    EXPECT_LT(decibel(sound.peak(0, all)), -1.5);
    EXPECT_NEAR(sound.loudness(), -15, 0.5);
    EXPECT_GT(sound.loudness(300), -20.5) << "small speakers have it 6 dB below the others";
    // No click: the ends are silent.
    EXPECT_LT(sound.peak(0, twoMs), 0.01);
    EXPECT_LT(sound.peak(all - twoMs, all), 0.01);
  }
}

TEST(Assets, PicturesHaveTheSizeOfTheDesignAndTwiceThat) {
  struct Case {
    QSize size;
    bool seeThrough;
    QStringList names;
  };
  const Case cases[] = {
      {{701, 405}, false, {"haupt-hintergrund"}},
      {{700, 50}, false, {"leiste"}},
      {{90, 60}, true, {"leiste-bild"}},
      {{49, 40}, true, {"tb-neu", "tb-optionen", "tb-top10", "tb-ende", "tb-hilfe"}},
      {{97, 51}, true, {"boot-klein"}},
      {{32, 32}, true, {"fadenkreuz", "muell-grau", "muell-rot", "groesse-1", "groesse-2"}},
      {{32, 32}, true, {"groesse-3", "ton-an", "ton-aus", "hilfe-an", "hilfe-aus"}},
      {{25, 25}, false, {"wasser", "daneben", "versenkt"}},
      {{34, 33}, false, {"boot", "treffer"}},
      {{332, 245}, false, {"neu-hintergrund"}},
      {{401, 198}, false, {"meldung-hintergrund"}},
      {{383, 222}, false, {"sieg-hintergrund", "optionen-hintergrund"}},
      {{351, 30}, true, {"banner-sieg"}},
      {{153, 27}, true, {"banner-verloren"}},
      {{276, 81}, true, {"banner-optionen"}},
      {{300, 382}, false, {"score-hintergrund"}},
      {{16, 16}, true, {"muell-klein"}},
      {{300, 160}, false, {"start"}},
  };
  for (const Case &c : cases)
    for (const QString &name : c.names)
      for (const int scale : {1, 2}) {
        const QImage picture = loadImage(name + (scale == 2 ? "@2x" : ""));
        EXPECT_EQ(picture.size(), scale * c.size) << name.toStdString();
        EXPECT_EQ(picture.devicePixelRatio(), scale) << name.toStdString();
        EXPECT_EQ(picture.hasAlphaChannel(), c.seeThrough) << name.toStdString();
      }
  for (const int size : {16, 24, 32, 48, 64, 128, 256})
    EXPECT_EQ(loadImage(QString("korvel-%1").arg(size)).size(), QSize(size, size));
}

TEST(Assets, DecodedPicturesAreThoseOfTheirFiles) {
  const QStringList names = QDir(":/decoded").entryList();
  ASSERT_TRUE(names.contains("wasser@2x"));
  for (const QString &name : names) {
    const QImage decoded = loadImage(name);
    EXPECT_EQ(decoded, QImage(KORVEL_PICTURES "/" + name).convertToFormat(decoded.format()))
        << name.toStdString();
  }
}

/// The mean difference of two pictures of the same size, 0 to 255.
double difference(const QImage &a, const QImage &b) {
  double sum = 0;
  for (int y = 0; y < a.height(); ++y)
    for (int x = 0; x < a.width(); ++x)
      sum += std::abs(qGray(a.pixel(x, y)) - qGray(b.pixel(x, y)));
  return sum / (a.width() * a.height());
}

TEST(Assets, WaterJoinsItselfWithoutASeam) {
  const QImage water = loadImage("wasser@2x");
  const int last = water.width() - 1;
  const auto column = [&](int x) { return water.copy(x, 0, 1, last + 1); };
  const auto row = [&](int y) { return water.copy(0, y, last + 1, 1); };
  double roughest = 0;
  for (int i = 0; i < last; ++i)
    roughest =
        std::max({roughest, difference(column(i), column(i + 1)), difference(row(i), row(i + 1))});
  EXPECT_LE(difference(column(last), column(0)), roughest);
  EXPECT_LE(difference(row(last), row(0)), roughest);
}

TEST(Assets, CellsAreToldApartInGreyAtTheSmallestSize) {
  std::vector<QImage> cells;
  for (const char *name : {"wasser", "boot", "daneben", "treffer", "versenkt"})
    cells.push_back(loadImage(QString("%1@2x").arg(name))
                        .scaled(15, 15, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
  for (std::size_t i = 0; i < cells.size(); ++i)
    for (std::size_t j = 0; j < i; ++j)
      EXPECT_GT(difference(cells[i], cells[j]), 20) << i << " and " << j;
}

} // namespace
