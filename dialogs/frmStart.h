#pragma once

#include <QWidget>

/// Shown while the program starts: a picture with the version, centred on the screen. It takes no
/// input.
class frmStart : public QWidget {
  Q_OBJECT

public:
  /// `version` is "major.minor.revision".
  explicit frmStart(const QString &version);
};
