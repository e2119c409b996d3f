#include "SoundPlayer.h"

#include <gtest/gtest.h>

namespace {

/// A device that notes what it is asked for.
struct RecordingDevice : SoundDevice {
  bool usable = true;
  std::string calls;

  void start(const Klang &klang) override { note("start", klang.size()); }
  bool playToEnd(const Klang &klang) override {
    note("play", klang.size());
    return usable;
  }
  void sleep(int ms) override { note("sleep", ms); }
  void note(const char *call, qsizetype number) {
    calls += std::string(call) + ' ' + std::to_string(number) + ';';
  }
};

TEST(SoundPlayer, AWaitingSoundCostsItsTimeInEveryCase) {
  struct Case {
    std::vector<int> Sounds;
    bool Async;
    int bytes;
    const char *usable, *unusable; // what the device is asked for
  };
  const Case cases[] = {
      {{0}, true, 9636, "", ""},
      {{0}, false, 9636, "sleep 348;", "sleep 348;"},
      {{1, 2, 255}, true, 9636, "start 9636;", "start 9636;"},
      {{1, 2, 255}, false, 9636, "play 9636;", "play 9636;sleep 348;"},
      {{0}, false, 10972, "sleep 396;", "sleep 396;"},
      {{0}, false, 0, "sleep 0;", "sleep 0;"},
      {{1}, true, 0, "start 0;", "start 0;"}, // stops the sound before
      {{1}, false, 0, "play 0;", "play 0;sleep 0;"},
  };
  for (const Case &c : cases)
    for (const int value : c.Sounds)
      for (const bool usable : {true, false}) {
        RecordingDevice device;
        device.usable = usable;
        std::uint8_t Sound = value == 0;
        SoundPlayer player(device, Sound);
        Sound = static_cast<std::uint8_t>(value); // the switch may change at any time
        player.PlayWav(Klang(c.bytes, 'x'), c.Async);
        EXPECT_EQ(device.calls, usable ? c.usable : c.unusable) << "Sound " << value;
      }
}

} // namespace
