#pragma once

#include "Field.h"

#include <QRect>
#include <QString>

#include <functional>

class PictureBox;

/// A field as screen readers get it: a table of cells, each with a name ("C3": column and row) and
/// what is seen there in words. A cell of an enabled field has the action "Press".
struct CellTable {
  /// Columns and rows.
  std::function<QSize()> size;
  bool has(const Cell &cell) const {
    return cell.X <= size().width() && cell.Y <= size().height();
  }
  /// What is seen in a cell, in words; never more.
  std::function<QString(const Cell &)> describe;
  /// The place of a cell, in pixels of the drawing area.
  std::function<QRect(const Cell &)> place;
};

/// "A1" for the first column and row. There are at most 26 columns.
QString cellName(const Cell &cell);

/// Lets screen readers see boxes as tables. May be called again.
void installAccessibleFields();
