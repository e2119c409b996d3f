#pragma once

#include "AccessibleField.h"
#include "Surface.h"

#include <QImage>
#include <QMap>
#include <QWidget>

#include <array>

/// The five pictures of the cells, as the start-up loads them, and their stretched forms.
class Sprites {
public:
  /// Loads the pictures that the program carries inside.
  static Sprites load();

  /// The picture stretched to `width` by `height` physical pixels.
  const QImage &stretched(Picture picture, int width, int height) const;

private:
  std::array<QImage, 5> pictures_;
  mutable std::array<QMap<std::pair<int, int>, QImage>, 5> stretched_;
};

/// A field on the window: a surface that keeps its content, inside a border of one pixel.
class PictureBox : public QWidget, public Surface {
  Q_OBJECT

public:
  /// The sprites must outlive the box.
  explicit PictureBox(const Sprites &sprites, QWidget *parent);

  /// Size of the drawing area in pixels.
  int innerWidth() const { return width() - 2; }
  int innerHeight() const { return height() - 2; }

  void setWidth(int width) override { resize(width, height()); }
  void setHeight(int height) override { resize(width(), height); }
  int width() const override { return QWidget::width(); }
  int height() const override { return QWidget::height(); }
  void clear() override;
  void setDrawWidth(int width) override { drawWidth_ = width; }
  void line(int x1, int y1, int x2, int y2, Colour colour) override;
  void filledBox(int x1, int y1, int x2, int y2, Colour colour) override;
  void sprite(Picture picture, int x, int y, int width, int height) override;
  void refresh() override { repaint(); }

  const QImage &content() const { return content_; }

  /// The field for screen readers; to be set before the box is shown.
  CellTable cells;
  /// Where a cell is, in pixels of the box.
  QRect placeOf(const Cell &cell) const;
  /// A press with the mouse on a cell, as `pressAt` does it.
  void press(const Cell &cell);

signals:
  /// A press on the box, in pixels of the drawing area; negative or beyond it on the border. The
  /// second press of a double click counts, unless the first one has closed a dialog over the box.
  void pressed(Qt::MouseButton button, int x, int y);

protected:
  bool event(QEvent *event) override;
  void mousePressEvent(QMouseEvent *event) override;
  void mouseDoubleClickEvent(QMouseEvent *event) override;
  void paintEvent(QPaintEvent *event) override;

private:
  void fill(const QRect &area, Colour colour);

  const Sprites &sprites_;
  QImage content_; ///< the drawing area
  int drawWidth_ = 1;
  bool wasPressed_ = false; ///< since the last dialog
};
