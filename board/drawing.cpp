// The geometry of a field and its building from nothing.
//
// With c the cell edge and p = c + 1, lines of one pixel stand at 0, p, 2p, ... and the inside of
// cell (X, Y) begins at (p * (X - 1) + 1, p * (Y - 1) + 1):
//
//     0       p       2p
//     |1 ... c|p+1 ...|

#include "clsGrid.h"

void clsGrid::show(Picture picture, Surface &surface, int X, int Y) const {
  const int c = CellSize();
  surface.sprite(picture, (c + 1) * (X - 1) + 1, (c + 1) * (Y - 1) + 1, c, c);
}

void clsGrid::InitPictures() {
  // A line before each cell and one after the last, and a border of one pixel at each side.
  const int p = CellSize() + 1;
  const int width = columns() * p + 3;
  const int height = rows() * p + 3;

  for (Surface *surface : {PicComputer_, PicPlayer_}) {
    surface->setWidth(width);
    surface->setHeight(height);
  }
  if (ChangePicSize)
    ChangePicSize();

  PicComputer_->clear();
  PicPlayer_->clear();
  PicComputer_->setDrawWidth(1);
  PicPlayer_->setDrawWidth(1);
  for (int i = 0; i <= columns(); ++i)
    for (Surface *surface : {PicComputer_, PicPlayer_})
      surface->line(p * i, 0, p * i, height, Colour::black);
  for (int i = 0; i <= rows(); ++i)
    for (Surface *surface : {PicComputer_, PicPlayer_})
      surface->line(0, p * i, width, p * i, Colour::black);
  PicComputer_->refresh();
  PicPlayer_->refresh();
  ClearPictures();
}

// The water closes in from the rim, ring by ring, on both surfaces at the same time.
void clsGrid::ClearPictures() {
  for (int r = 1; r <= rows() / 2; ++r) {
    const int lower = rows() + 1 - r;
    const int right = columns() + 1 - r;
    for (int x = r; x <= right; ++x)
      for (Surface *surface : {PicPlayer_, PicComputer_}) {
        show(Picture::picWasser, *surface, x, r);
        show(Picture::picWasser, *surface, x, lower);
      }
    for (int y = r; y <= lower; ++y)
      for (Surface *surface : {PicPlayer_, PicComputer_}) {
        show(Picture::picWasser, *surface, r, y);
        show(Picture::picWasser, *surface, right, y);
      }
    PicPlayer_->refresh();
    PicComputer_->refresh();
  }
}
