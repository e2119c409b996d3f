#include "announce.h"

#include <QAccessibleWidget>
#include <QWidget>

namespace {

constexpr const char *kRole = "korvelRole";

QAccessibleInterface *withRole(const QString &, QObject *object) {
  const QVariant role = object->property(kRole);
  return role.isValid() ? new QAccessibleWidget(static_cast<QWidget *>(object),
                                                role.value<QAccessible::Role>())
                        : nullptr;
}

} // namespace

// Readers say the name of a notification when it begins to be shown. This one has no pixels.
void announce(QWidget &window, const QString &text) {
  if (!QAccessible::isActive())
    return;
  auto *notice = window.findChild<QWidget *>("notice", Qt::FindDirectChildrenOnly);
  if (!notice) {
    notice = new QWidget(&window);
    notice->setObjectName("notice");
    notice->resize(0, 0);
    setRole(*notice, QAccessible::Notification);
    notice->show();
  }
  notice->setAccessibleName(text);
  QAccessibleEvent shown(notice, QAccessible::ObjectShow);
  QAccessible::updateAccessibility(&shown);
}

void setRole(QWidget &widget, QAccessible::Role role) {
  QAccessible::installFactory(withRole); // once, however often it is called
  widget.setProperty(kRole, QVariant::fromValue(role));
}
