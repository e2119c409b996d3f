#include "ClockDraw.h"
#include "Main.h"
#include "SdlSound.h"

#include <QApplication>
#include <QTimer>

int main(int argc, char **argv) {
  // Whole steps keep the grid lines sharp.
  QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
      Qt::HighDpiScaleFactorRoundingPolicy::Round);
  const QApplication app(argc, argv);
  dressApplication();

  ClockDraw draw;
  SdlSound sound;
  QtSettingsStore settings;
  QtMessageBox messages;
  Globals globals;
  const auto window = Main(globals, {draw, sound, settings, messages}, app.applicationDirPath());
  // Behind the first frame: opening the sound card takes longer than the whole start.
  QTimer::singleShot(0, [&] { sound.open(); });
  return QApplication::exec();
}
