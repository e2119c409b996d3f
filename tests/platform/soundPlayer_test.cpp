#include "SoundPlayer.h"
#include "standIns.h"

#include <gtest/gtest.h>

namespace {

TEST(SoundPlayer, AWaitingSoundCostsItsTimeInEveryCase) {
  struct Case {
    std::vector<int> Sounds;
    bool Async;
    int bytes;
    Log usable, unusable; // what the device is asked for
  };
  const Case cases[] = {
      {{0}, true, 9636, {}, {}},
      {{0}, false, 9636, {"sleep 348"}, {"sleep 348"}},
      {{1, 2, 255}, true, 9636, {"start 9636"}, {"start 9636"}},
      {{1, 2, 255}, false, 9636, {"wait 9636"}, {"wait 9636", "sleep 348"}},
      {{0}, false, 10972, {"sleep 396"}, {"sleep 396"}},
      {{0}, false, 0, {"sleep 0"}, {"sleep 0"}},
      {{1}, true, 0, {"start 0"}, {"start 0"}}, // stops the sound before
      {{1}, false, 0, {"wait 0"}, {"wait 0", "sleep 0"}},
  };
  for (const Case &c : cases)
    for (const int value : c.Sounds)
      for (const bool usable : {true, false}) {
        QuietSound device;
        device.usable = usable;
        std::uint8_t Sound = value == 0;
        SoundPlayer player(device, Sound);
        Sound = static_cast<std::uint8_t>(value); // the switch may change at any time
        player.PlayWav(Klang(c.bytes, 'x'), c.Async);
        EXPECT_EQ(device.log, usable ? c.usable : c.unusable) << "Sound " << value;
      }
}

} // namespace
