#include "EventPump.h"

#include <QApplication>
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
  // Input is seen here on its way to a window, before a widget gets it. While some input is kept,
  // later input has to wait too.
  bool eventFilter(QObject *watched, QEvent *event) override {
    if (!watched->isWindowType() || !isInput(event->type()) || (depth_ == 0 && kept_.empty()))
      return false;
    if (event == handedOn_) {
      handedOn_ = nullptr;
      return false;
    }
    kept_.push_back({static_cast<QWindow *>(watched), std::unique_ptr<QEvent>(event->clone())});
    return true;
  }

private:
  struct Input {
    QPointer<QWindow> window;
    std::unique_ptr<QEvent> event;
  };

  static bool isInput(QEvent::Type type) {
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
      return true;
    default:
      return false;
    }
  }

  // A window that is hidden or blocked by a dialog gets no input from the window system either.
  static bool takesInput(const QWindow &window) {
    const QWidget *dialog = QApplication::activeModalWidget();
    return window.isVisible() && !(dialog && window.isAncestorOf(dialog->windowHandle()));
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
    if (!input.window || !takesInput(*input.window))
      return;
    handedOn_ = input.event.get();
    qApp->notify(input.window, input.event.get()); // `sendEvent` would mark it as not the user's
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
