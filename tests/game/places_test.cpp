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

/// A control in a line: name, place in its window, size, text, tool tip, then how an icon or a big
/// text looks. `optSize0*3` is a row of three from `optSize0` on: it has a step and all the texts.
QString describe(QWidget &window, const QString &name) {
  QString stem = name.section('*', 0, 0), line, texts, tips;
  const int count = std::max(1, name.section('*', 1).toInt());
  QPoint last, step;
  for (int i = 0; i < count; ++i) {
    auto &control = Robot::control(
        window, i == 0 ? stem : stem.chopped(1) + QString::number(stem.back().digitValue() + i));
    const QPoint at = control.mapTo(&window, QPoint());
    if (i == 0)
      line = QString("%1 %2,%3 %4x%5")
                 .arg(name)
                 .arg(at.x())
                 .arg(at.y())
                 .arg(control.width())
                 .arg(control.height());
    else if (std::exchange(step, at - last) != at - last || i == 1)
      line += QString(" +%1,%2").arg(step.x()).arg(step.y());
    last = at;
    const auto add = [](QString &all, const QString &text) {
      all += all.isEmpty() ? text : all.endsWith(text) ? "" : '|' + text;
    };
    add(texts, control.property("text").toString());
    add(tips, control.toolTip());
    if (i + 1 < count)
      continue;
    for (const QString &text : {texts, tips})
      line += text.isEmpty() ? "" : " '" + text + "'";
    if (const int big = control.font().pixelSize();
        big > 16 && control.inherits("QLabel") && texts != "")
      line += QString(" %1px ").arg(big) + control.palette().color(QPalette::WindowText).name();
    if (const auto *button = qobject_cast<QPushButton *>(&control);
        button && !button->icon().isNull())
      line += QString(" icon %1").arg(button->iconSize().width());
  }
  return line;
}

/// `table` begins with the size and the title of the window.
void measure(QWidget &window, const QString &table) {
  const QStringList lines = table.split('\n', Qt::SkipEmptyParts);
  EXPECT_EQ(
      lines[0],
      QString("%1x%2 '%3'").arg(window.width()).arg(window.height()).arg(window.windowTitle()));
  for (const QString &line : lines.mid(1))
    EXPECT_EQ(describe(window, line.section(' ', 0, 0)), line);
}

