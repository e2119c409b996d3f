#include "fonts.h"

#include <QLibrary>

std::future<void> readFontsAhead() {
  return std::async(std::launch::async, [] {
    // Qt has loaded this library already, and will find the configuration in memory.
    if (const auto FcInit =
            reinterpret_cast<int (*)()>(QLibrary::resolve("fontconfig", 1, "FcInit")))
      FcInit();
  });
}
