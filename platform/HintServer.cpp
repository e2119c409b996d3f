#include "HintServer.h"

#include "announce.h"

#include <QCursor>
#include <QFontMetrics>
#include <QPainter>
#include <QPainterPath>
#include <QScreen>
#include <QWidget>

namespace {

// All in pixels.
constexpr int kPadding = 10;
constexpr int kIcon = 16;
constexpr int kGap = 6; // between icon and title, and below them
constexpr int kRadius = 8;
constexpr int kTipHeight = 12;
constexpr int kTipWidth = 14;
constexpr int kTipInset = 22;     // from the nearer side of the balloon, where there is room
constexpr int kBelowPointer = 18; // so that the pointer hides nothing
constexpr int kAbovePointer = 3;

const QColor kGround(255, 255, 232);
const QColor kFrame(70, 90, 120);
const QColor kText(20, 25, 40);
const QColor kBlue(30, 100, 200);

} // namespace

/// The balloon on the screen, a child widget of the window. It has no window of its own, so it can
/// be transparent and let presses through on every window system.
class Balloon : public QWidget {
public:
  Balloon(QWidget &window, const QRect &area, const QFont &font) : QWidget(&window), area_(area) {
    setObjectName("balloon");
    setRole(*this, QAccessible::Notification); // readers say its name when it comes up
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFont(font);
    hide();
  }

  void fill(const QString &title, int icon, const QString &text, int style) {
    title_ = title;
    hasIcon_ = icon == HintServer::kInformation;
    text_ = text;
    isBalloon_ = style == HintServer::kBalloon;
    setAccessibleName(title + "\n" + text);
    const QSize titleSize = QFontMetrics(titleFont()).size(0, title_);
    const QSize textSize = fontMetrics().size(0, text_);
    head_ = QSize(titleSize.width() + (hasIcon_ ? kIcon + kGap : 0),
                  std::max(titleSize.height(), hasIcon_ ? kIcon : 0));
    body_ = QSize(std::max(head_.width(), textSize.width()) + 2 * kPadding,
                  head_.height() + kGap + textSize.height() + 2 * kPadding);
    resize(body_ + QSize(0, isBalloon_ ? kTipHeight : 0));
    update();
  }

  /// Points to a pixel of the window, or to where the area is nearest to it.
  void pointTo(const QPoint &pixel) {
    const QPoint pointer(std::clamp(pixel.x(), area_.left(), area_.right() + 1),
                         std::clamp(pixel.y(), area_.top(), area_.bottom() + 1));
    const QWidget &window = *parentWidget();
    const QRect visible = screen()->availableGeometry().translated(-window.mapToGlobal(QPoint()));
    const QRect area = area_ & visible;
    isAbove_ = pointer.y() - kAbovePointer - height() >= area.top();
    const int top = isAbove_ ? pointer.y() - kAbovePointer - height() : pointer.y() + kBelowPointer;
    const int left =
        std::max(area.left(), std::min(pointer.x() - kTipInset, area.right() + 1 - width()));
    const int reach = kRadius + kTipWidth / 2;
    tip_ = std::clamp(pointer.x() - left, reach, width() - reach);
    move(left, std::max(area.top(), std::min(top, area.bottom() + 1 - height())));
    update();
  }

protected:
  void paintEvent(QPaintEvent *) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);

    // 1. The frame, and on its edge the tip.
    const QPoint corner(0, isBalloon_ && !isAbove_ ? kTipHeight : 0);
    const QRectF body = QRectF(corner, body_).adjusted(0.5, 0.5, -0.5, -0.5);
    QPainterPath outline;
    outline.addRoundedRect(body, isBalloon_ ? kRadius : 0, isBalloon_ ? kRadius : 0);
    if (isBalloon_) {
      const qreal edge = isAbove_ ? body.bottom() : body.top();
      const qreal end = isAbove_ ? height() - 1 : 1;
      const qreal half = kTipWidth / 2.0;
      QPainterPath tip;
      tip.addPolygon(QPolygonF({{tip_ - half, edge}, {qreal(tip_), end}, {tip_ + half, edge}}));
      tip.closeSubpath();
      outline = outline.united(tip);
    }
    painter.setPen(kFrame);
    painter.setBrush(kGround);
    painter.drawPath(outline);

    // 2. Icon, title and text.
    const QRect inside = QRect(corner, body_).adjusted(kPadding, kPadding, -kPadding, -kPadding);
    QRect head(inside.topLeft(), head_);
    if (hasIcon_) {
      const QRectF disc(head.left(), head.top() + (head.height() - kIcon) / 2.0, kIcon, kIcon);
      painter.setPen(Qt::NoPen);
      painter.setBrush(kBlue);
      painter.drawEllipse(disc);
      painter.setPen(Qt::white);
      painter.setFont(titleFont());
      painter.drawText(disc, Qt::AlignCenter, "i");
      head.setLeft(head.left() + kIcon + kGap);
    }
    painter.setPen(kText);
    painter.setFont(titleFont());
    painter.drawText(head, Qt::AlignLeft | Qt::AlignVCenter, title_);
    painter.setFont(font());
    painter.drawText(inside.adjusted(0, head_.height() + kGap, 0, 0), Qt::AlignLeft, text_);
  }

private:
  QFont titleFont() const {
    QFont bold = font();
    bold.setBold(true);
    return bold;
  }

  const QRect area_;
  QString title_;
  QString text_;
  bool hasIcon_ = false;
  bool isBalloon_ = false;
  bool isAbove_ = false;
  QSize head_; ///< of icon and title
  QSize body_; ///< without the tip
  int tip_ = 0;
};

HintServer::HintServer(const QFont &font) : font_(font) {}
HintServer::~HintServer() = default;

void HintServer::setStyle(int Style) {
  style_ = Style;
  update();
}

void HintServer::SetTitle(const QString &title, int icon) {
  title_ = title;
  icon_ = icon;
  update();
}

void HintServer::AddTool(QWidget &window, const QRect &area, int ID) {
  ID_ = ID;
  text_.clear();
  tracks_ = false;
  balloon_ = std::make_unique<Balloon>(window, area, font_);
}

void HintServer::DelTool(int ID) {
  if (ID == ID_)
    balloon_.reset();
}

void HintServer::SetText(int ID, const QString &text) {
  if (ID != ID_)
    return;
  text_ = text;
  update();
}

void HintServer::setActive(bool active) {
  active_ = active;
  update();
}

void HintServer::Track(bool on, int ID) {
  if (ID != ID_ || !balloon_)
    return;
  tracks_ = on;
  update();
  MoveTo(balloon_->parentWidget()->mapFromGlobal(QCursor::pos()));
}

void HintServer::MoveTo(const QPoint &tip) {
  if (balloon_)
    balloon_->pointTo(tip);
}

void HintServer::update() {
  if (!balloon_)
    return;
  const bool shown = active_ && tracks_;
  if (shown) {
    QString text = text_;
    if (text.isEmpty())
      emit NeedText(ID_, text);
    balloon_->fill(title_, icon_, text, style_);
    balloon_->raise();
  }
  balloon_->setVisible(shown);
}
