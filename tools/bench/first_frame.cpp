// Preloaded into a program of the X11 platform: notes when the first frame of a wide window is on
// its way to the X server.
//
// FIRST_FRAME_WIDTH   pixels; frames of narrower windows (a splash) don't count
// FIRST_FRAME_FILE    gets the time, in ns of CLOCK_MONOTONIC
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <dlfcn.h>

namespace {

void note(int width) {
  static bool done = false;
  const char *least = std::getenv("FIRST_FRAME_WIDTH");
  const char *path = std::getenv("FIRST_FRAME_FILE");
  if (done || !least || !path || width < std::atoi(least))
    return;
  done = true;
  timespec now{};
  clock_gettime(CLOCK_MONOTONIC, &now);
  if (std::FILE *file = std::fopen(path, "w")) {
    std::fprintf(file, "%lld\n", now.tv_sec * 1'000'000'000LL + now.tv_nsec);
    std::fclose(file);
  }
}

} // namespace

// As libxcb-shm declares it, whose headers it would take only for this.
struct Cookie {
  unsigned int sequence;
};

extern "C" Cookie xcb_shm_put_image(void *connection, std::uint32_t drawable, std::uint32_t gc,
                                    std::uint16_t totalWidth, std::uint16_t totalHeight,
                                    std::uint16_t srcX, std::uint16_t srcY, std::uint16_t srcWidth,
                                    std::uint16_t srcHeight, std::int16_t dstX, std::int16_t dstY,
                                    std::uint8_t depth, std::uint8_t format, std::uint8_t sendEvent,
                                    std::uint32_t segment, std::uint32_t offset) {
  // Loaded behind us and for the platform plugin only, so it is not the next one in line.
  static const auto real = reinterpret_cast<decltype(&xcb_shm_put_image)>(
      dlsym(dlopen("libxcb-shm.so.0", RTLD_LAZY), "xcb_shm_put_image"));
  note(totalWidth);
  return real(connection, drawable, gc, totalWidth, totalHeight, srcX, srcY, srcWidth, srcHeight,
              dstX, dstY, depth, format, sendEvent, segment, offset);
}
