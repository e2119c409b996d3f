#include "fonts.h"

#include <QLibrary>

std::future<void> readFontsAhead() {
  // Qt has loaded this library already, and finds the configuration in memory later on. It is
  // looked up here, as the first thread that Qt is used in counts as its main thread.
  const auto FcInit = reinterpret_cast<int (*)()>(QLibrary::resolve("fontconfig", 1, "FcInit"));
  return std::async(std::launch::async, [FcInit] {
    if (FcInit)
      FcInit();
  });
}
