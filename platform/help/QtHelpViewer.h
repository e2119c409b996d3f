#pragma once

#include "HelpViewer.h"
#include "HelpWindow.h"

#include <QPointer>

/// Help books in Qt's compressed format.
class QtHelpViewer : public HelpViewer {
public:
  ~QtHelpViewer() override { close(); }

  QString show(const QString &file, Entry entry) override;
  void close() override;

  /// The window, null while there is none.
  HelpWindow *window() const { return window_; }

private:
  QPointer<HelpWindow> window_;
};
