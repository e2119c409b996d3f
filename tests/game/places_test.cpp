// Every control of every window, measured against the tables of the design.

#include "Stage.h"
#include "controls.h"
#include "frmMeldung.h"
#include "frmNeu.h"
#include "frmOptions.h"
#include "frmStart.h"

#include <QScreen>

namespace {

using Places = Stage;

/// A control in a line: name, place and size in pixels, text, tool tip; of big texts and of icons
/// how they look.
QString describe(const QWidget &control) {
  const QPoint at = control.mapTo(control.window(), QPoint());
  QString line = QString("%1 %2,%3 %4x%5")
                     .arg(control.objectName())
                     .arg(at.x())
                     .arg(at.y())
                     .arg(control.width())
                     .arg(control.height());
  for (const QString &text : {control.property("text").toString(), control.toolTip()})
    if (!text.isEmpty())
      line += " '" + text + "'";
  if (control.font().pixelSize() > 16 && control.inherits("QLabel"))
    line += QString(" %1px %2")
                .arg(control.font().pixelSize())
                .arg(control.palette().color(QPalette::WindowText).name());
  if (const auto *button = qobject_cast<const QPushButton *>(&control))
    line += button->icon().isNull() ? "" : QString(" icon %1").arg(button->iconSize().width());
  return line;
}

/// `table` begins with the window itself.
void measure(QWidget &window, const QString &table) {
  EXPECT_EQ(QString("%1x%2 '%3'").arg(window.width()).arg(window.height()).arg(window.windowTitle()),
            table.section('\n', 0, 0));
  for (const QString &line : table.section('\n', 1).split('\n', Qt::SkipEmptyParts)) {
    // A row of like controls is one line: the name of the first, how many, the step.
    const QString name = line.section(' ', 0, 0);
    EXPECT_EQ(describe(Robot::control(window, name)), line);
  }
}

TEST_F(Places, X) {
  newGame(1);
  const auto dump = [](QWidget &w) {
    std::cout << "== " << w.width() << 'x' << w.height() << " '" << w.windowTitle().toStdString() << "'\n";
    for (QWidget *c : w.findChildren<QWidget *>()) if (!c->objectName().isEmpty()) std::cout << describe(*c).toStdString() << '\n';
  };
  dump(*window);
  frmNeu neu(window.get(), 2, "Jörg", "", {}); dump(neu);
  frmOptions options(window.get(), globals.settings, store); dump(options);
  frmMeldung meldung(window.get()); dump(meldung);
  frmStart start("1.0.5"); dump(start);
  const ScoreServices scores{globals.score, *window->grid(), player, {}};
  frmSieg sieg(window.get(), scores); sieg.setBild(1, "99"); dump(sieg);
  frmScore t(window.get(), scores); dump(t);
}

} // namespace
