// A whole game through the real sound device, SDL writing what would be heard into a file: each
// sound that was called for is there, in order, whole or cut by the next one.

#include "SdlSound.h"
#include "Stage.h"
#include "sounds.h"

#include <QFile>
#include <QRegularExpression>
#include <QTest>

#include <algorithm>
#include <span>

namespace {

using Clock = std::chrono::steady_clock;
using Frames = std::vector<quint32>; // both channels of 16 bits

/// Hands everything on and writes it down.
struct LoggedSound : SoundDevice {
  struct Call {
    Klang klang;
    bool waits;
    Clock::time_point at;
  };
  SdlSound device;
  std::vector<Call> calls;

  void start(const Klang &klang) override {
    calls.push_back({QByteArray(klang.constData(), klang.size()), false, Clock::now()});
    device.start(klang);
  }
  bool playToEnd(const Klang &klang) override {
    calls.push_back({QByteArray(klang.constData(), klang.size()), true, Clock::now()});
    return device.playToEnd(klang);
  }
  void sleep(int ms) override { FAIL() << "a computed wait of " << ms; }
};

Frames framesOf(const QByteArray &pcm) {
  Frames frames(static_cast<std::size_t>(pcm.size()) / 4);
  std::memcpy(frames.data(), pcm.constData(), frames.size() * 4);
  return frames;
}

/// A letter for each sound.
QChar nameOf(const Klang &klang) {
  const std::pair<const char *, char> names[] = {
      {"boot", 'B'},    {"alle", 'A'},     {"start", 'S'}, {"wasser", 'W'},
      {"treffer", 'T'}, {"versenkt", 'V'}, {"sieg", 'G'},  {"top10", 'J'}};
  for (const auto &[file, name] : names)
    if (loadSound(file) == klang)
      return name;
  return '?';
}

using Heard = Stage;

TEST_F(Heard, IsWhatTheGameCalledFor) {
  const QByteArray driver = qgetenv("SDL_AUDIODRIVER");
  const QString file = folder.filePath("heard.raw");
  qputenv("SDL_AUDIODRIVER", "disk");
  qputenv("SDL_DISKAUDIOFILE", file.toLocal8Bit());
  qputenv("SDL_DISKAUDIODELAY", "5"); // ms a buffer of 23, so that no wait is too short
  LoggedSound logged;
  ASSERT_TRUE(QTest::qWaitFor([&] { return logged.device.open(); }, 30'000));
  robot.reset();
  window = Main(globals, {draw, logged, store, messages, help}, folder.path());
  robot.emplace(*window);
  robot->startBattle(1, draw);
  Robot::onDialog([&](QDialog &end) {
    Robot::onDialog([&](QDialog &topTen) {
      QTest::qWait(300);
      topTen.close();
    });
    Robot::click(Robot::control(end, "cmdJa"));
  });
  winAsHuman();
  window->close();
  qputenv("SDL_AUDIODRIVER", driver);
  // Eight boats, the last one once more and waiting, the fleet; 17 hits with 16 replies, of which
  // the last of each boat is its sinking; the win and the top ten.
  QString names;
  for (const auto &[klang, waits, time] : logged.calls)
    names += klang.isEmpty() ? '-' : waits ? nameOf(klang).toLower() : nameOf(klang);
  EXPECT_TRUE(QRegularExpression("^B{8}bAS([tv][WTV]){16}vGJ--$").match(names).hasMatch())
      << names.toStdString();

  QFile raw(file);
  ASSERT_TRUE(raw.open(QIODevice::ReadOnly));
  const Frames heard = framesOf(raw.readAll());
  std::size_t at = 0;
  const auto skipSilence = [&](const Frames &frames, std::size_t from) {
    return static_cast<std::size_t>(
        std::find_if(frames.begin() + static_cast<std::ptrdiff_t>(std::min(from, frames.size())),
                     frames.end(), [](quint32 frame) { return frame != 0; }) -
        frames.begin());
  };
  for (std::size_t i = 0; i < logged.calls.size(); ++i) {
    const auto &[klang, waits, time] = logged.calls[i];
    if (klang.isEmpty())
      continue;
    SCOPED_TRACE("call " + std::to_string(i));
    Frames whole = framesOf(SdlSound::decoded(klang));
    while (!whole.empty() && whole.back() == 0)
      whole.pop_back();
    const std::size_t first = skipSilence(whole, 0);
    at = skipSilence(heard, at);
    // Before it may come the end of one that was cut.
    const auto begins = [&](std::size_t from) {
      const std::size_t count =
          std::min({std::size_t(32), whole.size() - first, heard.size() - from});
      return std::memcmp(&heard[from], &whole[first], count * sizeof(quint32)) == 0;
    };
    std::size_t from = at;
    for (int faded = 0; faded <= SdlSound::kFadeFrames && from < heard.size() && !begins(from);
         ++faded)
      from = skipSilence(heard, from + 1);
    const bool begun = from < heard.size() && begins(from); // not if it was cut before a frame
    if (begun)
      at = from;
    std::size_t length = 0; // of the part that is heard
    while (begun && first + length < whole.size() && at + length < heard.size() &&
           heard[at + length] == whole[first + length])
      ++length;
    const bool toEnd = first + length == whole.size();
    const bool isLast = i + 1 == logged.calls.size();
    const auto lasts = std::chrono::microseconds(whole.size() * 1'000'000 / 44'100);
    const bool cut = !waits && !isLast && logged.calls[i + 1].at - time <= lasts;
    if (cut && toEnd && logged.calls[i + 1].klang == klang)
      continue; // cut before a frame of it was heard: this is the next one
    at += length;
    EXPECT_TRUE(toEnd || cut) << length << " of " << whole.size() << " frames";
  }
  const auto rest = heard.begin() + static_cast<std::ptrdiff_t>(at);
  EXPECT_LE(heard.end() - rest - std::count(rest, heard.end(), 0u), SdlSound::kFadeFrames)
      << "nothing else is heard";
}

} // namespace
