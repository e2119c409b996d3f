#pragma once

#include <QAbstractButton>
#include <QColor>
#include <QDialog>
#include <QFont>
#include <QLabel>
#include <QPushButton>

/// What the windows of the game have in common. Positions are pixels in the parent.

inline constexpr QColor kLightBlue(192, 192, 255); ///< buttons, counters, names
inline constexpr QColor kDarkRed(128, 0, 0);
inline constexpr QColor kLightCyan(192, 255, 255);

/// Fonts by their size in points at 96 dpi, set in pixels so that a layout holds on every screen;
/// each with metric-compatible fallbacks. They take no glyph from other fonts: the game can store
/// only Windows-1252, which each of them has, and a search through all fonts slows the start.
QFont serifFont(double points, QFont::Weight weight = QFont::Bold);
QFont sansFont(double points, QFont::Weight weight = QFont::Normal);

/// A label of plain text, centred; `border` draws a single line around it.
struct LabelLook {
  QFont font;
  QColor text;
  QColor background = Qt::transparent;
  bool border = false;
  bool wrapped = false;
};
void dress(QLabel &label, const QRect &place, const LabelLook &look);

/// A label that shows the top left of a picture.
QLabel *makePicture(QWidget *parent, const QRect &place, const QString &picture);

/// The mark of the control with the keyboard focus: a dotted rectangle.
void drawFocus(QPainter &painter, const QRect &place);

/// Clicks the button if the key is Enter, which only some desktops do by themselves. False for any
/// other key.
bool clickByEnter(QAbstractButton &button, const QKeyEvent &key);

/// A light blue button, caption or picture over caption. The only keys that press it are the
/// access key of its caption and, with the focus, Space and Enter.
class BlueButton : public QPushButton {
  Q_OBJECT

public:
  BlueButton(QWidget *parent, const QString &name, const QRect &place, const QString &caption,
             const QString &toolTip = {});

protected:
  void focusInEvent(QFocusEvent *event) override;
  void keyPressEvent(QKeyEvent *event) override;
  void paintEvent(QPaintEvent *event) override;
};

/// A button that stays down when it is pressed, with an icon of 32 by 32 pixels, which may have a
/// picture for each of the two states.
BlueButton *makeToggle(QWidget *parent, const QString &name, const QRect &place,
                       const QString &caption, const QIcon &icon, const QString &toolTip = {});

/// A picture that takes clicks.
class ImageButton : public QAbstractButton {
  Q_OBJECT

public:
  explicit ImageButton(QWidget *parent);
  void setPicture(const QPixmap &picture);
  const QPixmap &picture() const { return picture_; }

protected:
  void paintEvent(QPaintEvent *event) override;

private:
  QPixmap picture_;
};

/// A modal window of the game: of fixed size, centred over the main window when it is made. Escape
/// closes it, as its frame does; Enter presses the button with the focus and does nothing
/// elsewhere.
class Dialog : public QDialog {
  Q_OBJECT

public:
  /// With a frame that closes it.
  Dialog(QWidget *main, QSize inner, const QString &title);
  /// Without a frame.
  Dialog(QWidget *main, QSize inner);

protected:
  void keyPressEvent(QKeyEvent *event) override;

private:
  void fixPlace(QSize inner, QSize mainSize);
};
