#include "Toolbar.h"

#include "announce.h"
#include "controls.h"
#include "pictures.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QPainter>

namespace {

constexpr QSize kPicture(49, 40);

class ToolbarButton : public QAbstractButton {
public:
  ToolbarButton(QWidget *parent, const QString &caption, const QString &picture)
      : QAbstractButton(parent) {
    setText(caption);
    setIcon(loadPicture(picture));
    setFont(sansFont(9.75));
    setAttribute(Qt::WA_Hover);
    setFocusPolicy(Qt::TabFocus); // a click leaves no mark
  }

protected:
  // Qt lets an access key act a tenth of a second later, which could be during a turn.
  bool event(QEvent *event) override {
    if (event->type() != QEvent::Shortcut || static_cast<QShortcutEvent *>(event)->isAmbiguous())
      return QAbstractButton::event(event);
    click();
    return true;
  }
  void keyPressEvent(QKeyEvent *event) override {
    if (!clickByEnter(*this, *event))
      QAbstractButton::keyPressEvent(event);
  }
  void paintEvent(QPaintEvent *) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF plate = QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5);
    if (isDown() || (isEnabled() && underMouse())) {
      painter.setPen(QColor(40, 70, 110, 150));
      painter.setBrush(isDown() ? QColor(40, 80, 130, 70) : QColor(255, 255, 255, 120));
      painter.drawRoundedRect(plate, 5, 5);
    }
    const int sunk = isDown() ? 1 : 0;
    const QPoint corner((width() - kPicture.width()) / 2 + sunk, 4 + sunk);
    icon().paint(&painter, QRect(corner, kPicture), Qt::AlignCenter,
                 isEnabled() ? QIcon::Normal : QIcon::Disabled);
    painter.setPen(isEnabled() ? QColor(10, 25, 60) : QColor(10, 25, 60, 110));
    painter.drawText(rect().adjusted(sunk, 44 + sunk, sunk, -2 + sunk),
                     Qt::AlignCenter | Qt::TextShowMnemonic, text());
    if (hasFocus())
      drawFocus(painter, rect().adjusted(3, 3, -4, -4));
  }
};

} // namespace

Toolbar::Toolbar(QWidget *parent) : QWidget(parent) {}

void Toolbar::addButton(const QString &key, const QString &caption, const QString &picture,
                        const QString &toolTip) {
  auto *button = new ToolbarButton(this, caption, picture);
  button->setObjectName(key);
  setRole(*button, QAccessible::Button);
  button->setAccessibleName(QString(caption).remove('&'));
  button->setToolTip(toolTip);
  button->setGeometry(kButtonWidth * buttons_++, 1, kButtonWidth, kButtonHeight);
  connect(button, &QAbstractButton::clicked, this, [this, key] { emit clicked(key); });
}
