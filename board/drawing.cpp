// A field drawn from nothing, and cell by cell.

#include "clsGrid.h"

namespace {
constexpr std::uint8_t kPoint = 255; // in place of a picture
}

void clsGrid::show(Picture picture, Surface &surface, int X, int Y) {
  shownOn_[isLeft(surface)].set(X, Y, static_cast<std::uint8_t>(picture));
  const auto cell = geometry();
  surface.sprite(picture, cell.first(X), cell.first(Y), cell.c, cell.c);
}

// A point of the boat in work.
void clsGrid::showPoint(int X, int Y) {
  shownOn_[true].set(X, Y, kPoint);
  const auto cell = geometry();
  PicPlayer_->setDrawWidth(1);
  PicPlayer_->filledBox(cell.first(X), cell.first(Y), cell.first(X) + cell.c - 1,
                        cell.first(Y) + cell.c - 1, Colour::blue);
}

std::optional<Picture> clsGrid::Shown(const Surface &surface, int X, int Y) const {
  const std::uint8_t shown = shownOn_[isLeft(surface)](X, Y);
  return shown == kPoint ? std::nullopt : std::optional(static_cast<Picture>(shown));
}

void clsGrid::InitPictures() {
  // A line before each cell and one after the last, and a border of one pixel at each side.
  const int p = geometry().p;
  const int width = columns() * p + 3;
  const int height = rows() * p + 3;

  for (Layer &shown : shownOn_)
    shown.reset(columns(), rows());
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
