#pragma once

#include <string>
#include <string_view>

/// The character set of the files. The five bytes that it leaves undefined stand for the control
/// characters of the same number, so that every byte survives both conversions.

/// UTF-8 to Windows-1252; what the set lacks, and what is no UTF-8, becomes "?".
std::string toWindows1252(std::string_view utf8);
std::string fromWindows1252(std::string_view bytes);
