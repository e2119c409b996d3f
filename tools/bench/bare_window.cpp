// What the game's start is measured against: a bare Qt window of its size.
#include <QApplication>
#include <QWidget>

#include <cstdio>

int main(int argc, char **argv) {
  if (argc > 1) {
    std::puts(
        "bare_window: shows an empty window of the game's size, for tools/measure to compare");
    return 0;
  }
  const QApplication app(argc, argv);
  QWidget window;
  window.setFixedSize(700, 473);
  window.show();
  return QApplication::exec();
}
