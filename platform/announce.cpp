#include "announce.h"

#include <QAbstractButton>
#include <QAccessibleWidget>
#include <QApplication>
#include <QMouseEvent>
#include <QTimer>
#include <QWidget>
#include <QWindow>

#include <chrono>

using namespace std::chrono_literals;

namespace {

constexpr const char *kRole = "korvelRole";

// Orca keeps for good whether a thing was visible when it first met it. So a hidden button counts
// as visible, without a place.
class Button : public QAccessibleWidget {
public:
  explicit Button(QAbstractButton *button)
      : QAccessibleWidget(button, QAccessible::Button), button_(*button) {}

  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.invisible = false;
    return state;
  }
  QRect rect() const override { return button_.isVisible() ? QAccessibleWidget::rect() : QRect(); }
  QStringList actionNames() const override {
    return canBePressed() ? QStringList(pressAction()) : QStringList();
  }
  // Later, as what asks for it waits for an answer.
  void doAction(const QString &name) override {
    if (name == pressAction())
      QTimer::singleShot(0, &button_, [this] {
        if (canBePressed())
          pressAt(button_, button_.rect().center());
      });
  }

private:
  bool canBePressed() const { return button_.isVisible() && button_.isEnabled(); }

  QAbstractButton &button_;
};

QAccessibleInterface *withRole(const QString &, QObject *object) {
  const QVariant role = object->property(kRole);
  if (auto *button = qobject_cast<QAbstractButton *>(object); button && role.isValid())
    return new Button(button);
  return role.isValid() ? new QAccessibleWidget(static_cast<QWidget *>(object),
                                                role.value<QAccessible::Role>())
                        : nullptr;
}

} // namespace

void announce(QWidget &window, const QString &text) {
  if (!QAccessible::isActive())
    return;
#ifdef Q_OS_WIN
  // Qt hands a value that is a text to Windows as a notification.
  QAccessibleValueChangeEvent said(&window, text);
  QAccessible::updateAccessibility(&said);
#else
  // Readers say the name of a notification when it begins to be shown, but ask for it later: so each
  // text has a notification of its own, which stays for a while. It has no pixels.
  auto *notice = new QWidget(&window);
  notice->resize(0, 0);
  setRole(*notice, QAccessible::Notification);
  notice->setAccessibleName(text);
  notice->show();
  QTimer::singleShot(10s, notice, &QObject::deleteLater);
#endif
}

void pressAt(QWidget &widget, const QPoint &place) {
  QWidget *window = widget.window();
  QWindow *handle = window->windowHandle();
  if (QApplication::activeModalWidget() || !handle)
    return;
  const QPointF at = widget.mapTo(window, place);
  for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
    QMouseEvent event(type, at, at, handle->mapToGlobal(at), Qt::LeftButton,
                      type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, {});
    QApplication::sendEvent(handle, &event);
  }
}

void setRole(QWidget &widget, QAccessible::Role role) {
  QAccessible::installFactory(withRole); // once, however often it is called
  widget.setProperty(kRole, QVariant::fromValue(role));
}
