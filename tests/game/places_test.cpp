// Every control of every window, measured against the tables of the design.

#include "Stage.h"
#include "controls.h"
#include "frmMeldung.h"
#include "frmNeu.h"
#include "frmOptions.h"
#include "frmStart.h"

#include <QComboBox>
#include <QScreen>

namespace {

using Places = Stage;

QString look(const QFont &font, const QColor &text) {
  return QString(" %1 %2%3%4 %5")
      .arg(font.family())
      .arg(font.pixelSize())
      .arg(font.bold() ? "b" : "", font.underline() ? "u" : "", text.name());
}

/// A control in a line: name, place on `background`, text, tool tip, and how it looks.
QString describe(const QWidget &control, QPoint background) {
  const QPoint at = control.mapTo(control.window(), -background);
  QString line = QString("%1 %2,%3 %4x%5")
                     .arg(control.objectName())
                     .arg(at.x())
                     .arg(at.y())
                     .arg(control.width())
                     .arg(control.height());
  for (const QString &text : {control.property("text").toString(), control.toolTip()})
    if (!text.isEmpty())
      line += " '" + text + "'";
  const QPalette palette = control.palette();
  if (const auto *label = qobject_cast<const QLabel *>(&control)) {
    if (!label->text().isEmpty())
      line += look(label->font(), palette.color(QPalette::WindowText));
    if (label->autoFillBackground())
      line += " on " + palette.color(QPalette::Window).name();
    if (label->frameStyle() == (QFrame::Box | QFrame::Plain))
      line += " box";
    if (!label->pixmap().isNull() && !label->hasScaledContents())
      line += QString(" picture %1").arg(label->pixmap().deviceIndependentSize().width());
  } else if (const auto *button = qobject_cast<const BlueButton *>(&control)) {
    line +=
        ' ' + QImage(const_cast<BlueButton *>(button)->grab().toImage()).pixelColor(2, 2).name();
    if (!button->icon().isNull())
      line += QString(" icon %1").arg(button->iconSize().width());
  } else if (qobject_cast<const QComboBox *>(&control)) {
    line += look(control.font(), palette.color(QPalette::Text)) + " on " +
            palette.color(QPalette::Base).name();
  } else if (control.autoFillBackground()) {
    line += " on " + palette.color(QPalette::Window).name();
  }
  return line;
}

void measure(QWidget &window, QSize inner, QPoint background, const char *table) {
  EXPECT_EQ(window.size(), inner);
  for (const QString &line : QString(table).split('\n', Qt::SkipEmptyParts))
    EXPECT_EQ(describe(Robot::control(window, line.section(' ', 0, 0)), background), line);
}

TEST_F(Places, OfTheMainWindow) {
  newGame(1);
  measure(*window, {700, 473}, {0, 0}, R"(
tbToolbar 0,0 700x65
keyNew 0,1 90x63 '&Neues Spiel' 'Neues Spiel beginnen.'
keyOptionen 90,1 90x63 '&Optionen' 'Spieleinstellungen ändern'
keyTop10 180,1 90x63 '&Top 10' 'Zeigt die Bestenliste.'
keyEnde 270,1 90x63 '&Ausgang' 'Spiel verlassen'
keyHilfe 360,1 90x63 '&Hilfe' 'Einige Infos rund ums Spiel.'
picHinten 0,68 701x405 picture 701
)");
  measure(*window, {700, 473}, {0, 68}, R"(
picpFeld 52,65 253x203
piccFeld 396,65 253x203
lblName0 52,46 253x19 'Jörg' Times New Roman 13b #800000 on #c0c0ff box
lblName1 396,46 253x19 'Computer' Times New Roman 13b #800000 on #c0c0ff box
imgMüll 273,270 32x32 'Löscht das aktuelle Boot!'
imgBoot0 64,316 73x25
imgBoot1 408,316 73x25
)");
  const int counters[2][6] = {{0, 0, 1, 2, 2, 3}, {}};
  for (int group = 0; group < 2; ++group)
    for (int i = 0; i < 6; ++i) {
      const int left = (group == 0 ? 64 : 408) + 40 * i;
      const QString table =
          QString("lblBeschriftung%1 %2,341 33x25 '%3er' Times New Roman 19b #c0ffff\n"
                  "lbl%4Boote%5 %2,360 33x25 '%6' Times New Roman 19b #000000 on #c0c0ff box")
              .arg(6 * group + i)
              .arg(left)
              .arg(6 - i)
              .arg(group == 0 ? "p" : "c")
              .arg(i)
              .arg(counters[group][i]);
      measure(*window, {700, 473}, {0, 68}, qPrintable(table));
    }
  EXPECT_EQ(window->windowTitle(), "Korvel");
}

TEST_F(Places, OfTheDialogs) {
  frmNeu neu(window.get(), 2, "Jörg", "", {});
  measure(neu, {284, 203}, {0, 0}, R"(
lblName 56,16 121x17 'Name des Spielers:' Arial 13 #ffffff
cboName 56,32 161x24 'Gib hier Deinen Namen ein.' Arial 13b #000000 on #c0c0ff
lblSize 56,72 121x17 'Spielfeld:' Arial 13 #ffffff
optSize0 56,88 49x49 'Größe 1' 'Schnelles Spiel' #c0c0ff icon 32
optSize1 112,88 49x49 'Größe 2' 'Normales Spiel' #a3a3d8 icon 32
optSize2 168,88 49x49 'Größe 3' 'Langes Spiel' #c0c0ff icon 32
cmdOK 80,168 57x25 '&OK!' 'Einstellungen übernehmen' #c0c0ff
cmdAbbruch 144,168 57x25 '&Abbruch' 'Dialog abbrechen' #c0c0ff
)");
  EXPECT_EQ(neu.windowTitle(), "Neues Spiel");

  globals.settings = {0, 0, 1};
  frmOptions options(window.get(), globals.settings, store);
  measure(options, {388, 228}, {2, 2}, R"(
imgÜberschrift 80,8 228x49
lblBeschriftung0 16,72 49x16 'Sound:' Arial 13b #ffffff
lblBeschriftung2 80,72 37x16 'Hilfe:' Arial 13b #ffffff
lblBeschriftung1 176,72 169x16 'Standardspielfeldgröße:' Arial 13b #ffffff
chkSound 16,96 49x49 'Soundeffekte während des Spieles ein-/ausschalten.' #c0c0ff icon 32
chkHelp 72,96 49x49 #c0c0ff icon 32
optSize0 152,96 65x49 'Größe 1' 'Schnelles Spiel' #a3a3d8 icon 32
optSize1 224,96 65x49 'Größe 2' 'Normales Spiel' #c0c0ff icon 32
optSize2 296,96 65x49 'Größe 3' 'Langes Spiel' #c0c0ff icon 32
cmdÜbernehmen 112,184 73x25 '&Übernehmen' 'Einstellungen übernehmen' #c0c0ff
cmdAbbruch 192,184 73x25 '&Abbrechen' 'Dialog abbrechen' #c0c0ff
)");

  const QString text = QString("lang ").repeated(90) + "\r\n" + QString(400, 'W');
  frmMeldung meldung(window.get());
  meldung.setText(text);
  measure(meldung, {354, 141}, {2, 2}, R"(
cmdOK 88,96 73x25 '&Ja' #c0c0ff
cmdAbbruch 168,96 73x25 '&Nein' #c0c0ff
)");
  EXPECT_EQ(describe(Robot::control(meldung, "lblMeldung"), {2, 2}),
            "lblMeldung 16,16 313x57 '" + text + "' Times New Roman 15b #000000 on #c0c0ff box")
      << "cut off, not grown";
  EXPECT_EQ(Robot::control(meldung, "cmdOK").parentWidget()->geometry(), QRect(2, 2, 349, 137));
}

TEST_F(Places, OfTheSplash) {
  frmStart start("1.0.5");
  measure(start, {307, 165}, {1, 3}, R"(
lblVersion 152,88 129x23 'Version 1.0.5' Times New Roman 16b #000000 on #ffffff box
)");
  const auto &lblCopyright = Robot::control<QLabel>(start, "lblCopyright");
  EXPECT_EQ(lblCopyright.geometry(), QRect(149, 144, 151, 13));
  EXPECT_LE(lblCopyright.sizeHint().width(), 151);
  const QRect screen = start.screen()->geometry();
  EXPECT_EQ(start.pos(), QPoint((screen.width() - 307) / 2, (screen.height() - 165) / 2));
}

TEST_F(Places, OfTheEndAndTheTopTen) {
  newGame(2);
  const ScoreServices scores{globals.score, *window->grid(), player, {}};
  frmSieg sieg(window.get(), scores);
  const char *banners[] = {"imgTitle 17,16 351x30 picture 351",
                           "imgTitle 116,16 153x27 picture 153"};
  for (const int Bild : {1, 0}) {
    sieg.setBild(Bild, "99");
    measure(sieg, {388, 228}, {2, 2}, banners[Bild]);
  }
  sieg.setText("Satz");
  measure(sieg, {388, 228}, {2, 2}, R"(
lblText 8,64 369x49 'Satz' Arial 13b #ffffff
lblBomben 4,112 373x25 'Mit nur 99 Wasserbomben!' Arial 21b #ac0d4d
Label1 8,160 369x17 'Möchtest Du die Highscore-Tabelle ansehen?' Arial 13b #ffffff
cmdJa 112,192 73x25 '&Ja' #c0c0ff
cmdNein 192,192 73x25 '&Nein' #c0c0ff
)");

  frmScore topTen(window.get(), scores);
  measure(topTen, {300, 381}, {0, 0}, R"(
lblBeschriftung0 16,82 41x17 'Platz' Arial 13bu #000000
lblBeschriftung1 80,82 89x17 'Name' Arial 13bu #000000
lblBeschriftung2 224,82 41x17 'Quote' Arial 13bu #000000
linTab1 13,103 270x3 on #000000
linTab0 55,80 3x257 on #000000
linTab2 191,80 3x257 on #000000
lblNr0 24,112 25x17 '1.' Arial 16b #000000
lblNr9 24,310 25x17 '10.' Arial 16b #000000
lblName0 64,112 153x19 'unbekannt' Arial 16b #000000
lblName9 64,310 153x19 'unbekannt' Arial 16b #000000
lblQuote0 200,112 83x17 '?' Arial 16b #000000
lblQuote9 200,310 83x17 '?' Arial 16b #000000
lblBeschriftung3 40,340 221x13 'Zum Beenden auf das Fenster klicken!' Arial 11b #ffffff
optSize0 5,355 90x21 'Größe 1' 'Highscoretabelle entsprechend Spielebene anzeigen.' #c0c0ff
optSize1 95,355 90x21 'Größe 2' 'Highscoretabelle entsprechend Spielebene anzeigen.' #a3a3d8
optSize2 185,355 90x21 'Größe 3' 'Highscoretabelle entsprechend Spielebene anzeigen.' #c0c0ff
cmdClear 275,355 21x21 'Löscht die komplette Top-Ten!' #c0c0ff icon 16
)");
}

} // namespace
