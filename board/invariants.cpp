// What holds on both sides after every operation, and the text form of a position.

#include "clsGrid.h"

#include <cstdio>
#include <cstdlib>

namespace {

std::string at(int X, int Y) { return "(" + std::to_string(X) + ", " + std::to_string(Y) + ")"; }

// Records against layers: each set point stands on the field with its boat's number, and its state
// is that of the cell; a sunk boat is sunk in all its points.
std::string recordFault(const Field &field, const std::vector<tBoot> &boats) {
  int cells = 0;
  for (std::size_t i = 0; i < boats.size(); ++i) {
    const tBoot &boot = boats[i];
    for (int j = 1; j <= boot.length(); ++j) {
      const auto [X, Y] = boot.cell(j);
      const std::string name = "boat " + std::to_string(i + 1) + " point " + std::to_string(j);
      if (X == 0 && Y == 0) {
        if (boot.Status(j) != tBoot::intact || (j < boot.length() && boot.X(j + 1) != 0))
          return name + " is not set, but shot at or followed by a set one";
        continue;
      }
      ++cells;
      if (!field.contains(X, Y) || field(X, Y, 1) != i + 1)
        return name + " is not on layer 1 at " + at(X, Y);
      if (field(X, Y, 2) != boot.Status(j))
        return name + " and layer 2 differ at " + at(X, Y);
      if ((boot.Status(j) == tBoot::sunk) != boot.isSunk())
        return name + " is sunk without the others";
    }
    if (!boot.isAfloat() && !boot.isSunk())
      return "boat " + std::to_string(i + 1) + " is hit all over, but not sunk";
  }
  for (int Y = 1; Y <= field.rows(); ++Y)
    for (int X = 1; X <= field.columns(); ++X)
      cells -= field(X, Y, 1) != 0;
  return cells == 0 ? "" : "layer 1 holds cells of no boat";
}

// Layers alone: allowed values, and no two boats that touch.
std::string fieldFault(const Field &field) {
  for (int Y = 1; Y <= field.rows(); ++Y)
    for (int X = 1; X <= field.columns(); ++X) {
      const int b = field(X, Y, 1);
      const int shot = field(X, Y, 2);
      if (shot > Shot::sunk || (b == 0 && shot > Shot::miss) || (b != 0 && shot == Shot::miss))
        return "layer 2 holds " + std::to_string(shot) + " at " + at(X, Y);
      for (int dy = -1; dy <= 1 && b != 0; ++dy)
        for (int dx = -1; dx <= 1; ++dx)
          if (field.contains(X + dx, Y + dy) && field(X + dx, Y + dy, 1) != 0 &&
              field(X + dx, Y + dy, 1) != b)
            return "two boats touch at " + at(X, Y);
    }
  return "";
}

char symbol(const Field &field, int X, int Y) {
  switch (field(X, Y, 2)) {
  case Shot::miss:
    return 'o';
  case Shot::hit:
    return '*';
  case Shot::sunk:
    return '#';
  default:
    return field(X, Y, 1) == 0 ? '.' : static_cast<char>('A' + field(X, Y, 1) - 1);
  }
}

} // namespace

std::optional<std::string> clsGrid::brokenInvariant() const {
  std::string fault;
  for (const auto &[name, field, boats] :
       {std::tuple("computer: ", &CFeld_, &CBoote_), std::tuple("human: ", &PFeld_, &PBoote_)}) {
    fault = fieldFault(*field);
    if (fault.empty())
      fault = recordFault(*field, *boats);
    if (!fault.empty())
      return name + fault + "\n" + toText();
  }
  if (Treffer != 0) {
    bool isHit = false;
    if (Treffer <= BoatCount())
      for (int j = 1; j <= PBoote(Treffer).length(); ++j)
        isHit = isHit || PBoote(Treffer).Status(j) == tBoot::hit;
    if (!isHit)
      return "Treffer names boat " + std::to_string(Treffer) + ", which has no hit\n" + toText();
  }
  return std::nullopt;
}

std::string clsGrid::toText() const {
  std::string text;
  for (int Y = 1; Y <= CFeld_.rows(); ++Y) {
    for (int X = 1; X <= CFeld_.columns(); ++X)
      text += symbol(CFeld_, X, Y);
    text += "   ";
    for (int X = 1; X <= PFeld_.columns(); ++X)
      text += symbol(PFeld_, X, Y);
    text += '\n';
  }
  return text;
}

void clsGrid::verify() const {
#ifndef NDEBUG
  if (const auto fault = brokenInvariant()) {
    std::fprintf(stderr, "%s\n", fault->c_str());
    std::abort();
  }
#endif
}
