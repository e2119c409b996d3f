#include "EventPump.h"

#include <QCoreApplication>

void letEventsRun() { QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents); }
