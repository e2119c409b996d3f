#pragma once

#include "Field.h"
#include "Label.h"
#include "RandomDraw.h"
#include "Surface.h"
#include "geometry.h"
#include "tBoot.h"
#include "tables.h"

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

/// What a shot did.
enum class ShotCode : std::uint8_t {
  water = 0,
  repeated = 1, ///< this cell was shot at before; nothing changed
  hit = 2,      ///< the boat still floats
  sunk = 3,     ///< the hit sinks the boat
};

/// Six texts for each side, lengths 6 down to 1: [0] the human's boats, [1] the computer's.
using BoatTexts = std::array<std::array<std::string, kClasses>, 2>;

/// Who has won by the counts of a battle: 0 nobody, 1 the human, 2 the computer.
int winnerOf(const BoatTexts &table);

/// The board. Two sides hide a fleet each, `CBoote` on `CFeld` the computer's and `PBoote` on
/// `PFeld` the human's, and shoot at each other's field until one fleet is sunk.
///
///     a boat of 4    not a boat:     not beside another boat,
///     . # . .        a filled        nor at its corner
///     . # # .        square          # # . .
///     . . # .        # #             . . 2 .
///     . . . .        # #             . . . .
///
/// Two surfaces show it, and their roles are not those of the arrays: the human always presses on
/// the left one, `PicPlayer`. It shows the human's own boats while they are set; then the fleet
/// moves to `PicComputer` on the right, where the computer's shots fall, and the left one shows
/// the human's shots at the hidden fleet. Rules read the arrays only, never a surface, and an
/// operation that changes a cell also draws it.
///
/// Cells, boats and points count from 1. Boats are numbered by `BootID` from the longest to the
/// shortest, alike on both sides.
///
/// The routines of the computer are in the room `opponent`.
class clsGrid {
public:
  /// The draw must outlive the board.
  explicit clsGrid(RandomDraw &draw);
  clsGrid(const clsGrid &) = delete;
  clsGrid &operator=(const clsGrid &) = delete;

  // Properties.

  /// The surfaces and the label, set once before the first `setSize`. They must outlive the board;
  /// as long as none is set nothing is shown.
  void setPicComputer(Surface &surface) { PicComputer_ = &surface; }
  void setPicPlayer(Surface &surface) { PicPlayer_ = &surface; }
  void setNameLabel(Label &label) { NameLabel_ = &label; }

  /// The player's name, UTF-8; "Unbekannt" while it is empty.
  std::string PlayerName() const;
  /// Stores the name and shows it on the label.
  void setPlayerName(const std::string &name);

  /// Board size, 1 to 3; 1 until set.
  int Size() const { return Size_; }
  /// Stores the size and builds both surfaces from nothing, also for the size that it has already.
  /// The arrays stay as they are until the next fleet is made.
  void setSize(int Size);

  int CellSize() const { return kCellSize[sizeIndex(Size_)]; } ///< edge of a cell in pixels
  CellGeometry geometry() const { return {CellSize()}; }
  int columns() const { return columnsOf(Size_); }
  int rows() const { return rowsOf(Size_); }
  int BoatCount() const { return static_cast<int>(PBoote_.size()); } ///< boats of the human
  /// Boat cells of the whole fleet of a size: 17, 29, 40.
  static int FleetCells(int Size);

  const Field &CFeld() const { return CFeld_; }
  const Field &PFeld() const { return PFeld_; }
  const tBoot &CBoote(int i) const { return CBoote_[boat(i)]; }
  const tBoot &PBoote(int i) const { return PBoote_[boat(i)]; }

  /// What a surface shows in a cell, as it was drawn last; nothing for a point of the boat in work.
  std::optional<Picture> Shown(const Surface &surface, int X, int Y) const;

  /// Raised when both surfaces have a new outer size, before anything is drawn on them.
  std::function<void()> ChangePicSize;

  /// The human's boat that the computer is finishing, 0 for none.
  std::uint8_t Treffer = 0;

  // Set-up of the human's fleet, on `PFeld` and the left surface.

  /// Empties both fields and all records for the present size.
  void ResetFields();
  /// Whether a further point of the boat may stand on the cell, which lies on the field.
  bool CreatePoint(int BootID, int X, int Y) const;
  /// Stores the cell as point `n` of the boat, which `CreatePoint` has allowed. True if points of
  /// the boat are still missing.
  bool SetPoint(int BootID, int n, int X, int Y);
  /// Shows the finished boat.
  void DrawBoat(int BootID);
  /// Removes all points of the boat.
  void DeleteBoat(int BootID);
  /// The left surface loses the fleet, the right one shows it.
  void MoveFleet();

  // The battle.

  /// The human's shot at a cell of `CFeld`.
  ShotCode Shoot(int X, int Y);
  /// Shows on the left surface what the human did not hit.
  void ShowComputerBoats();
  /// The twelve counters for a mode of the game: 0 idle, 1 set-up, 2 battle; else empty texts.
  BoatTexts BoatTable(int Mode) const;

  // The computer.

  /// Lays the computer's fleet at random on emptied fields. False if a hundred attempts failed.
  bool CreateComputerField();
  /// Whether every boat of the human of two or more cells is sunk.
  bool OnlySinglesLeft() const;
  /// The computer's whole turn. Never gives `repeated`. Some boat of the human must be afloat.
  ShotCode ComputerShoot();
  /// Where the computer has shot last.
  Cell LastShot() const { return LastShot_; }

  /// The first thing that is wrong with the board, if any, in words and with the position. Debug
  /// builds look after every operation and stop if something is wrong.
  std::optional<std::string> brokenInvariant() const;
  /// Both seas as text, the computer's at the left: `.` water, `o` miss, a letter a boat's intact
  /// point, `*` a hit, `#` sunk.
  std::string toText() const;

private:
  friend class GridProbe; // for tests: sets up positions

  void CreateBoats(const FleetTable &table);
  bool CheckDistance(int BootID, int X, int Y) const;
  bool CheckContact(int BootID, int X, int Y) const;
  bool CheckBlock(int X, int Y) const;

  bool hit(Field &field, tBoot &boot, Surface &surface, int X, int Y);
  void sink(Field &field, tBoot &boot, Surface &surface);

  void InitPictures();
  void ClearPictures();
  void show(Picture picture, Surface &surface, int X, int Y);
  void showPoint(int X, int Y);
  bool isLeft(const Surface &surface) const { return &surface == PicPlayer_; }

  bool PlaceComputerBoats();
  bool CreateComputerBoat(int BootID);
  bool FindFreeCell(int &X, int &Y);
  int FindDirection(int Direction, int X, int Y) const;
  std::vector<Cell> ShotList();
  void MarkAroundBoat(int BootID);

  void verify() const;
  static std::size_t boat(int BootID) { return static_cast<std::size_t>(BootID - 1); }

  RandomDraw &draw_;
  Surface *PicComputer_;
  Surface *PicPlayer_;
  Label *NameLabel_ = nullptr;
  std::string PlayerName_;
  int Size_ = 1;
  std::array<Layer, 2> shownOn_{Layer(columns(), rows()), Layer(columns(), rows())}; ///< 1 left
  Field CFeld_;
  Field PFeld_;
  std::vector<tBoot> CBoote_;
  std::vector<tBoot> PBoote_;
  Cell LastShot_{};
};
