#include "EventPump.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QTimer>

void letEventsRun() {
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  // On X11 Qt sets the excluded input aside and looks at it again only when something wakes it up;
  // without this, queued presses could lie there until the pointer is moved.
  QTimer::singleShot(0, qApp, [] { QAbstractEventDispatcher::instance()->wakeUp(); });
}
