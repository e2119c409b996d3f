#define SDL_MAIN_HANDLED
#include "SdlSound.h"

#include <QHash>
#include <SDL.h>

#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <utility>

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
/// How long the game waits for SDL before it goes on without sound.
constexpr std::chrono::milliseconds kPatience{500};
constexpr std::chrono::seconds kRetry{10};
constexpr std::chrono::seconds kSilence{30}; // longer than the longest sound, 19 s

using Clock = std::chrono::steady_clock;
using Length = std::optional<std::chrono::microseconds>;

} // namespace

/// The sound card, and the thread that it belongs to.
class SdlSound::Card {
public:
  void run(); ///< the thread

  // What the game asks for. None of it waits for SDL longer than `kPatience`.
  bool ask(const std::optional<Klang> &klang); ///< to play, empty to stop; nothing: to get ready
  Length lengthOfPlaying(); ///< nothing if the sound that was asked for last can't be heard
  bool end();               ///< false if SDL is still at work

private:
  void work(std::unique_lock<std::mutex> &lock, const std::function<void()> &calls);
  void openDevice();
  void closeDevice();
  void start(const Klang &klang);
  QByteArray remembered(const Klang &klang);
  void cut();

  std::mutex mutex_; ///< for what both threads use; free while SDL is at work
  std::condition_variable changed_;
  bool isToOpen_ = false, isToEnd_ = false;
  std::optional<Klang> next_; ///< the sound that is asked for
  std::optional<Clock::time_point> busySince_;
  bool isOpen_ = false, hasEnded_ = false;
  Length length_; ///< of the sound that the last work has started, if it has

  // Of the thread alone.
  SDL_AudioDeviceID device_ = 0; ///< 0 for none
  Clock::time_point retryAt_;    ///< not before
  QHash<Klang, QByteArray> decoded_;
  QByteArray playing_; ///< the sound that was queued last, in the format of the device
  Length started_;     ///< its length, until `work` takes it
};

SdlSound::SdlSound() : card_(std::make_shared<Card>()), thread_([card = card_] { card->run(); }) {}

SdlSound::~SdlSound() {
  if (card_->end())
    thread_.join();
  else
    thread_.detach();
}

bool SdlSound::open() { return card_->ask(std::nullopt); }

void SdlSound::start(const Klang &klang) { card_->ask(klang); }

bool SdlSound::playToEnd(const Klang &klang) {
  card_->ask(klang);
  const Length length = card_->lengthOfPlaying();
  if (length)
    std::this_thread::sleep_for(*length + kDelay);
  return length.has_value();
}

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

bool SdlSound::Card::ask(const std::optional<Klang> &klang) {
  const std::lock_guard lock(mutex_);
  isToOpen_ = isToOpen_ || !klang || !klang->isEmpty();
  if (klang)
    next_ = klang;
  changed_.notify_all();
  return isOpen_;
}

Length SdlSound::Card::lengthOfPlaying() {
  std::unique_lock lock(mutex_);
  const bool isDone = changed_.wait_until(lock, busySince_.value_or(Clock::now()) + kPatience,
                                          [this] { return !busySince_ && !next_; });
  return isDone ? length_ : std::nullopt;
}

bool SdlSound::Card::end() {
  std::unique_lock lock(mutex_);
  isToEnd_ = true;
  changed_.notify_all();
  return changed_.wait_for(lock, kPatience, [this] { return hasEnded_; });
}

void SdlSound::Card::run() {
  SDL_SetMainReady(); // as SDL asks of a program with a main of its own
  SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
  const auto isAsked = [this] { return isToOpen_ || isToEnd_ || next_; };
  std::unique_lock lock(mutex_);
  while (!isToEnd_) {
    if (std::exchange(isToOpen_, false))
      work(lock, [this] { openDevice(); });
    else if (const auto klang = std::exchange(next_, std::nullopt))
      work(lock, [&] { start(*klang); });
    else if (device_ == 0)
      changed_.wait(lock, isAsked);
    else if (!changed_.wait_for(lock, kSilence, isAsked))
      work(lock, [this] { closeDevice(); });
  }
  work(lock, [this] {
    closeDevice();
    if (SDL_WasInit(SDL_INIT_AUDIO) != 0)
      SDL_QuitSubSystem(SDL_INIT_AUDIO);
    SDL_TLSCleanup(); // of a thread that SDL hasn't made
  });
  hasEnded_ = true;
  changed_.notify_all();
}

void SdlSound::Card::work(std::unique_lock<std::mutex> &lock, const std::function<void()> &calls) {
  busySince_ = Clock::now();
  lock.unlock();
  calls();
  lock.lock();
  isOpen_ = device_ != 0;
  length_ = std::exchange(started_, std::nullopt);
  if (Clock::now() - *busySince_ > kPatience)
    next_.reset(); // the game has gone on without it
  busySince_.reset();
  changed_.notify_all();
}

void SdlSound::Card::openDevice() {
  if (device_ != 0 && SDL_GetAudioDeviceStatus(device_) != SDL_AUDIO_STOPPED)
    return;
  closeDevice(); // the card has gone
  if (Clock::now() < retryAt_)
    return;
  SDL_AudioSpec audio{};
  audio.freq = kRate;
  audio.format = kFormat;
  audio.channels = kChannels;
  audio.samples = kBufferFrames;
  if (SDL_WasInit(SDL_INIT_AUDIO) != 0 || SDL_InitSubSystem(SDL_INIT_AUDIO) == 0)
    device_ = SDL_OpenAudioDevice(nullptr, 0, &audio, nullptr, 0);
  if (device_ != 0)
    SDL_PauseAudioDevice(device_, 0);
  else
    retryAt_ = Clock::now() + kRetry;
}

void SdlSound::Card::closeDevice() {
  if (device_ != 0)
    SDL_CloseAudioDevice(device_);
  device_ = 0;
}

void SdlSound::Card::start(const Klang &klang) {
  if (device_ == 0)
    return;
  const QByteArray pcm = remembered(klang);
  cut();
  if (pcm.isEmpty() ||
      SDL_QueueAudio(device_, pcm.constData(), static_cast<Uint32>(pcm.size())) != 0)
    return;
  playing_ = pcm;
  started_ = std::chrono::microseconds(pcm.size() * 1'000'000 / kBytesPerSecond);
}

QByteArray SdlSound::Card::remembered(const Klang &klang) {
  if (const auto found = decoded_.constFind(klang); found != decoded_.constEnd())
    return *found;
  QByteArray pcm = decoded(klang);
  if (pcm.size() <= kMostRemembered)
    decoded_.insert(klang, pcm);
  return pcm;
}

// Ends the sound that is playing, with a short fade.
void SdlSound::Card::cut() {
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
