#include "QtHelpViewer.h"

#include <memory>

extern "C" Q_DECL_EXPORT HelpViewer *korvelService() {
  return std::make_unique<QtHelpViewer>().release();
}
