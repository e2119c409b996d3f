#include "ClockDraw.h"
#include "LateSound.h"
#include "QtHelpViewer.h"
#include "folders.h"
#include "scale.h"
#include "startup.h"

#include <QApplication>
#include <QTimer>

#include <cstdio>
#include <cstdlib>

namespace {

constexpr int kSoundDelay = 300; // ms
constexpr const char *kNoFolder =
    "Korvel findet seinen eigenen Ordner nicht. Wenn in dessen Namen oder in dem eines Ordners "
    "darüber fehlerhafte Zeichen stehen (kein UTF-8), benenne ihn um und starte Korvel noch "
    "einmal.";

/// Where Qt finds no screen it would end the program with an English text.
void tellNoScreen(QtMsgType type, const QMessageLogContext &context, const QString &text) {
  if (type != QtFatalMsg) {
    std::fprintf(stderr, "%s\n", qPrintable(qFormatLogMessage(type, context, text)));
    return;
  }
  std::fputs("Korvel findet keinen Bildschirm. Läuft eine grafische Sitzung? Unter Wayland gehört "
             "das Paket qt6-wayland dazu.\n",
             stderr);
  std::_Exit(1);
}

} // namespace

int main(int argc, char **argv) {
  keepScalesWhole();
  qInstallMessageHandler(tellNoScreen);
  const QApplication app(argc, argv);
  qInstallMessageHandler(nullptr);
  dressApplication();

  const std::optional<Folders> folders = findFolders();
  if (!folders) {
    QtMessageBox().critical("Korvel", kNoFolder);
    return 1;
  }
  ClockDraw draw;
  LateSound sound(folders->modules);
  QtSettingsStore settings;
  QtMessageBox messages;
  QtHelpViewer help;
  Globals globals;
  const auto window = Main(globals, {draw, sound, settings, messages, help}, *folders);
  // Opening the sound card can take longer than the whole start, so the first frames come before.
  QTimer::singleShot(kSoundDelay, [&] { sound.open(); });
  return QApplication::exec();
}
