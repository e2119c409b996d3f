#pragma once

#include <QString>

/// The standard message box, for failures.
class MessageBox {
public:
  virtual ~MessageBox() = default;

  /// Shows a stop icon, the text and one OK button, and returns when it is closed.
  virtual void critical(const QString &title, const QString &text) = 0;
  /// The same with a warning icon.
  virtual void warning(const QString &title, const QString &text) = 0;
};

/// The message box of the desktop.
class QtMessageBox : public MessageBox {
public:
  void critical(const QString &title, const QString &text) override;
  void warning(const QString &title, const QString &text) override;
};