TEST_F(Places, AreThoseOfTheDesign) {
  newGame(1);
  measure(*window, R"(700x473 'Korvel'
keyNew 0,1 90x63 '&Neues Spiel' 'Neues Spiel beginnen.'
keyOptionen 90,1 90x63 '&Optionen' 'Spieleinstellungen ändern'
keyTop10 180,1 90x63 '&Top 10' 'Zeigt die Bestenliste.'
keyEnde 270,1 90x63 '&Ausgang' 'Spiel verlassen'
keyHilfe 360,1 90x63 '&Hilfe' 'Einige Infos rund ums Spiel.'
picHinten 0,68 701x405
picpFeld 52,133 253x203
piccFeld 396,133 253x203
lblName0*2 52,114 253x19 +344,0 'Jörg|Computer'
imgMüll 273,338 32x32 'Löscht das aktuelle Boot!'
imgBoot0*2 64,384 73x25 +344,0
lblBeschriftung0*6 64,409 33x25 +40,0 '6er|5er|4er|3er|2er|1er' 19px #c0ffff
lblBeschriftung6*6 408,409 33x25 +40,0 '6er|5er|4er|3er|2er|1er' 19px #c0ffff
lblpBoote0*6 64,428 33x25 +40,0 '0|1|2|3' 19px #000000
lblcBoote0*6 408,428 33x25 +40,0 '0' 19px #000000
)");
  newGame(3);
  measure(*window, R"(700x473 'Korvel'
picpFeld 17,105 323x259
piccFeld 361,105 323x259
lblName0*2 17,86 323x19 +344,0 'Jörg|Computer'
imgMüll 308,366 32x32 'Löscht das aktuelle Boot!'
)");
  newGame(2);
  measure(*window, R"(700x473 'Korvel'
picpFeld 34,119 288x231
piccFeld 378,119 288x231
lblName0*2 34,100 288x19 +344,0 'Jörg|Computer'
imgMüll 290,352 32x32 'Löscht das aktuelle Boot!'
)");
  measure(*std::make_unique<frmNeu>(window.get(), 2, "", "", nullptr), R"(284x203 'Neues Spiel'
lblName 56,16 121x17 'Name des Spielers:'
cboName 56,32 161x24 'Gib hier Deinen Namen ein.'
lblSize 56,72 121x17 'Spielfeld:'
optSize0*3 56,88 49x49 +56,0 'Größe 1|Größe 2|Größe 3' 'Schnelles Spiel|Normales Spiel|Langes Spiel' icon 32
cmdOK 80,168 57x25 '&OK!' 'Einstellungen übernehmen'
cmdAbbruch 144,168 57x25 '&Abbruch' 'Dialog abbrechen'
)");
  measure(*std::make_unique<frmOptions>(window.get(), globals.settings, store), R"(388x228 ' '
imgÜberschrift 82,10 228x49
lblBeschriftung0 18,74 49x16 'Sound:'
lblBeschriftung2 82,74 37x16 'Hilfe:'
lblBeschriftung1 178,74 169x16 'Standardspielfeldgröße:'
chkSound 18,98 49x49 'Soundeffekte während des Spieles ein-/ausschalten.' icon 32
chkHelp 74,98 49x49 icon 32
optSize0*3 154,98 65x49 +72,0 'Größe 1|Größe 2|Größe 3' 'Schnelles Spiel|Normales Spiel|Langes Spiel' icon 32
cmdÜbernehmen 114,186 73x25 '&Übernehmen' 'Einstellungen übernehmen'
cmdAbbruch 194,186 73x25 '&Abbrechen' 'Dialog abbrechen'
)");
  measure(*std::make_unique<frmMeldung>(window.get()), R"(354x141 ' '
lblMeldung 18,18 313x57
cmdOK 90,98 73x25 '&Ja'
cmdAbbruch 170,98 73x25 '&Nein'
)");
  frmStart start("1.0.5");
  EXPECT_EQ(start.geometry().center(), start.screen()->geometry().center());
  measure(start, R"(307x165 ''
lblVersion 153,91 129x23 'Version 1.0.5'
lblCopyright 150,147 151x13 '© 2026 Die Korvel-Werft'
)");
  const ScoreServices scores{globals.score, *window->grid(), player, {}};
  frmSieg sieg(window.get(), scores);
  sieg.setBild(1, "99");
  measure(sieg, "388x228 ''\nimgTitle 118,18 153x27");
  sieg.setBild(0, "99");
  measure(sieg, R"(388x228 ''
imgTitle 19,18 351x30
lblText 10,66 369x49
lblBomben 6,114 373x25 'Mit nur 99 Wasserbomben!' 21px #ac0d4d
Label1 10,162 369x17 'Möchtest Du die Highscore-Tabelle ansehen?'
cmdJa 114,194 73x25 '&Ja'
cmdNein 194,194 73x25 '&Nein'
)");
  measure(*std::make_unique<frmScore>(window.get(), scores), R"(300x381 ''
lblBeschriftung0 16,82 41x17 'Platz'
lblBeschriftung1 80,82 89x17 'Name'
lblBeschriftung2 224,82 41x17 'Quote'
linTab1 13,103 270x3
linTab0 55,80 3x257
linTab2 191,80 3x257
lblNr0*10 24,112 25x17 +0,22 '1.|2.|3.|4.|5.|6.|7.|8.|9.|10.'
lblName0*10 64,112 153x19 +0,22 'unbekannt'
lblQuote0*10 200,112 83x17 +0,22 '?'
lblBeschriftung3 40,340 221x13 'Zum Beenden auf das Fenster klicken!'
optSize0*3 5,355 90x21 +90,0 'Größe 1|Größe 2|Größe 3' 'Highscoretabelle entsprechend Spielebene anzeigen.'
cmdClear 275,355 21x21 'Löscht die komplette Top-Ten!' icon 16
)");
}

} // namespace
