#include "clsGrid.h"

#include <cassert>

namespace {
NullSurface nowhere;
}

clsGrid::clsGrid(RandomDraw &draw) : draw_(draw), PicComputer_(&nowhere), PicPlayer_(&nowhere) {}

std::string clsGrid::PlayerName() const { return PlayerName_.empty() ? "Unbekannt" : PlayerName_; }

void clsGrid::setPlayerName(const std::string &name) {
  PlayerName_ = name;
  if (NameLabel_)
    NameLabel_->setCaption(name);
}

void clsGrid::setSize(int Size) {
  assert(Size >= 1 && Size <= kSizes);
  Size_ = Size;
  InitPictures();
}

int clsGrid::FleetCells(int Size) {
  int cells = 0;
  for (int j = 1; j <= kClasses; ++j)
    cells += boatsOfClass(Size, j) * (7 - j);
  return cells;
}

void clsGrid::ResetFields() {
  CreateBoats(BootTable);
  CFeld_.reset(columns(), rows());
  PFeld_.reset(columns(), rows());
  Treffer = 0;
  verify();
}

void clsGrid::CreateBoats(const FleetTable &table) {
  CBoote_.clear();
  for (int i = 1; i <= boatsOf(table, Size_); ++i)
    CBoote_.emplace_back(boatLength(table, Size_, i));
  PBoote_ = CBoote_;
}
