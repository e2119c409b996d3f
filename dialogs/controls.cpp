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

QPalette lightBlue(const QPalette &base) {
  QPalette palette = base;
  palette.setColor(QPalette::Button, kLightBlue);
  palette.setColor(QPalette::ButtonText, Qt::black);
  return palette;
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
    label.setFrameStyle(QFrame::Box | QFrame::Plain);
}

QPushButton *makeButton(QWidget *parent, const QRect &place, const QString &caption) {
  auto *button = new QPushButton(caption, parent);
  button->setGeometry(place);
  button->setFont(sansFont(9.75));
  button->setPalette(lightBlue(button->palette()));
  button->setAutoDefault(false);
  return button;
}

QToolButton *makeOption(QWidget *parent, const QRect &place, const QString &caption,
                        const QString &picture, const QString &toolTip) {
  auto *button = new QToolButton(parent);
  button->setGeometry(place);
  button->setFont(sansFont(8.25));
  button->setPalette(lightBlue(button->palette()));
  button->setText(caption);
  button->setIcon(loadPicture(picture));
  button->setIconSize({32, 32});
  button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
  button->setToolTip(toolTip);
  button->setCheckable(true);
  button->setAutoExclusive(true);
  button->setFocusPolicy(Qt::StrongFocus);
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
