// The hints, which tell a beginner what to do next, and the help book.
//
// `ToolTip` is true from the opening of a hint to its closing: by a press on most controls, by a
// toolbar command, or by a tick of `timTTip`, which goes on ticking once it was started, so that a
// hint stays up to three seconds. While the pointer is over the toolbar, the hint is hidden until
// the pointer is back on the window's own surface, the strip below the toolbar.

#include "frmHaupt.h"

#include <QMouseEvent>

namespace {

constexpr int kTool = 100;
constexpr int kHintTime = 3000; // ms

bool isPress(const QEvent &event) {
  return event.type() == QEvent::MouseButtonPress || event.type() == QEvent::MouseButtonDblClick;
}

} // namespace

void frmHaupt::buildHints() {
  TTip_.setStyle(HintServer::kBalloon);
  TTip_.SetTitle("Spielhilfe", HintServer::kInformation);
  // Below the toolbar, whose buttons it speaks of.
  TTip_.AddTool(*this, rect().adjusted(0, picHinten.y(), 0, 0), kTool);
  connect(&TTip_, &HintServer::NeedText, this, [](int ID, QString &TTText) {
    TTText = ID == kTool ? "Drücke  'Neues Spiel'\nund der Spaß kann losgehen!"
                         : "Upps was ist das denn ?";
  });
  timTTip_.setObjectName("timTTip");
  timTTip_.setInterval(kHintTime);
  connect(&timTTip_, &QTimer::timeout, this, &frmHaupt::closeHint);

  setMouseTracking(true);
  for (QWidget *control : findChildren<QWidget *>())
    control->setMouseTracking(true);
  QWidgetList watched{&tbToolbar, &picHinten, &picpFeld, &imgMüll};
  for (QLabel *label : picHinten.findChildren<QLabel *>())
    watched << label;
  for (QWidget *control : watched)
    control->installEventFilter(this);

  if (globals_.settings.Help == 1) {
    ToolTip_ = true;
    startHintTimer();
    TTip_.Track(true, kTool);
  } else {
    TTip_.setActive(false);
  }
}

void frmHaupt::openHint(const QString &text) {
  if (globals_.settings.Help != 1)
    return;
  TTip_.SetText(kTool, text);
  TTip_.setActive(true);
  TTip_.Track(true, kTool);
  ToolTip_ = true;
  startHintTimer();
}

void frmHaupt::closeHint() {
  TTip_.setActive(false);
  ToolTip_ = false;
}

// A second start would shift the ticks.
void frmHaupt::startHintTimer() {
  if (!timTTip_.isActive())
    timTTip_.start();
}

void frmHaupt::releaseHints() {
  TTip_.DelTool(kTool);
  ToolTip_ = false;
  timTTip_.stop();
}

// What the mouse on a control does to the hint. A disabled control leaves its events to the
// background.
bool frmHaupt::eventFilter(QObject *watched, QEvent *event) {
  const bool isMove = event->type() == QEvent::MouseMove;
  if ((!isMove && !isPress(*event)) || !static_cast<QWidget *>(watched)->isEnabled())
    return QWidget::eventFilter(watched, event);

  if (watched == &tbToolbar) {
    // Events run when this returns. Let run here, those that follow a press would overtake it, as
    // Qt sends the move to its place first.
    if (isMove && ToolTip_)
      TTip_.setActive(false);
    return true;
  }
  if (isMove)
    moveHint(*static_cast<QMouseEvent *>(event));
  else if (watched != &picHinten && watched != &picpFeld) // the field's press does so itself
    closeHint();
  return watched != &picpFeld && watched != &imgMüll; // nothing else has a use for it
}

void frmHaupt::moveHint(const QMouseEvent &event) {
  if (ToolTip_)
    TTip_.MoveTo(mapFromGlobal(event.globalPosition()).toPoint());
}

// What arrives here is on the window's own surface.
void frmHaupt::mouseMoveEvent(QMouseEvent *event) {
  if (!ToolTip_)
    return;
  TTip_.setActive(true);
  TTip_.Track(true, kTool);
  moveHint(*event);
}

void frmHaupt::mousePressEvent(QMouseEvent *) { closeHint(); }

void frmHaupt::DoHilfe(HelpViewer::Entry entry) {
  const QString failure = services_.help.show(globals_.HelpPath, entry);
  if (!failure.isEmpty())
    services_.messages.warning("Korvel", failure);
}

void frmHaupt::keyReleaseEvent(QKeyEvent *event) {
  if (event->key() == Qt::Key_F1 && !event->isAutoRepeat() && !closed())
    DoHilfe(HelpViewer::Entry::index);
  else
    QWidget::keyReleaseEvent(event);
}
