#include "EventPump.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPointer>
#include <QWidget>
#include <QWindow>

#include <deque>
#include <memory>

namespace {

/// Keeps the mouse and key events that arrive while a handler lets events run, until it has ended.
class KeptInput : public QObject {
public:
  explicit KeptInput(QObject *parent) : QObject(parent) { qApp->installEventFilter(this); }

  void letEventsRun() {
    ++depth_;
    QCoreApplication::processEvents();
    --depth_;
    handOnLater();
  }

protected:
  // What comes while some input is kept has to queue up after it.
  bool eventFilter(QObject *watched, QEvent *event) override {
    if (!isInput(*watched, event->type()) || (depth_ == 0 && kept_.empty()))
      return false;
    if (event == handedOn_)
      return false;
    kept_.push_back({watched, std::unique_ptr<QEvent>(event->clone())});
    // The copy shares its place with the pointing device, and Qt writes the next event's place
    // there. An event of the same place, made now, leaves the copy its own.
    if (event->isSinglePointEvent()) {
      const auto &at = static_cast<QSinglePointEvent &>(*event);
      QMouseEvent(QEvent::MouseMove, at.position(), at.scenePosition(), at.globalPosition(),
                  at.button(), at.buttons(), at.modifiers(), at.pointingDevice());
    }
    return true;
  }

private:
  struct Input {
    QPointer<QObject> receiver;
    std::unique_ptr<QEvent> event;
  };

  // Input is seen on its way to a window, before it is a widget's; but an access key comes to its
  // control at once.
  static bool isInput(const QObject &receiver, QEvent::Type type) {
    switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Enter:
    case QEvent::Leave:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
      return receiver.isWindowType();
    case QEvent::Shortcut:
      return receiver.isWidgetType();
    default:
      return false;
    }
  }

  // A window that is hidden or blocked by a dialog gets no input from the window system either.
  static bool takesInput(QObject &receiver) {
    const auto *control = qobject_cast<QWidget *>(&receiver);
    const QWindow *window =
        control ? control->window()->windowHandle() : static_cast<QWindow *>(&receiver);
    const QWidget *dialog = QApplication::activeModalWidget();
    if (!window || !window->isVisible())
      return false;
    return !dialog || window == dialog->windowHandle() ||
           (dialog->windowModality() != Qt::ApplicationModal &&
            !window->isAncestorOf(dialog->windowHandle()));
  }

  void handOnLater() {
    if (!kept_.empty())
      QMetaObject::invokeMethod(
          this, [this] { handOn(); }, Qt::QueuedConnection);
  }

  void handOn() {
    if (depth_ > 0 || kept_.empty())
      return;
    const Input input = std::move(kept_.front());
    kept_.pop_front();
    handOnLater(); // the next one, also if a dialog that this one opens keeps its handler waiting
    if (!input.receiver || !takesInput(*input.receiver))
      return;
    handedOn_ = input.event.get();
    qApp->notify(input.receiver, input.event.get()); // `sendEvent` would mark it as not the user's
    handedOn_ = nullptr;
  }

  int depth_ = 0; ///< of `letEventsRun`
  std::deque<Input> kept_;
  const QEvent *handedOn_ = nullptr;
};

} // namespace

void letEventsRun() {
  static auto *const kept = new KeptInput(qApp);
  kept->letEventsRun();
}
