#include "startup.h"

#include "EventPump.h"
#include "controls.h"
#include "frmStart.h"
#include "pictures.h"

#include <QApplication>
#include <QIcon>
#include <QStyleFactory>

void dressApplication() {
  // One look everywhere, in light colours: the design sets dark texts on light blue, which a dark
  // desktop's palette would make unreadable.
  QApplication::setStyle(QStyleFactory::create("Fusion"));
  QPalette palette(QColor(236, 238, 244));
  palette.setColor(QPalette::Highlight, QColor(20, 70, 140));
  palette.setColor(QPalette::HighlightedText, Qt::white); // which on Windows would be black
  palette.setColor(QPalette::PlaceholderText, QColor(75, 80, 95));
  QApplication::setPalette(palette);
  QFont font = sansFont(9.75); // tool tips, messages, help, which may hold any text
  font.setStyleStrategy(QFont::PreferDefault);
  QApplication::setFont(font);
  QApplication::setApplicationName("Korvel");
  QApplication::setApplicationVersion(KORVEL_VERSION);
  QGuiApplication::setDesktopFileName("korvel");
  QIcon icon;
  for (const int size : {16, 24, 32, 48, 64})
    icon.addPixmap(QPixmap::fromImage(loadImage(QString("korvel-%1").arg(size))));
  QApplication::setWindowIcon(icon);
}

std::unique_ptr<frmHaupt> Main(Globals &globals, const Services &services, const Folders &folders) {
  auto splash = std::make_unique<frmStart>(QApplication::applicationVersion());
  splash->show();
  letEventsRun();

  globals.folders = folders;
  globals.ScorePath = pathIn(folders.player, "Score.hsc");
  globals.HelpPath = pathIn(folders.data, "Hilfe.qch");
  globals.sounds = Sounds::load();
  globals.MuellIcon = {loadPicture("muell-grau"), loadPicture("muell-rot")};
  globals.sprites = Sprites::load();
  globals.background = loadPicture("haupt-hintergrund");
  globals.settings = Settings::read(services.store);
  globals.score = Score(std::filesystem::path(globals.ScorePath.toStdU16String()));
  if (Score::isBroken(globals.score.loadAtStart())) {
    splash.reset(); // it would cover the message
    services.messages.warning("Achtung!", Score::kDamaged);
  }

  auto window = std::make_unique<frmHaupt>(globals, services);
  window->setModus(frmHaupt::Idle);
  splash.reset();
  window->show();
  return window;
}
