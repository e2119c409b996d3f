#include "fonts.h"

#include <QLibrary>

std::jthread readFontsAhead() {
  // Qt has loaded this library already, and finds the configuration in memory later on.
  return std::jthread([] {
    if (const auto FcInit =
            reinterpret_cast<int (*)()>(QLibrary::resolve("fontconfig", 1, "FcInit")))
      FcInit();
  });
}
