// A demonstration game in the real windows without a screen: from the new-game dialog to the end,
// with a picture of each phase.

#include "ClockDraw.h"
#include "startup.h"
#include "Robot.h"
#include "players.h"

#include <QApplication>
#include <QComboBox>
#include <QCommandLineParser>
#include <QDir>
#include <QPainter>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>

namespace {

constexpr const char *kHelp =
    "demo [--out DIR] [--size S]\n"
    "    plays a game of size S, 1 to 3 (2), without a screen, and writes a PNG of each\n"
    "    phase to DIR (the folder demo of the build tree).\n";

[[noreturn]] void fail(const QString &text) {
  std::fprintf(stderr, "demo: %s\n", qPrintable(text));
  std::exit(2);
}

/// Writes pictures of the main window.
class Camera {
public:
  Camera(const QWidget &window, const QString &folder)
      : window_(const_cast<QWidget &>(window)), folder_(folder) {}

  /// With a dialog where it stands over the window.
  void shoot(const QString &phase, QDialog *dialog = nullptr) {
    QPixmap picture = window_.grab();
    if (dialog) {
      QPainter painter(&picture);
      const QRect place(dialog->pos() - window_.pos(), dialog->size());
      painter.fillRect(place.adjusted(-3, -3, 3, 3), QColor(40, 60, 90));
      painter.drawPixmap(place.topLeft(), dialog->grab());
    }
    const QString path = folder_ + '/' + phase + ".png";
    if (!picture.save(path))
      fail(path + ": cannot write");
    std::printf("%s\n", qPrintable(QDir::cleanPath(path)));
  }

private:
  QWidget &window_;
  QString folder_;
};

void playBattle(frmHaupt &window, Robot &robot, Camera &camera, RandomDraw &draw) {
  RandomGunner gunner(*window.grid(), draw);
  const auto press = [&](const Cell &cell) {
    if (window.Modus() == frmHaupt::Battle)
      robot.press(cell);
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

void play(const QString &folder, int size) {
  ClockDraw draw;
  QuietSound sound;
  MemoryStore store;
  store.values["Help"] = "0"; // no balloons on the pictures
  ClosedHelp help;
  QtMessageBox messages;
  Globals globals;
  const QTemporaryDir data; // the top ten of this one game
  const auto window = Main(globals, {draw, sound, store, messages, help}, data.path());
  Robot robot(*window);
  Camera camera(*window, folder);
  camera.shoot("1-start");

  Robot::onDialog([&](QDialog &dialog) {
    Robot::control<QComboBox>(dialog, "cboName").setEditText("Jörg");
    Robot::click(Robot::control(dialog, QString("optSize%1").arg(size - 1)));
    camera.shoot("2-new-game", &dialog);
    Robot::click(Robot::control(dialog, "cmdOK"));
  });
  robot.command("keyNew");
  const Cell last = robot.setFleetButOne(draw, [&](const BoatInWork &boat) {
    if (boat.BootID == 3 && boat.TeilNr == 2)
      camera.shoot("3-set-up");
  });
  Robot::onDialog([&](QDialog &dialog) {
    camera.shoot("4-question", &dialog);
    Robot::click(Robot::control(dialog, "cmdOK"));
  });
  robot.press(last);
  playBattle(*window, robot, camera, draw);
}

} // namespace

int main(int argc, char **argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication app(argc, argv);
  dressApplication();

  QCommandLineParser parser;
  parser.addOptions({{"out", "", "DIR", app.applicationDirPath() + "/../demo"},
                     {"size", "", "S", "2"},
                     {"help", ""}});
  if (!parser.parse(app.arguments()))
    fail(parser.errorText());
  if (!parser.positionalArguments().isEmpty())
    fail("unknown argument " + parser.positionalArguments().first());
  if (parser.isSet("help")) {
    std::fputs(kHelp, stdout);
    return 0;
  }
  const int size = parser.value("size").toInt();
  if (size < 1 || size > kSizes)
    fail("--size takes 1, 2 or 3");
  const QString folder = QDir(parser.value("out")).absolutePath();
  if (!QDir().mkpath(folder))
    fail(folder + ": cannot make this folder");
  play(folder, size);
  return 0;
}
