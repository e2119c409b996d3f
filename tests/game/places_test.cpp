// Every control of every window, measured against the tables of the design, and what screen readers
// and eyes that need contrast get of it.

#include "QtHelpViewer.h"
#include "Stage.h"
#include "controls.h"
#include "frmMeldung.h"
#include "frmNeu.h"
#include "frmOptions.h"
#include "frmStart.h"
#include "pictures.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QScreen>
#include <QTest>

#include <cmath>

namespace {

struct Places : Stage {
  Places() { dressApplication(); }
};

QString read(QWidget &widget, QAccessible::Text kind) {
  return QAccessible::queryAccessibleInterface(&widget)->text(kind);
}

/// From 0.05, black, to 1.05, white.
double luminance(const QColor &c) {
  return 0.2126 * std::pow(c.redF(), 2.2) + 0.7152 * std::pow(c.greenF(), 2.2) +
         0.0722 * std::pow(c.blueF(), 2.2) + 0.05;
}

double contrast(const QColor &a, const QColor &b) {
  return std::max(luminance(a) / luminance(b), luminance(b) / luminance(a));
}

/// Between a text, at its clearest pixel, and what is there without it.
double contrastOf(QWidget &control) {
  const QVariant text = control.property("text");
  const QRect place(control.mapTo(control.window(), QPoint()), control.size());
  const QImage written = control.window()->grab(place).toImage();
  control.setProperty("text", " "); // not empty, which would move an icon
  const QImage behind = control.window()->grab(place).toImage();
  control.setProperty("text", text);
  double most = 0;
  for (int x = 0; x < behind.width(); ++x)
    for (int y = 0; y < behind.height(); ++y)
      most = std::max(most, contrast(written.pixelColor(x, y), behind.pixelColor(x, y)));
  return most;
}

/// Names, visible focus, contrast of a window and all in it.
void checkAccess(QWidget &window) {
  window.show();
  QApplication::processEvents(); // an earlier window may still be on its way to the front
  window.activateWindow();
  EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
  EXPECT_FALSE(read(window, QAccessible::Name).trimmed().isEmpty());
  window.setAttribute(Qt::WA_KeyboardFocusChange); // as after a Tab
  for (auto *control : window.findChildren<QWidget *>()) {
    SCOPED_TRACE(window.metaObject()->className() + ('.' + control->objectName()).toStdString());
    if (!control->isVisible() || !control->isEnabled())
      continue;
    const bool takesFocus = control->focusPolicy() & Qt::TabFocus;
    const bool isTold = takesFocus || control->inherits("PictureBox");
    EXPECT_TRUE(!isTold || !read(*control, QAccessible::Name).isEmpty());
    window.setFocus(); // no cursor in a text
    EXPECT_TRUE(control->property("text").toString().isEmpty() || contrastOf(*control) >= 4.5);
    const QImage without = window.grab().toImage();
    control->setFocus();
    EXPECT_TRUE(!takesFocus || window.grab().toImage() != without) << "marks no focus";
  }
}

/// A control in a line: name, place in its window, size, text, tool tip. `optSize0..2` are three
/// alike, of which the first and the last place are told and all the texts.
QString describe(QWidget &window, const QString &row) {
  QString first = row.section("..", 0, 0), last = row.section("..", 1);
  const int from = first.back().digitValue(), to = last.isEmpty() ? from : last.toInt();
  QStringList places, texts, tips;
  for (int i = from; i <= to; ++i) {
    auto &control =
        Robot::control(window, i == from ? first : first.chopped(1) + QString::number(i));
    const QPoint at = control.mapTo(&window, QPoint());
    if (i == from || i == to)
      places << QString::asprintf("%d,%d %dx%d", at.x(), at.y(), control.width(), control.height());
    texts << control.property("text").toString();
    tips << control.toolTip();
  }
  for (QStringList *list : {&places, &texts, &tips})
    list->removeDuplicates();
  return QString("%1 %2 '%3' '%4'")
      .arg(row, places.join('|'), texts.join('|'), tips.join('|'))
      .remove(" ''");
}

/// `table` begins with the size and the title of the window.
void measure(QWidget &window, const QString &table) {
  const QStringList lines = table.split('\n');
  EXPECT_EQ(lines[0], QString::asprintf("%dx%d %s", window.width(), window.height(),
                                        qPrintable(window.windowTitle()))
                          .trimmed());
  for (const QString &line : lines.mid(1))
    EXPECT_EQ(describe(window, line.section(' ', 0, 0)), line);
  checkAccess(window);
}

TEST_F(Places, AreThoseOfTheDesignAndAccessible) {
  globals.settings.Help = 0; // a balloon would cover a name
  newGame(1);
  measure(*window, R"(700x473 Korvel
keyNew 0,1 90x63 '&Neues Spiel' 'Neues Spiel beginnen.'
keyOptionen 90,1 90x63 '&Optionen' 'Spieleinstellungen ändern'
keyTop10 180,1 90x63 '&Top 10' 'Zeigt die Bestenliste.'
keyEnde 270,1 90x63 '&Ausgang' 'Spiel verlassen'
keyHilfe 360,1 90x63 '&Hilfe' 'Einige Infos rund ums Spiel.'
picHinten 0,68 701x405
picpFeld 52,133 253x203
piccFeld 396,133 253x203
lblName0..1 52,114 253x19|396,114 253x19 'Jörg|Computer'
imgMüll 273,338 32x32 'Löscht das aktuelle Boot!'
imgBoot0..1 64,384 73x25|408,384 73x25
lblBeschriftung0..5 64,409 33x25|264,409 33x25 '6er|5er|4er|3er|2er|1er'
lblBeschriftung6..11 408,409 33x25|608,409 33x25 '6er|5er|4er|3er|2er|1er'
lblpBoote0..5 64,428 33x25|264,428 33x25 '0|1|2|3'
lblcBoote0..5 408,428 33x25|608,428 33x25 '0')");
  EXPECT_EQ(control("lblpBoote0").font().pixelSize(), 19);
  for (const auto &[key, picture] : {std::pair("keyNew", "tb-neu"),
                                     {"keyOptionen", "tb-optionen"},
                                     {"keyTop10", "tb-top10"},
                                     {"keyEnde", "tb-ende"},
                                     {"keyHilfe", "tb-hilfe"}}) {
    const QIcon icon = Robot::control<QAbstractButton>(*window, key).icon();
    EXPECT_EQ(icon.pixmap(49, 40).toImage(), loadPicture(picture).toImage()) << key;
  }
  newGame(3);
  measure(*window, R"(700x473 Korvel
picpFeld 17,105 323x259
lblName0..1 17,86 323x19|361,86 323x19 'Jörg|Computer'
imgMüll 308,366 32x32 'Löscht das aktuelle Boot!')");
  measure(*std::make_unique<frmNeu>(window.get(), 2, "", "", nullptr), R"(284x203 Neues Spiel
lblName 56,16 121x17 'Name des Spielers:'
cboName 56,32 161x24 'Gib hier Deinen Namen ein.'
lblSize 56,72 121x17 'Spielfeld:'
optSize0..2 56,88 49x49|168,88 49x49 'Größe 1|Größe 2|Größe 3' 'Schnelles Spiel|Normales Spiel|Langes Spiel'
cmdOK 80,168 57x25 '&OK!' 'Einstellungen übernehmen'
cmdAbbruch 144,168 57x25 '&Abbruch' 'Dialog abbrechen')");
  measure(*std::make_unique<frmOptions>(window.get(), globals.settings, store), R"(388x228
imgÜberschrift 82,10 228x49
lblBeschriftung0 18,74 49x16 'Sound:'
lblBeschriftung2 82,74 37x16 'Hilfe:'
lblBeschriftung1 178,74 169x16 'Standardspielfeldgröße:'
chkSound 18,98 49x49 'Soundeffekte während des Spieles ein-/ausschalten.'
chkHelp 74,98 49x49
optSize0..2 154,98 65x49|298,98 65x49 'Größe 1|Größe 2|Größe 3' 'Schnelles Spiel|Normales Spiel|Langes Spiel'
cmdÜbernehmen 114,186 73x25 '&Übernehmen' 'Einstellungen übernehmen'
cmdAbbruch 194,186 73x25 '&Abbrechen' 'Dialog abbrechen')");
  measure(*std::make_unique<frmMeldung>(window.get()), R"(354x141
lblMeldung 18,18 313x57
cmdOK 90,98 73x25 '&Ja'
cmdAbbruch 170,98 73x25 '&Nein')");
  EXPECT_EQ(frmMeldung(window.get()).pos() - window->pos(), QPoint(173, 166)) << "not centred";
  frmStart start("1.0.5");
  EXPECT_EQ(start.geometry().center(), start.screen()->geometry().center());
  measure(start, R"(307x165
lblVersion 153,91 129x23 'Version 1.0.5'
lblCopyright 150,147 151x13 '© 2026 Die Korvel-Werft')");
  const ScoreServices scores{globals.score, *window->grid(), player, {}};
  frmSieg sieg(window.get(), scores);
  sieg.setBild(1, "99");
  measure(sieg, "388x228\nimgTitle 118,18 153x27");
  sieg.setBild(0, "99");
  auto &lblBomben = Robot::control(sieg, "lblBomben");
  EXPECT_EQ(lblBomben.font().pixelSize(), 21);
  EXPECT_EQ(lblBomben.palette().color(QPalette::WindowText), QColor(0xAC, 0x0D, 0x4D));
  measure(sieg, R"(388x228
imgTitle 19,18 351x30
lblText 10,66 369x49
lblBomben 6,114 373x25 'Mit nur 99 Wasserbomben!'
Label1 10,162 369x17 'Möchtest Du die Highscore-Tabelle ansehen?'
cmdJa 114,194 73x25 '&Ja'
cmdNein 194,194 73x25 '&Nein')");
  measure(*std::make_unique<frmScore>(window.get(), scores), R"(300x381
lblBeschriftung0 16,82 41x17 'Platz'
lblBeschriftung1 80,82 89x17 'Name'
lblBeschriftung2 224,82 41x17 'Quote'
linTab1 13,103 270x3
linTab0 55,80 3x257
linTab2 191,80 3x257
lblNr0..9 24,112 25x17|24,310 25x17 '1.|2.|3.|4.|5.|6.|7.|8.|9.|10.'
lblName0..9 64,112 153x19|64,310 153x19 'unbekannt'
lblQuote0..9 200,112 83x17|200,310 83x17 '?'
lblBeschriftung3 40,340 221x13 'Zum Beenden auf das Fenster klicken!'
optSize0..2 5,355 90x21|185,355 90x21 'Größe 1|Größe 2|Größe 3' 'Highscoretabelle entsprechend Spielebene anzeigen.'
cmdClear 275,355 21x21 'Löscht die komplette Top-Ten!')");
  const QPalette palette = QApplication::palette();
  EXPECT_GE(contrast(palette.highlightedText().color(), palette.highlight().color()), 4.5);
  QtHelpViewer viewer;
  for (const auto entry : {HelpViewer::Entry::contents, HelpViewer::Entry::index}) {
    ASSERT_EQ(viewer.show(KORVEL_BOOK, entry), "");
    checkAccess(*viewer.window());
  }
}

} // namespace
