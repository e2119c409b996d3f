#include "Main.h"

#include "ClockDraw.h"
#include "late.h"

#include <QApplication>
#include <QTimer>

namespace {

constexpr int kSoundDelay = 300; // ms
constexpr const char *kNoFolder =
    "Korvel findet seinen eigenen Ordner nicht. Wenn in dessen Namen oder in dem eines Ordners "
    "darüber fehlerhafte Zeichen stehen (kein UTF-8), benenne ihn um und starte Korvel noch "
    "einmal.";

} // namespace

int main(int argc, char **argv) {
  // Whole steps keep the grid lines sharp.
  QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::Round);
  const QApplication app(argc, argv);
  dressApplication();

  const QString folder = app.applicationDirPath();
  if (folder.isEmpty()) { // a name that QString can't hold, or no /proc
    QtMessageBox().critical("Korvel", kNoFolder);
    return 1;
  }
  ClockDraw draw;
  LateSound sound;
  QtSettingsStore settings;
  QtMessageBox messages;
  LateHelp help;
  Globals globals;
  const auto window = Main(globals, {draw, sound, settings, messages, help}, folder);
  // Opening the sound card can take longer than the whole start, so the first frames come before.
  QTimer::singleShot(kSoundDelay, [&] { sound.open(); });
  return QApplication::exec();
}
