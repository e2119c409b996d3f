#include "SdlSound.h"
#include "pictures.h"
#include "sounds.h"

#include <gtest/gtest.h>

namespace {

// The game waits by the bytes of a file or, while it is heard, by its length.
TEST(Assets, SoundsHaveTheirLength) {
  const std::tuple<const char *, int, double> cases[] = {
      {"muell", 31820, 1.32},   {"boot", 33280, 0.75},      {"alle", 135544, 3.07},
      {"start", 62888, 1.41},   {"wasser", 9636, 0.87},     {"doppelt", 10972, 0.97},
      {"treffer", 16556, 0.75}, {"versenkt", 39104, 1.77},  {"sieg", 64200, 2.91},
      {"top10", 209296, 18.98}, {"verloren", 451600, 2.56},
  };
  for (const auto &[name, bytes, seconds] : cases) {
    const Klang klang = loadSound(name);
    EXPECT_EQ(klang.size(), bytes) << name;
    const qsizetype frames = SdlSound::decoded(klang).size() / 4;
    EXPECT_NEAR(static_cast<double>(frames) / 44100, seconds, 0.02) << name;
  }
}

TEST(Assets, PicturesHaveTheSizeOfTheDesignAndTwiceThat) {
  const std::pair<QSize, const char *> cases[] = {
      {{701, 405}, "haupt-hintergrund"},
      {{332, 245}, "neu-hintergrund"},
      {{401, 198}, "meldung-hintergrund"},
      {{383, 222}, "sieg-hintergrund optionen-hintergrund"},
      {{300, 382}, "score-hintergrund"},
      {{351, 30}, "banner-sieg"},
      {{153, 27}, "banner-verloren"},
      {{276, 81}, "banner-optionen"},
      {{700, 50}, "leiste"},
      {{90, 60}, "leiste-bild"},
      {{97, 51}, "boot-klein"},
      {{300, 160}, "start"},
      {{49, 40}, "tb-neu tb-optionen tb-top10 tb-ende tb-hilfe"},
      {{32, 32}, "groesse-1 groesse-2 groesse-3 ton-an ton-aus hilfe-an hilfe-aus"},
      {{32, 32}, "fadenkreuz muell-grau muell-rot"},
      {{16, 16}, "muell-klein"},
      {{25, 25}, "wasser daneben versenkt"},
      {{34, 33}, "boot treffer"},
  };
  for (const auto &[size, names] : cases)
    for (const QString &name : QString(names).split(' '))
      for (const int scale : {1, 2}) {
        const QString file = name + (scale == 2 ? "@2x" : "");
        const QImage picture = loadImage(file);
        EXPECT_EQ(picture.size(), scale * size) << file.toStdString();
        EXPECT_EQ(picture.devicePixelRatio(), scale) << file.toStdString();
        EXPECT_EQ(picture, QImage(KORVEL_PICTURES "/" + file).convertToFormat(picture.format()));
      }
}

} // namespace
