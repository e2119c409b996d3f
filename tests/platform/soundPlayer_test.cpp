#include "SoundPlayer.h"
#include "standIns.h"

#include <gtest/gtest.h>

namespace {

TEST(SoundPlayer, AWaitingSoundCostsItsTimeInEveryCase) {
  const std::tuple<std::uint8_t, bool, bool, int, Log> cases[] = {
      {0, true, true, 9636, {}},
      {0, true, false, 9636, {"sleep 348"}},
      {2, true, true, 9636, {"start 9636"}}, // any value but 0 is on
      {255, true, false, 9636, {"wait 9636"}},
      {1, false, false, 10972, {"wait 10972", "sleep 396"}},
  };
  for (const auto &[value, usable, Async, bytes, expected] : cases) {
    QuietSound device;
    device.usable = usable;
    std::uint8_t Sound = value == 0;
    SoundPlayer player(device, Sound);
    Sound = value; // the switch may change at any time
    player.PlayWav(Klang(bytes, 'x'), Async);
    EXPECT_EQ(device.log, expected) << "Sound " << int(value);
  }
}

} // namespace
