#include "windows1252.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace {

/// Code points of the bytes 0x80 to 0x9F; all other bytes are their own.
constexpr std::array<char32_t, 32> kHigh{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr char32_t kNone = 0xFFFFFFFF;

/// Takes the next code point off the text; `kNone` for a byte that begins none.
char32_t takeCodePoint(std::string_view &text) {
  const auto lead = static_cast<unsigned char>(text.front());
  const std::size_t length = lead < 0x80 ? 1 : lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
  const bool isLead = lead < 0x80 || (lead >= 0xC2 && lead <= 0xF4);
  char32_t code = length == 1 ? lead : lead & (0xFFu >> (length + 1));
  bool whole = isLead && text.size() >= length;
  for (std::size_t i = 1; whole && i < length; ++i) {
    const auto next = static_cast<unsigned char>(text[i]);
    whole = (next & 0xC0) == 0x80;
    code = code << 6 | (next & 0x3F);
  }
  text.remove_prefix(whole ? length : 1);
  return whole ? code : kNone;
}

} // namespace

std::string toWindows1252(std::string_view utf8) {
  std::string bytes;
  while (!utf8.empty()) {
    const char32_t code = takeCodePoint(utf8);
    const auto high = std::find(kHigh.begin(), kHigh.end(), code);
    if (high != kHigh.end())
      bytes += static_cast<char>(0x80 + (high - kHigh.begin()));
    else if (code < 0x80 || (code >= 0xA0 && code <= 0xFF))
      bytes += static_cast<char>(code);
    else
      bytes += '?';
  }
  return bytes;
}

std::string fromWindows1252(std::string_view bytes) {
  std::string utf8;
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    const char32_t code = byte >= 0x80 && byte < 0xA0 ? kHigh[byte - 0x80u] : byte;
    if (code < 0x80) {
      utf8 += c;
    } else if (code < 0x800) {
      utf8 += static_cast<char>(0xC0 | code >> 6);
      utf8 += static_cast<char>(0x80 | (code & 0x3F));
    } else {
      utf8 += static_cast<char>(0xE0 | code >> 12);
      utf8 += static_cast<char>(0x80 | (code >> 6 & 0x3F));
      utf8 += static_cast<char>(0x80 | (code & 0x3F));
    }
  }
  return utf8;
}
