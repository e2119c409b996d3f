#include "PictureBox.h"

#include "announce.h"
#include "pictures.h"

#include <QMouseEvent>
#include <QPainter>
#include <QTimer>

namespace {

constexpr int kBorder = 1;

// In the order of `Picture`.
constexpr std::array kSpriteNames{"wasser", "boot", "daneben", "treffer", "versenkt"};

QColor colourOf(Colour colour) {
  return colour == Colour::blue ? QColor(0, 0, 255) : QColor(Qt::black);
}

} // namespace

Sprites Sprites::load() {
  Sprites sprites;
  // Stretching down from the double size keeps more of the picture.
  for (std::size_t i = 0; i < kSpriteNames.size(); ++i)
    sprites.pictures_[i] = loadImage(QString("%1@2x").arg(kSpriteNames[i]));
  return sprites;
}

const QImage &Sprites::stretched(Picture picture, int width, int height) const {
  const auto i = static_cast<std::size_t>(picture);
  QImage &image = stretched_[i][{width, height}];
  if (image.isNull())
    image = pictures_[i]
                .scaled(width, height, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                .convertToFormat(QImage::Format_RGB32);
  return image;
}

PictureBox::PictureBox(const Sprites &sprites, QWidget *parent)
    : QWidget(parent), sprites_(sprites) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  installAccessibleFields();
}

void PictureBox::clear() {
  const qreal ratio = devicePixelRatio();
  content_ = QImage(QSize(innerWidth(), innerHeight()) * ratio, QImage::Format_RGB32);
  content_.setDevicePixelRatio(ratio);
  content_.fill(Qt::white);
  update();
}

void PictureBox::line(int x1, int y1, int x2, int y2, Colour colour) {
  // Horizontal or vertical: a box as thick as the draw width.
  const int thick = drawWidth_ - 1;
  const bool upright = x1 == x2;
  fill(QRect(QPoint(x1, y1), QPoint(x2, y2))
           .adjusted(0, 0, upright ? thick : 0, upright ? 0 : thick),
       colour);
}

void PictureBox::filledBox(int x1, int y1, int x2, int y2, Colour colour) {
  fill(QRect(QPoint(x1, y1), QPoint(x2, y2)), colour);
}

void PictureBox::fill(const QRect &area, Colour colour) {
  if (area.isEmpty())
    return;
  QPainter(&content_).fillRect(area, colourOf(colour));
  update(area.translated(kBorder, kBorder));
}

void PictureBox::sprite(Picture picture, int x, int y, int width, int height) {
  const int ratio = qRound(content_.devicePixelRatio());
  QPainter painter(&content_);
  painter.drawImage(QRect(x, y, width, height),
                    sprites_.stretched(picture, width * ratio, height * ratio));
  update(x + kBorder, y + kBorder, width, height);
}

QRect PictureBox::placeOf(const Cell &cell) const {
  return cells.place(cell).translated(kBorder, kBorder);
}

// Later, as what asks for it waits for an answer; the board may be another one then, or none.
void PictureBox::press(const Cell &cell) {
  QTimer::singleShot(0, this, [this, cell] {
    if (cells.has(cell))
      pressAt(*this, placeOf(cell).center());
  });
}

bool PictureBox::event(QEvent *event) {
  if (event->type() == QEvent::WindowBlocked)
    wasPressed_ = false;
  return QWidget::event(event);
}

void PictureBox::mouseDoubleClickEvent(QMouseEvent *event) {
  if (wasPressed_)
    mousePressEvent(event);
}

void PictureBox::mousePressEvent(QMouseEvent *event) {
  wasPressed_ = true;
  // The pixel under the pointer: a fraction, on dense screens, belongs to the pixel that it is in.
  const QPointF position = event->position();
  emit pressed(event->button(), qFloor(position.x()) - kBorder, qFloor(position.y()) - kBorder);
}

void PictureBox::paintEvent(QPaintEvent *) {
  QPainter painter(this);
  painter.fillRect(rect(), Qt::black); // of which the border stays
  painter.drawImage(kBorder, kBorder, content_);
}
