// A demonstration game in the real windows without a screen: from the new-game dialog to the end,
// with a picture of each phase, or as the frames of a film.

#include "Robot.h"
#include "players.h"
#include "startup.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QPainter>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>

namespace {

constexpr const char *kHelp =
    "demo [--film] [SIZE [FOLDER]]\n"
    "    plays a game of that size, 1 to 3 (2), without a screen, and writes a PNG of each\n"
    "    phase to the folder (demo in the build tree). It is the same game each time.\n"
    "    With --film the pictures are 001.png, 002.png and so on: one after each press,\n"
    "    and several of each phase, where the film rests.\n";

/// Writes pictures of the main window.
struct Camera {
  QWidget &window;
  QString folder;
  bool films;
  int frames = 0;

  /// A phase, with a dialog where it stands over the window.
  void shoot(const QString &phase, QDialog *dialog = nullptr) {
    QPixmap picture = window.grab();
    if (dialog) {
      QPainter painter(&picture);
      const QRect place(dialog->pos() - window.pos(), dialog->size());
      painter.fillRect(place.adjusted(-3, -3, 3, 3), QColor(40, 60, 90));
      painter.drawPixmap(place.topLeft(), dialog->grab());
    }
    if (!films)
      save(picture, phase);
    else
      for (int i = dialog ? 10 : 5; i > 0; --i) // a dialog has to be read
        addFrame(picture);
  }

  void afterPress() {
    if (films)
      addFrame(window.grab());
  }

private:
  void addFrame(const QPixmap &picture) {
    save(picture, QString("%1").arg(++frames, 3, 10, QChar('0')));
  }

  void save(const QPixmap &picture, const QString &name) const {
    const QString path = QDir::cleanPath(folder + '/' + name + ".png");
    if (!picture.save(path)) {
      std::fprintf(stderr, "demo: cannot write %s\n", qPrintable(path));
      std::exit(2);
    }
    std::puts(qPrintable(path));
  }
};

void playBattle(frmHaupt &window, Robot &robot, Camera &camera, RandomDraw &draw) {
  RandomGunner gunner(*window.grid(), draw);
  const auto press = [&](const Cell &cell) {
    if (window.Modus() != frmHaupt::Battle)
      return;
    robot.press(cell);
    camera.afterPress();
  };
  for (int i = 0; i < 2 * window.grid()->rows(); ++i)
    press(gunner.next());
  camera.shoot("5-battle");
  const tBoot boat = window.grid()->CBoote(2);
  for (int j = 1; j <= boat.length(); ++j)
    press(boat.cell(j));
  camera.shoot("6-sinking");

  Robot::onDialog([&](QDialog &end) {
    camera.shoot("7-end", &end);
    Robot::onDialog([&](QDialog &topTen) {
      camera.shoot("8-top-ten", &topTen);
      topTen.close();
    });
    Robot::click(Robot::control(end, "cmdJa"));
  });
  while (window.Modus() == frmHaupt::Battle)
    press(gunner.next());
}

void play(const QString &folder, int size, bool films) {
  SeededDraw draw{179}; // the human wins at all sizes
  QuietSound sound;
  MemoryStore store;
  store.values["Korvel/Options/Help"] = "0"; // no balloons on the pictures
  ClosedHelp help;
  QtMessageBox messages;
  Globals globals;
  const QTemporaryDir data; // the top ten of this one game
  const auto window = Main(globals, {draw, sound, store, messages, help}, data.path());
  Robot robot(*window);
  Camera camera{*window, folder, films};
  camera.shoot("1-start");

  Robot::onDialog([&](QDialog &dialog) {
    Robot::control<QComboBox>(dialog, "cboName").setEditText("Jörg");
    Robot::click(Robot::control(dialog, QString("optSize%1").arg(size - 1)));
    camera.shoot("2-new-game", &dialog);
    Robot::click(Robot::control(dialog, "cmdOK"));
  });
  robot.command("keyNew");
  const Cell last = robot.setFleetButOne(draw, [&](const BoatInWork &boat) {
    camera.afterPress();
    if (boat.BootID == 3 && boat.TeilNr == 2)
      camera.shoot("3-set-up");
  });
  Robot::onDialog([&](QDialog &dialog) {
    camera.shoot("4-question", &dialog);
    Robot::click(Robot::control(dialog, "cmdOK"));
  });
  robot.press(last);
  camera.afterPress();
  playBattle(*window, robot, camera, draw);
}

} // namespace

int main(int argc, char **argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication app(argc, argv);
  dressApplication();

  QStringList arguments = app.arguments().mid(1);
  const bool films = arguments.removeOne("--film");
  const QString size = arguments.value(0, "2");
  if (arguments.size() > 2 || size.size() != 1 || size < "1" || size > "3") {
    std::fputs(kHelp, stdout);
    return size == "--help" ? 0 : 2;
  }
  const QString folder =
      QDir(arguments.value(1, app.applicationDirPath() + "/../demo")).absolutePath();
  QDir().mkpath(folder);
  play(folder, size.toInt(), films);
  return 0;
}
