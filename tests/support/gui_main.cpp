// The main of test programs that open windows.

#include <QApplication>
#include <QTemporaryDir>
#include <gtest/gtest.h>

int main(int argc, char **argv) {
  const QTemporaryDir config; // not of whoever runs the tests
  qputenv("XDG_CONFIG_HOME", config.path().toUtf8());
  qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  QApplication app(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false); // tests open and close many
  return RUN_ALL_TESTS();
}
