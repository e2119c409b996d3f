// What screen readers get of the game: the fields as tables of cells, and what has happened, in
// words, when the press that caused it has had all its effects.

#include "announce.h"
#include "frmHaupt.h"

CellTable frmHaupt::cellsOf(const PictureBox &field) const {
  return {.size = [this] { return closed() ? QSize(0, 0) : QSize(Grid->columns(), Grid->rows()); },
          .describe = [this, &field](const Cell &cell) { return describeCell(field, cell); },
          .place =
              [this](const Cell &cell) {
                const CellGeometry geometry = Grid->geometry();
                return QRect(geometry.first(cell.X), geometry.first(cell.Y), geometry.c,
                             geometry.c);
              }};
}

// What is seen in a cell, never more.
QString frmHaupt::describeCell(const PictureBox &field, const Cell &cell) const {
  constexpr std::array kWords{"Wasser", "Boot", "daneben", "Treffer", "versenkt"};
  if (closed())
    return {};
  const auto shown = Grid->Shown(field, cell.X, cell.Y);
  return shown ? kWords[static_cast<std::size_t>(*shown)] : "Boot im Bau";
}

// A shot, with the length of the boat if it sank.
QString frmHaupt::inWords(const Cell &cell, ShotCode code, int length) {
  switch (code) {
  case ShotCode::water:
    return cellName(cell) + ", daneben.";
  case ShotCode::repeated:
    return cellName(cell) + " war schon dran.";
  case ShotCode::hit:
    return cellName(cell) + ", Treffer.";
  case ShotCode::sunk:
    break;
  }
  return QString("%1, %2er versenkt.").arg(cellName(cell)).arg(length);
}

QString frmHaupt::boatInWords(int BootID) const {
  return QString("%1er").arg(Grid->PBoote(BootID).length());
}

void frmHaupt::say(const QString &text) { announce(*this, text); }
