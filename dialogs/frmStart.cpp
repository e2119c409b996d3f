#include "frmStart.h"

#include "controls.h"

#include <QScreen>

frmStart::frmStart(const QString &version) : QWidget(nullptr, Qt::SplashScreen) {
  setFixedSize(307, 165);
  setAccessibleName("Korvel");
  auto *picHinten = makePicture(this, {1, 3, 305, 161}, "start");

  auto *lblVersion = new QLabel("Version " + version, picHinten);
  lblVersion->setObjectName("lblVersion");
  dress(*lblVersion, {152, 88, 129, 23},
        {serifFont(12), palette().color(QPalette::Text), palette().color(QPalette::Base), true});
  auto *lblCopyright = new QLabel("© 2026 Die Korvel-Werft", picHinten);
  lblCopyright->setObjectName("lblCopyright");
  dress(*lblCopyright, {149, 144, 151, 13}, {sansFont(8.25, QFont::Bold), Qt::white});

  const QRect area = screen()->geometry();
  move(area.topLeft() + QPoint((area.width() - width()) / 2, (area.height() - height()) / 2));
}
