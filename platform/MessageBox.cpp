#include "MessageBox.h"

#include <QApplication>
#include <QMessageBox>

void QtMessageBox::critical(const QString &title, const QString &text) {
  QMessageBox::critical(QApplication::activeWindow(), title, text);
}

void QtMessageBox::warning(const QString &title, const QString &text) {
  QMessageBox::warning(QApplication::activeWindow(), title, text);
}
