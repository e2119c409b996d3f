#pragma once

#include "Field.h"

#include <string>
#include <vector>

inline std::string toJson(const Cell &cell) {
  return '[' + std::to_string(cell.X) + ',' + std::to_string(cell.Y) + ']';
}

template <typename Value>
std::string toJson(const std::vector<Value> &values) {
  std::string text = "[";
  for (const Value &value : values)
    text += (text.size() > 1 ? "," : "") + toJson(value);
  return text + ']';
}
