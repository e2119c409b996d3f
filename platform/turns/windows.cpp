#include "turns.h"

#include <chrono>
#include <string>
#include <thread>

#include <fcntl.h>
#include <io.h>
#include <sys/stat.h>
#include <windows.h>

std::FILE *openFile(const std::filesystem::path &path, const char *mode) {
  const std::string letters(mode);
  std::FILE *file = nullptr;
  if (letters == "wbx") { // which Microsoft's library does not know
    const int opened =
        _wopen(path.c_str(), _O_WRONLY | _O_CREAT | _O_EXCL | _O_BINARY, _S_IREAD | _S_IWRITE);
    file = opened < 0 ? nullptr : _fdopen(opened, "wb");
  } else {
    file = _wfopen(path.c_str(), std::wstring(letters.begin(), letters.end()).c_str());
  }
  if (file)
    std::setvbuf(file, nullptr, _IOFBF, 4096); // without a buffer each byte would be a write
  return file;
}

void takeTurn(std::FILE &file, Turn turn) {
  const auto handle = reinterpret_cast<HANDLE>(_get_osfhandle(_fileno(&file)));
  const DWORD kind =
      LOCKFILE_FAIL_IMMEDIATELY | (turn == Turn::reading ? 0u : LOCKFILE_EXCLUSIVE_LOCK);
  // Nobody can write to bytes that another has locked, not even without a turn. So the byte that is
  // locked lies far beyond the end.
  OVERLAPPED place{};
  place.OffsetHigh = 0x7fffffff;
  const auto isTaken = [&] {
    return !LockFileEx(handle, kind, 0, 1, 0, &place) && GetLastError() == ERROR_LOCK_VIOLATION;
  };
  const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(2);
  while (isTaken() && std::chrono::steady_clock::now() < end)
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
}
