#include "MessageBox.h"

#include <QMessageBox>

void QtMessageBox::critical(const QString &title, const QString &text) {
  QMessageBox::critical(nullptr, title, text);
}
