#include "QtHelpViewer.h"

#include <QDir>
#include <QFileInfo>

namespace {

constexpr const char *kNoBook = "Die Hilfedatei fehlt oder ist beschädigt.";
constexpr const char *kNoRoom =
    "Die Hilfe braucht etwas Platz im Ordner für Zwischendateien. Der Ordner fehlt, ist voll oder "
    "lässt sich nicht beschreiben:\n%1";

} // namespace

QString QtHelpViewer::show(const QString &file, Entry entry) {
  if (!window_) {
    if (!QFileInfo(file).isFile()) // a pipe would be waited for
      return kNoBook;
    auto window = std::make_unique<HelpWindow>(file);
    if (!window->isReadable())
      return window->hasRoom() ? QString(kNoBook)
                               : QString(kNoRoom).arg(QDir::toNativeSeparators(QDir::tempPath()));
    window_ = window.release(); // deletes itself when it is closed
  }
  window_->open(entry);
  return {};
}

void QtHelpViewer::close() { delete window_; }
