#pragma once

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <fuzzer/FuzzedDataProvider.h>
#include <iterator>
#include <string>

/// Ends the run, with a report and the input kept, if a promise does not hold.
#define PROMISE(holds)                                                                             \
  do {                                                                                             \
    if (!(holds)) {                                                                                \
      std::fprintf(stderr, "%s:%d: broken: %s\n", __FILE__, __LINE__, #holds);                     \
      std::abort();                                                                                \
    }                                                                                              \
  } while (false)

// tools/fuzz runs the targets in a folder of their own, so they use plain file names.

inline void writeFile(const std::string &file, const std::string &bytes) {
  std::ofstream(file, std::ios::binary).write(bytes.data(), static_cast<long>(bytes.size()));
}

inline std::string readFile(const std::string &file) {
  std::ifstream in(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}
