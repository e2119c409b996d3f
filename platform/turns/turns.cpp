#include "turns.h"

std::FILE *openFile(const std::filesystem::path &path, const char *mode) {
  std::FILE *file = std::fopen(path.c_str(), mode);
  if (file)
    std::setvbuf(file, nullptr, _IONBF, 0); // so a write is one of the system's at once
  return file;
}

#if __has_include(<sys/file.h>)

#include <cerrno>
#include <chrono>
#include <sys/file.h>
#include <thread>

void takeTurn(std::FILE &file, Turn turn) {
  const int kind = turn == Turn::reading ? LOCK_SH : LOCK_EX;
  const auto isTaken = [&] {
    return flock(fileno(&file), kind | LOCK_NB) != 0 && errno == EWOULDBLOCK;
  };
  for (int tries = 2000; tries > 0 && isTaken(); --tries)
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
}

#else

void takeTurn(std::FILE &, Turn) {}

#endif
