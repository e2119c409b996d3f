#pragma once

#include <cstdint>

/// The five pictures that a cell can show. Each is stretched over the inside of its cell.
enum class Picture : std::uint8_t {
  picWasser,   ///< water
  picBoot,     ///< an intact point of a boat
  picDaneben,  ///< a miss
  picTreffer,  ///< a hit on a boat that still floats
  picVersenkt, ///< a point of a sunk boat
};

enum class Colour : std::uint8_t {
  black, ///< grid lines
  blue,  ///< pure blue (0, 0, 255): a point of the boat in work
};

/// A raster surface that keeps what is drawn on it: all that the board needs of a toolkit.
///
/// The outer size includes a border of one pixel at each side, which the surface draws by itself.
/// Coordinates are pixels of the drawing area inside that border, (0, 0) at its top left, y
/// downward. Every call clips to the drawing area; empty or inverted rectangles draw nothing.
/// No rule reads anything back but the size that it set itself.
class Surface {
public:
  virtual ~Surface() = default;

  /// Outer size in pixels. A change of size leaves the content undefined until `clear`.
  virtual void setWidth(int width) = 0;
  virtual void setHeight(int height) = 0;
  virtual int width() const = 0;
  virtual int height() const = 0;

  /// Removes everything drawn.
  virtual void clear() = 0;
  /// Width of the lines to come, in pixels.
  virtual void setDrawWidth(int width) = 0;
  /// A horizontal or vertical line; both ends belong to it.
  virtual void line(int x1, int y1, int x2, int y2, Colour colour) = 0;
  /// A filled rectangle; both corners belong to it.
  virtual void filledBox(int x1, int y1, int x2, int y2, Colour colour) = 0;
  /// The whole picture stretched over x to x + width - 1 and y to y + height - 1, replacing what
  /// was there.
  virtual void sprite(Picture picture, int x, int y, int width, int height) = 0;
  /// Brings what was drawn onto the screen before it returns. Without it drawing appears when
  /// events run next.
  virtual void refresh() = 0;
};

/// A surface that does nothing, which is enough for every rule.
class NullSurface : public Surface {
public:
  void setWidth(int) override {}
  void setHeight(int) override {}
  int width() const override { return 0; }
  int height() const override { return 0; }
  void clear() override {}
  void setDrawWidth(int) override {}
  void line(int, int, int, int, Colour) override {}
  void filledBox(int, int, int, int, Colour) override {}
  void sprite(Picture, int, int, int, int) override {}
  void refresh() override {}
};
