#pragma once

#include "Surface.h"

#include <string>
#include <vector>

using Calls = std::vector<std::string>;

/// Writes down every call, in words, into a list that several surfaces may share.
class RecordingSurface : public Surface {
public:
  RecordingSurface(std::string name, Calls &calls) : name_(std::move(name)), calls_(calls) {}

  static std::string call(std::string words, const std::vector<int> &numbers) {
    for (const int number : numbers)
      words += ' ' + std::to_string(number);
    return words;
  }

  void setWidth(int width) override { note("width", {width_ = width}); }
  void setHeight(int height) override { note("height", {height_ = height}); }
  int width() const override { return width_; }
  int height() const override { return height_; }
  void clear() override { note("clear", {}); }
  void setDrawWidth(int width) override { note("draw width", {width}); }
  void line(int x1, int y1, int x2, int y2, Colour) override { note("line", {x1, y1, x2, y2}); }
  void filledBox(int x1, int y1, int x2, int y2, Colour colour) override {
    note(colour == Colour::blue ? "blue box" : "black box", {x1, y1, x2, y2});
  }
  void sprite(Picture picture, int x, int y, int width, int height) override {
    static const char *const names[] = {"Wasser", "Boot", "Daneben", "Treffer", "Versenkt"};
    note(names[static_cast<int>(picture)], {x, y, width, height});
  }
  void refresh() override { note("refresh", {}); }

private:
  void note(const std::string &what, const std::vector<int> &numbers) {
    calls_.push_back(call(name_ + ' ' + what, numbers));
  }

  std::string name_;
  Calls &calls_;
  int width_ = 0, height_ = 0;
};
