// What the game's start is measured against: a bare Qt window of its size.
#include <QApplication>
#include <QWidget>

int main(int argc, char **argv) {
  const QApplication app(argc, argv);
  QWidget window;
  window.setFixedSize(700, 473);
  window.show();
  return QApplication::exec();
}
