#include "QtHelpViewer.h"

bool QtHelpViewer::show(const QString &file, Entry entry) {
  if (!window_) {
    auto window = std::make_unique<HelpWindow>(file);
    if (!window->isReadable())
      return false;
    window_ = window.release(); // deletes itself when it is closed
  }
  window_->open(entry);
  return true;
}

void QtHelpViewer::close() { delete window_; }
