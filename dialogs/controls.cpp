#include "controls.h"

#include "pictures.h"

#include <QKeyEvent>
#include <QPainter>

namespace {

QFont font(const QStringList &families, double points, QFont::Weight weight) {
  QFont result(families);
  result.setPixelSize(qRound(points * 96 / 72));
  result.setWeight(weight);
  result.setStyleStrategy(QFont::NoFontMerging);
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
  label.setIndent(0); // or a border would take room from the text
  QPalette palette = label.palette();
  palette.setColor(QPalette::WindowText, look.text);
  palette.setColor(QPalette::Window, look.background);
  label.setPalette(palette);
  label.setAutoFillBackground(look.background.alpha() != 0);
  if (look.border)
    label.setFrameStyle(QFrame::Box | QFrame::Plain); // in the colour of the text
}

QLabel *makePicture(QWidget *parent, const QRect &place, const QString &picture) {
  auto *label = new QLabel(parent);
  label->setGeometry(place);
  label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  label->setPixmap(loadPicture(picture));
  return label;
}

void drawFocus(QPainter &painter, const QRect &place) {
  painter.setRenderHint(QPainter::Antialiasing, false);
  painter.setPen(QPen(Qt::black, 1, Qt::DotLine));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(place);
}

bool clickByEnter(QAbstractButton &button, const QKeyEvent &key) {
  if (key.key() != Qt::Key_Return && key.key() != Qt::Key_Enter)
    return false;
  if (!key.isAutoRepeat()) // a key held down presses nothing in the next window
    button.click();
  return true;
}

BlueButton::BlueButton(QWidget *parent, const QString &name, const QRect &place,
                       const QString &caption, const QString &toolTip)
    : QPushButton(caption, parent) {
  setObjectName(name);
  setGeometry(place);
  setFont(sansFont(8.25));
  setToolTip(toolTip);
  setAutoDefault(false);
  setAttribute(Qt::WA_Hover);
}

// Skips QAbstractButton's handler, which takes the other options of a group out of the tab order.
// NOLINTNEXTLINE(bugprone-parent-virtual-call)
void BlueButton::focusInEvent(QFocusEvent *event) { QWidget::focusInEvent(event); }

void BlueButton::keyPressEvent(QKeyEvent *event) {
  if (!clickByEnter(*this, *event))
    QPushButton::keyPressEvent(event);
}

void BlueButton::paintEvent(QPaintEvent *) {
  const bool sunken = isDown() || isChecked();
  QPainter painter(this);

  // 1. The plate: an edge of light from the upper left, the other way round when it is down. Edges
  // are filled, not drawn, so that they are whole pixels at every density.
  const QColor lit = Qt::white;
  const QColor shaded = kLightBlue.darker(sunken ? 170 : 150);
  const QColor face = isChecked()               ? kLightBlue.darker(118)
                      : underMouse() && !sunken ? kLightBlue.lighter(108)
                                                : kLightBlue;
  const QRect plate = rect().adjusted(1, 1, -1, -1);
  painter.fillRect(rect(), kLightBlue.darker(300));
  painter.fillRect(plate, sunken ? lit : shaded);
  painter.fillRect(plate.adjusted(0, 0, -1, -1), sunken ? shaded : lit);
  painter.fillRect(plate.adjusted(1, 1, -1, -1), face);

  // 2. Picture and caption.
  const QRect inside = rect().translated(isDown() ? 1 : 0, isDown() ? 1 : 0);
  const bool pictured = !icon().isNull();
  if (pictured) {
    const int x = inside.x() + (width() - iconSize().width()) / 2;
    const int y = inside.y() + (text().isEmpty() ? (height() - iconSize().height()) / 2 : 2);
    icon().paint(&painter, QRect({x, y}, iconSize()), Qt::AlignCenter, QIcon::Normal,
                 isChecked() ? QIcon::On : QIcon::Off);
  }
  painter.setPen(Qt::black);
  painter.drawText(pictured ? inside.adjusted(0, iconSize().height(), 0, 0) : inside,
                   Qt::AlignCenter | Qt::TextShowMnemonic, text());
  if (hasFocus())
    drawFocus(painter, plate.adjusted(2, 2, -3, -3));
}

BlueButton *makeToggle(QWidget *parent, const QString &name, const QRect &place,
                       const QString &caption, const QIcon &icon, const QString &toolTip) {
  auto *button = new BlueButton(parent, name, place, caption, toolTip);
  button->setIcon(icon);
  button->setIconSize({32, 32});
  button->setCheckable(true);
  return button;
}

ImageButton::ImageButton(QWidget *parent) : QAbstractButton(parent) { setFocusPolicy(Qt::NoFocus); }

void ImageButton::setPicture(const QPixmap &picture) {
  picture_ = picture;
  update();
}

void ImageButton::paintEvent(QPaintEvent *) { QPainter(this).drawPixmap(rect(), picture_); }

Dialog::Dialog(QWidget *main, QSize inner, const QString &title)
    : QDialog(main, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                        Qt::WindowCloseButtonHint) {
  setWindowTitle(title.isEmpty() ? " " : title); // an empty one would become the program's name
  fixPlace(inner, main->size()); // both have the same frame, so it makes no difference
}

Dialog::Dialog(QWidget *main, QSize inner) : QDialog(main, Qt::Dialog | Qt::FramelessWindowHint) {
  fixPlace(inner, main->frameGeometry().size());
}

void Dialog::fixPlace(QSize inner, QSize mainSize) {
  setFixedSize(inner);
  setWindowModality(Qt::WindowModal); // the help stays readable beside it
  const QSize spare = mainSize - inner;
  move(parentWidget()->frameGeometry().topLeft() + QPoint(spare.width() / 2, spare.height() / 2));
}

void Dialog::keyPressEvent(QKeyEvent *event) {
  // QDialog's own handler would bind Enter to a button.
  if (event->key() == Qt::Key_Escape)
    close();
  else
    event->ignore();
}
