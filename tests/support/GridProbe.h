#pragma once

#include "clsGrid.h"

#include <string>
#include <vector>

/// Sets up positions on a board and calls single steps of its routines.
///
/// A position is drawn as rows of text, a letter a cell: `A` is boat 1, `B` boat 2 and so on, `.`
/// water. Points are numbered row by row.
class GridProbe {
public:
  explicit GridProbe(clsGrid &grid) : grid_(grid) {}

  /// Empties the fields and places boats of the computer or of the human, as far as drawn.
  void placeComputer(const std::vector<std::string> &rows) {
    place(grid_.CFeld_, grid_.CBoote_, rows);
  }
  void placeHuman(const std::vector<std::string> &rows) { place(grid_.PFeld_, grid_.PBoote_, rows); }

  /// Layer 2 of the human's field from rows of `.` unknown, `o` water known.
  void know(const std::vector<std::string> &rows) {
    for (std::size_t y = 0; y < rows.size(); ++y)
      for (std::size_t x = 0; x < rows[y].size(); ++x)
        grid_.PFeld_(static_cast<int>(x) + 1, static_cast<int>(y) + 1, 2) =
            rows[y][x] == 'o' ? Shot::miss : Shot::none;
  }

  /// The computer has hit point `j` of a boat of the human.
  void hitHuman(int BootID, int j) {
    tBoot &boot = humanBoat(BootID);
    boot.setStatus(j, tBoot::hit);
    grid_.PFeld_(boot.X(j), boot.Y(j), 2) = Shot::hit;
    grid_.Treffer = static_cast<std::uint8_t>(BootID);
  }
  void sinkHuman(int BootID) {
    tBoot &boot = humanBoat(BootID);
    for (int j = 1; j <= boot.length(); ++j) {
      boot.setStatus(j, tBoot::sunk);
      grid_.PFeld_(boot.X(j), boot.Y(j), 2) = Shot::sunk;
    }
  }

  Field &CFeld() { return grid_.CFeld_; }
  Field &PFeld() { return grid_.PFeld_; }
  tBoot &humanBoat(int BootID) { return grid_.PBoote_[clsGrid::boat(BootID)]; }

  std::vector<Cell> ShotList() { return grid_.ShotList(); }
  bool CreateComputerBoat(int BootID) { return grid_.CreateComputerBoat(BootID); }
  bool PlaceComputerBoats() { return grid_.PlaceComputerBoats(); }
  bool FindFreeCell(int &X, int &Y) { return grid_.FindFreeCell(X, Y); }
  int FindDirection(int Direction, int X, int Y) { return grid_.FindDirection(Direction, X, Y); }
  void MarkAroundBoat(int BootID) { grid_.MarkAroundBoat(BootID); }

private:
  static void place(Field &field, std::vector<tBoot> &boats, const std::vector<std::string> &rows) {
    std::vector<int> points(boats.size(), 0);
    for (std::size_t y = 0; y < rows.size(); ++y)
      for (std::size_t x = 0; x < rows[y].size(); ++x) {
        if (rows[y][x] == '.')
          continue;
        const auto i = static_cast<std::size_t>(rows[y][x] - 'A');
        const int X = static_cast<int>(x) + 1;
        const int Y = static_cast<int>(y) + 1;
        boats.at(i).setPoint(++points[i], X, Y);
        field(X, Y, 1) = static_cast<std::uint8_t>(i + 1);
      }
  }

  clsGrid &grid_;
};
