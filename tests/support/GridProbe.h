#pragma once

#include "clsGrid.h"

#include <string>
#include <utility>
#include <vector>

/// Sets up positions on a board and calls single steps of its routines.
///
/// A position is drawn row by row with `/` between the rows, a letter a cell: `A` is boat 1, `B`
/// boat 2 and so on, `.` water, as is all that is left out. Points are numbered row by row.
class GridProbe {
public:
  explicit GridProbe(clsGrid &grid) : grid_(grid) {}

  /// Places boats of the computer or of the human, as far as drawn, on emptied fields.
  void placeComputer(const char *fleet) { place(grid_.CFeld_, grid_.CBoote_, fleet); }
  void placeHuman(const char *fleet) { place(grid_.PFeld_, grid_.PBoote_, fleet); }

  /// The computer has hit point `j` of a boat of the human.
  void hitHuman(int BootID, int j) {
    setStatus(BootID, j, tBoot::hit);
    grid_.Treffer = static_cast<std::uint8_t>(BootID);
  }
  void sinkHuman(int BootID) {
    for (int j = 1; j <= humanBoat(BootID).length(); ++j)
      setStatus(BootID, j, tBoot::sunk);
  }

  Field &CFeld() { return grid_.CFeld_; }
  Field &PFeld() { return grid_.PFeld_; }
  tBoot &humanBoat(int BootID) { return grid_.PBoote_[clsGrid::boat(BootID)]; }

  std::vector<Cell> ShotList() { return grid_.ShotList(); }
  bool CreateComputerBoat(int BootID) { return grid_.CreateComputerBoat(BootID); }
  bool PlaceComputerBoats() { return grid_.PlaceComputerBoats(); }
  bool FindFreeCell(int &X, int &Y) { return grid_.FindFreeCell(X, Y); }
  int FindDirection(int Direction, int X, int Y) { return grid_.FindDirection(Direction, X, Y); }

  /// Calls `f(X, Y, letter)` for each cell of a drawing.
  template <typename F>
  static void forEach(const char *drawing, F f) {
    for (int X = 1, Y = 1; *drawing; ++drawing)
      *drawing == '/' ? (X = 1, ++Y, void()) : f(X++, Y, *drawing);
  }
  /// Draws `+` where `is(X, Y)` holds; what is empty at an end is left out.
  template <typename F>
  std::string drawing(F is) const {
    std::string text, gap;
    for (int Y = 1; Y <= grid_.rows(); ++Y, gap.erase(gap.find_last_not_of('.') + 1), gap += '/')
      for (int X = 1; X <= grid_.columns(); ++X)
        if (gap += is(X, Y) ? '+' : '.'; gap.back() == '+')
          text += std::exchange(gap, "");
    return text;
  }

private:
  void setStatus(int BootID, int j, std::uint8_t status) {
    tBoot &boot = humanBoat(BootID);
    boot.setStatus(j, status);
    grid_.PFeld_.set(boot.X(j), boot.Y(j), 2, status);
  }
  static void place(Field &field, std::vector<tBoot> &boats, const char *fleet) {
    std::vector<int> points(boats.size(), 0);
    forEach(fleet, [&](int X, int Y, char letter) {
      if (letter == '.')
        return;
      const auto i = static_cast<std::size_t>(letter - 'A');
      boats.at(i).setPoint(++points[i], X, Y);
      field.set(X, Y, 1, static_cast<std::uint8_t>(i + 1));
    });
  }

  clsGrid &grid_;
};
