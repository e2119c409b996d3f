#include "QtHelpViewer.h"
#include "late.h"

KORVEL_LATE_SERVICE(HelpViewer, QtHelpViewer)
