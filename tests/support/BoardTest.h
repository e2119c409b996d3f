#pragma once

#include "clsGrid.h"
#include "players.h"

#include <gtest/gtest.h>

/// What only tests may reach: arrays to set up positions.
class GridProbe {
public:
  explicit GridProbe(clsGrid &grid) : grid_(grid) {}

  /// Places boats on emptied fields, as far as drawn: rows with `/` between them, `A` for a point
  /// of boat 1, `B` of boat 2 and so on, `.` for water. Points are numbered row by row.
  void placeComputer(const char *fleet) { place(grid_.CFeld_, grid_.CBoote_, fleet); }
  void placeHuman(const char *fleet) { place(grid_.PFeld_, grid_.PBoote_, fleet); }

  Field &PFeld() { return grid_.PFeld_; }

private:
  static void place(Field &field, std::vector<tBoot> &boats, const char *fleet) {
    std::vector<int> points(boats.size(), 0);
    for (int X = 1, Y = 1; *fleet; ++X, ++fleet)
      if (*fleet == '/') {
        X = 0, ++Y;
      } else if (*fleet != '.') {
        const auto i = static_cast<std::size_t>(*fleet - 'A');
        boats.at(i).setPoint(++points[i], X, Y);
        field.set(X, Y, 1, static_cast<std::uint8_t>(i + 1));
      }
  }

  clsGrid &grid_;
};

using Calls = std::vector<std::string>;

/// Writes down each call, in words, into a list that several surfaces may share.
class RecordingSurface : public NullSurface {
public:
  RecordingSurface(const char *name, Calls &calls) : name_(name), calls_(calls) {}

  void setWidth(int width) override { note("width", width); }
  void setHeight(int height) override { note("height", height); }
  void clear() override { note("clear"); }
  void setDrawWidth(int width) override { note("draw width", width); }
  void line(int x1, int y1, int x2, int y2, Colour) override { note("line", x1, y1, x2, y2); }
  void filledBox(int x1, int y1, int x2, int y2, Colour colour) override {
    note(colour == Colour::blue ? "blue box" : "black box", x1, y1, x2, y2);
  }
  void sprite(Picture picture, int x, int y, int width, int height) override {
    static const char *const names[] = {"Wasser", "Boot", "Daneben", "Treffer", "Versenkt"};
    note(names[static_cast<int>(picture)], x, y, width, height);
  }
  void refresh() override { note("refresh"); }

private:
  template <typename... Numbers>
  void note(const char *what, Numbers... numbers) {
    calls_.push_back(name_ + what);
    ((calls_.back() += ' ' + std::to_string(numbers)), ...);
  }

  std::string name_;
  Calls &calls_;
};

/// A board, at first of size 1, whose surfaces write down what is drawn.
struct BoardTest : testing::Test {
  SeededDraw draw{1};
  clsGrid grid{draw};
  GridProbe probe{grid};
  Calls calls;
  RecordingSurface left{"left ", calls};
  RecordingSurface right{"right ", calls};

  BoardTest() {
    grid.setPicComputer(right);
    grid.setPicPlayer(left);
    grid.setSize(1);
    grid.ResetFields();
    calls.clear();
  }
};
