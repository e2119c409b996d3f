#include "controls.h"

#include "pictures.h"

#include <QKeyEvent>
#include <QPainter>

namespace {

QFont font(const QStringList &families, double points, QFont::Weight weight) {
  QFont result(families);
  result.setPixelSize(qRound(points * 96 / 72));
  result.setWeight(weight);
  return result;
}

} // namespace

QFont serifFont(double points, QFont::Weight weight) {
  return font({"Times New Roman", "Liberation Serif", "Tinos", "serif"}, points, weight);
}

QFont sansFont(double points, QFont::Weight weight) {
  return font({"Arial", "Liberation Sans", "Arimo", "sans-serif"}, points, weight);
}

void dress(QLabel &label, const QRect &place, const LabelLook &look) {
  label.setGeometry(place);
  label.setFont(look.font);
  label.setTextFormat(Qt::PlainText);
  label.setAlignment(Qt::AlignCenter);
  label.setWordWrap(look.wrapped);
  QPalette palette = label.palette();
  palette.setColor(QPalette::WindowText, look.text);
  palette.setColor(QPalette::Window, look.background);
  label.setPalette(palette);
  label.setAutoFillBackground(look.background.alpha() != 0);
  if (look.border)
    label.setFrameStyle(QFrame::Box | QFrame::Plain); // in the colour of the text
}

BlueButton::BlueButton(QWidget *parent, const QString &name, const QRect &place,
                       const QString &caption, const QString &toolTip)
    : QPushButton(caption, parent) {
  setObjectName(name);
  setGeometry(place);
  setFont(sansFont(9.75));
  setToolTip(toolTip);
  setAutoDefault(false);
  setAttribute(Qt::WA_Hover);
}

void BlueButton::paintEvent(QPaintEvent *) {
  const bool sunken = isDown() || isChecked();
  QPainter painter(this);

  // 1. The plate: an edge of light from the upper left, the other way round when it is down.
  const QRect plate = rect().adjusted(0, 0, -1, -1);
  const QColor face = isChecked() ? kLightBlue.darker(118) : kLightBlue;
  painter.fillRect(rect(), underMouse() && !sunken ? kLightBlue.lighter(108) : face);
  painter.setPen(sunken ? kLightBlue.darker(170) : QColor(Qt::white));
  painter.drawPolyline(QPolygon({plate.bottomLeft() + QPoint(1, -1), plate.topLeft() + QPoint(1, 1),
                                 plate.topRight() + QPoint(-1, 1)}));
  painter.setPen(sunken ? QColor(Qt::white) : kLightBlue.darker(150));
  painter.drawPolyline(QPolygon({plate.bottomLeft() + QPoint(1, -1),
                                 plate.bottomRight() + QPoint(-1, -1),
                                 plate.topRight() + QPoint(-1, 1)}));
  painter.setPen(kLightBlue.darker(300));
  painter.drawRect(plate);

  // 2. What stands on it.
  const QRect inside = rect().translated(isDown() ? 1 : 0, isDown() ? 1 : 0);
  const bool pictured = !icon().isNull();
  if (pictured)
    icon().paint(&painter, QRect({inside.x() + (width() - iconSize().width()) / 2, inside.y() + 2},
                                 iconSize()));
  painter.setPen(Qt::black);
  painter.drawText(pictured ? inside.adjusted(0, iconSize().height(), 0, 0) : inside,
                   Qt::AlignCenter | Qt::TextShowMnemonic, text());
  if (hasFocus()) {
    painter.setPen(QPen(Qt::black, 1, Qt::DotLine));
    painter.drawRect(plate.adjusted(3, 3, -3, -3));
  }
}

BlueButton *makeOption(QWidget *parent, const QString &name, const QRect &place,
                       const QString &caption, const QString &picture, const QString &toolTip) {
  auto *button = new BlueButton(parent, name, place, caption, toolTip);
  button->setFont(sansFont(8.25));
  button->setIcon(loadPicture(picture));
  button->setIconSize({32, 32});
  button->setCheckable(true);
  button->setAutoExclusive(true);
  return button;
}

ImageButton::ImageButton(QWidget *parent) : QAbstractButton(parent) {
  setFocusPolicy(Qt::NoFocus);
}

void ImageButton::setPicture(const QPixmap &picture) {
  picture_ = picture;
  update();
}

void ImageButton::paintEvent(QPaintEvent *) { QPainter(this).drawPixmap(rect(), picture_); }

Dialog::Dialog(QWidget *main, QSize inner, const QString &title)
    : QDialog(main, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                        Qt::WindowCloseButtonHint) {
  setWindowTitle(title);
  setFixedSize(inner);
  const QSize spare = main->size() - inner;
  move(main->frameGeometry().topLeft() + QPoint(spare.width() / 2, spare.height() / 2));
}

void Dialog::keyPressEvent(QKeyEvent *event) {
  // QDialog's own handler would bind Enter and Escape.
  event->ignore();
}
