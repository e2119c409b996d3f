#pragma once

#include <QWidget>

/// A strip of flat buttons, picture over caption, which lie directly on what is behind them.
class Toolbar : public QWidget {
  Q_OBJECT

public:
  static constexpr int kButtonWidth = 90;
  static constexpr int kButtonHeight = 63;

  explicit Toolbar(QWidget *parent);

  /// Appends a button; an ampersand in the caption marks its access key. A click on it raises
  /// `clicked` with its key.
  void addButton(const QString &key, const QString &caption, const QString &picture,
                 const QString &toolTip);

signals:
  void clicked(const QString &key);

private:
  int buttons_ = 0;
};
