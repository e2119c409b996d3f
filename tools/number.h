#pragma once

#include <charconv>
#include <string_view>
#include <system_error>

/// A whole number from 1 to `most`, without anything around it; 0 for any other text.
inline int number(std::string_view text, int most) {
  int value = 0;
  const char *last = text.data() + text.size();
  const auto [end, error] = std::from_chars(text.data(), last, value);
  return error == std::errc() && end == last && value >= 1 && value <= most ? value : 0;
}
