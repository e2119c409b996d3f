#define SDL_MAIN_HANDLED
#include "SdlSound.h"

#include <SDL.h>

#include <memory>
#include <thread>

namespace {

constexpr int kRate = 44100; // frames per second
constexpr qsizetype kChannels = 2;
constexpr SDL_AudioFormat kFormat = AUDIO_S16SYS;
constexpr qsizetype kFrameBytes = kChannels * 2;
constexpr qsizetype kBytesPerSecond = kRate * kFrameBytes;
constexpr int kBufferFrames = 1024; // 23 ms
/// From the call for a sound to its being under way: a buffer and the fading of the one before.
constexpr std::chrono::milliseconds kDelay{1000 * (kBufferFrames + SdlSound::kFadeFrames) / kRate +
                                           1};
constexpr qsizetype kMostRemembered = 1'000'000; // bytes: all but the jingle of 19 s
constexpr std::chrono::seconds kRetry{10};
constexpr std::chrono::seconds kSilence{30}; // longer than the longest sound, 19 s

} // namespace

QByteArray SdlSound::decoded(const Klang &klang) {
  SDL_AudioSpec audio{};
  Uint8 *data = nullptr;
  Uint32 length = 0;
  SDL_RWops *file = SDL_RWFromConstMem(klang.constData(), static_cast<int>(klang.size()));
  if (!SDL_LoadWAV_RW(file, 1, &audio, &data, &length))
    return {};
  const std::unique_ptr<Uint8, decltype(&SDL_FreeWAV)> wav(data, &SDL_FreeWAV);

  SDL_AudioCVT conversion;
  if (SDL_BuildAudioCVT(&conversion, audio.format, audio.channels, audio.freq, kFormat, kChannels,
                        kRate) < 0)
    return {};
  QByteArray pcm(static_cast<qsizetype>(length) * conversion.len_mult, Qt::Uninitialized);
  std::copy_n(data, length, pcm.data());
  conversion.buf = reinterpret_cast<Uint8 *>(pcm.data());
  conversion.len = static_cast<int>(length);
  conversion.len_cvt = conversion.len;
  if (conversion.needed && SDL_ConvertAudio(&conversion) != 0)
    return {};
  pcm.resize(conversion.len_cvt);
  pcm.squeeze();
  return pcm;
}

SdlSound::SdlSound() {
  silence_.setSingleShot(true);
  silence_.setInterval(kSilence);
  silence_.callOnTimeout([this] { close(); });
}

SdlSound::~SdlSound() {
  close();
  if (SDL_WasInit(SDL_INIT_AUDIO) != 0)
    SDL_QuitSubSystem(SDL_INIT_AUDIO);
}

void SdlSound::close() {
  if (device_ != 0)
    SDL_CloseAudioDevice(device_);
  device_ = 0;
}

bool SdlSound::open() {
  silence_.start();
  if (device_ != 0 && SDL_GetAudioDeviceStatus(device_) != SDL_AUDIO_STOPPED)
    return true;
  const auto now = std::chrono::steady_clock::now();
  if (failedAt_ && now - *failedAt_ < kRetry)
    return false;
  close(); // the card has gone

  SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
  SDL_AudioSpec audio{};
  audio.freq = kRate;
  audio.format = kFormat;
  audio.channels = kChannels;
  audio.samples = kBufferFrames;
  if (SDL_WasInit(SDL_INIT_AUDIO) != 0 || SDL_InitSubSystem(SDL_INIT_AUDIO) == 0)
    device_ = SDL_OpenAudioDevice(nullptr, 0, &audio, nullptr, 0);
  if (device_ == 0) {
    failedAt_ = now;
    return false;
  }
  failedAt_.reset();
  SDL_PauseAudioDevice(device_, 0);
  return true;
}

bool SdlSound::playToEnd(const Klang &klang) {
  const auto length = play(klang);
  if (!length)
    return false;
  std::this_thread::sleep_for(*length + kDelay);
  return true;
}

std::optional<std::chrono::microseconds> SdlSound::play(const Klang &klang) {
  if (klang.isEmpty()) {
    if (device_ != 0)
      cut();
    return std::chrono::microseconds(0);
  }
  if (!open())
    return std::nullopt;
  const QByteArray pcm = remembered(klang);
  cut();
  if (pcm.isEmpty() ||
      SDL_QueueAudio(device_, pcm.constData(), static_cast<Uint32>(pcm.size())) != 0)
    return std::nullopt;
  playing_ = pcm;
  return std::chrono::microseconds(pcm.size() * 1'000'000 / kBytesPerSecond);
}

QByteArray SdlSound::remembered(const Klang &klang) {
  if (const auto found = decoded_.constFind(klang); found != decoded_.constEnd())
    return *found;
  QByteArray pcm = decoded(klang);
  if (pcm.size() <= kMostRemembered)
    decoded_.insert(klang, pcm);
  return pcm;
}

// Ends the sound that is playing, with a short fade.
void SdlSound::cut() {
  SDL_LockAudioDevice(device_);
  const auto left = static_cast<qsizetype>(SDL_GetQueuedAudioSize(device_));
  SDL_ClearQueuedAudio(device_);
  if (left > 0 && left <= playing_.size()) {
    QByteArray tail =
        playing_.last(left).first(std::min<qsizetype>(left, kFadeFrames * kFrameBytes));
    auto *samples = reinterpret_cast<qint16 *>(tail.data());
    const qsizetype count = tail.size() / static_cast<qsizetype>(sizeof *samples);
    for (qsizetype i = 0; i < count; ++i)
      samples[i] = static_cast<qint16>(samples[i] * (count - 1 - i) / count);
    SDL_QueueAudio(device_, tail.constData(), static_cast<Uint32>(tail.size()));
  }
  playing_.clear();
  SDL_UnlockAudioDevice(device_);
}
