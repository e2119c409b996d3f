#include "frmHaupt.h"

#include "EventPump.h"
#include "announce.h"
#include "frmMeldung.h"
#include "frmOptions.h"
#include "pictures.h"

#include <QApplication>
#include <QCloseEvent>
#include <QPainter>
#include <QScreen>
#include <QWindow>

namespace {

// All in pixels.
constexpr QSize kClient(700, 473);
constexpr int kTitleBar = 25; // as the design assumes it
constexpr int kToolbarHeight = 65;
constexpr int kGap = 3; // 50 twips between toolbar and background
constexpr QSize kBackground(701, 405);
constexpr QPoint pMitte(177, 165); // centres of the fields on the background
constexpr QPoint cMitte(521, 165);
constexpr int kNameHeight = 19;
constexpr QSize kBin(32, 32);

constexpr std::array kClassNames{"6er", "5er", "4er", "3er", "2er", "1er"};
constexpr std::array kGroupLeft{64, 408}; // counters of the human and of the computer
constexpr int kClassStep = 40;
constexpr QSize kCounter(33, 25);
constexpr int kBoatTop = 316;
constexpr int kClassTop = 341;
constexpr int kCounterTop = 360;

struct Command {
  const char *key;
  const char *caption;
  const char *picture;
  const char *toolTip;
};

constexpr std::array kCommands{
    Command{"keyNew", "&Neues Spiel", "tb-neu", "Neues Spiel beginnen."},
    Command{"keyOptionen", "&Optionen", "tb-optionen", "Spieleinstellungen ändern"},
    Command{"keyTop10", "&Top 10", "tb-top10", "Zeigt die Bestenliste."},
    Command{"keyEnde", "&Ausgang", "tb-ende", "Spiel verlassen"},
    Command{"keyHilfe", "&Hilfe", "tb-hilfe", "Einige Infos rund ums Spiel."},
};

/// The strip behind the toolbar, with its emblem at the right.
class Coolbar : public QWidget {
public:
  using QWidget::QWidget;

protected:
  void paintEvent(QPaintEvent *) override {
    QPainter painter(this);
    painter.drawPixmap(rect(), strip_);
    painter.drawPixmap(width() - emblem_.deviceIndependentSize().toSize().width() - 14, 3, emblem_);
  }

private:
  QPixmap strip_ = loadPicture("leiste");
  QPixmap emblem_ = loadPicture("leiste-bild");
};

void placeField(PictureBox &field, QPoint centre) {
  field.move(centre.x() - field.innerWidth() / 2, centre.y() - field.innerHeight() / 2);
}

void placeName(QLabel &name, const PictureBox &field) {
  name.setGeometry(field.x(), field.y() - kNameHeight, field.width(), kNameHeight);
}

} // namespace

frmHaupt::frmHaupt(Globals &globals, const Services &services)
    : QWidget(nullptr, Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                           Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint),
      globals_(globals), services_(services), player_(services.sound, globals.settings.Sound),
      picpFeld(globals.sprites, &picHinten), piccFeld(globals.sprites, &picHinten),
      Grid(std::make_unique<clsGrid>(services.draw)) {
  setRole(*this, QAccessible::Window);
  setWindowTitle("Korvel");
  setFont(serifFont(14.25));
  setFixedSize(kClient);

  buildToolbar();
  buildFields();
  buildCounters();

  Grid->setPicComputer(piccFeld);
  Grid->setPicPlayer(picpFeld);
  Grid->setNameLabel(lblName[0]);
  Grid->ChangePicSize = [this] { Grid_ChangePicSize(); };
  Grid->setSize(globals_.settings.StdSize);

  const QRect area = screen()->geometry();
  move(area.x() + (area.width() - width()) / 2,
       area.y() + (area.height() - height() - kTitleBar) / 2);
  buildHints();
  setFocus(); // so that the first Tab leads to the first button
}

void frmHaupt::buildToolbar() {
  auto *coolbar = new Coolbar(this);
  coolbar->setGeometry(0, 0, kClient.width(), kToolbarHeight);
  coolbar->lower();
  tbToolbar.setObjectName("tbToolbar");
  setRole(tbToolbar, QAccessible::ToolBar);
  tbToolbar.setAccessibleName("Befehle");
  tbToolbar.setGeometry(0, 0, kClient.width(), kToolbarHeight);
  for (const Command &command : kCommands)
    tbToolbar.addButton(command.key, command.caption, command.picture, command.toolTip);
  connect(&tbToolbar, &Toolbar::clicked, this, &frmHaupt::runCommand);
}

void frmHaupt::buildFields() {
  picHinten.setObjectName("picHinten");
  picHinten.setGeometry(QRect({0, kToolbarHeight + kGap}, kBackground));
  picHinten.setPixmap(globals_.background);

  picpFeld.setObjectName("picpFeld");
  picpFeld.setAccessibleName("Linkes Feld");
  picpFeld.setCursor(loadPointer("fadenkreuz"));
  connect(&picpFeld, &PictureBox::pressed, this, &frmHaupt::picpFeld_MouseDown);
  for (PictureBox *field : {&picpFeld, &piccFeld})
    field->cells = cellsOf(*field);
  piccFeld.setObjectName("piccFeld");
  piccFeld.setAccessibleName("Rechtes Feld");
  piccFeld.setEnabled(false);

  for (std::size_t i = 0; i < lblName.size(); ++i) {
    lblName[i].setParent(&picHinten);
    lblName[i].setObjectName(QString("lblName%1").arg(i));
    dress(lblName[i], {}, {serifFont(9.75), kDarkRed, kLightBlue, true});
  }
  lblName[1].setText("Computer");

  imgMüll.setObjectName("imgMüll");
  setRole(imgMüll, QAccessible::Button);
  imgMüll.setAccessibleName("Mülleimer");
  imgMüll.setToolTip("Löscht das aktuelle Boot!");
  imgMüll.resize(kBin);
  imgMüll.setPicture(globals_.MuellIcon[0]);
  connect(&imgMüll, &ImageButton::clicked, this, &frmHaupt::imgMuell_Click);
}

void frmHaupt::buildCounters() {
  const QColor windowText = palette().color(QPalette::WindowText);
  for (std::size_t group = 0; group < 2; ++group) {
    const int left = kGroupLeft[group];
    auto *imgBoot = new QLabel(&picHinten);
    imgBoot->setObjectName(QString("imgBoot%1").arg(group));
    imgBoot->setGeometry(left, kBoatTop, 73, 25);
    imgBoot->setScaledContents(true);
    imgBoot->setPixmap(loadPicture("boot-klein"));

    auto &counters = group == 0 ? lblpBoote : lblcBoote;
    for (std::size_t i = 0; i < counters.size(); ++i) {
      const int x = left + kClassStep * static_cast<int>(i);
      auto *lblBeschriftung = new QLabel(kClassNames[i], &picHinten);
      lblBeschriftung->setObjectName(
          QString("lblBeschriftung%1").arg(group * kClassNames.size() + i));
      dress(*lblBeschriftung, QRect({x, kClassTop}, kCounter), {serifFont(14.25), kLightCyan});
      lblBeschriftung->setAlignment(Qt::AlignHCenter | Qt::AlignTop);

      counters[i].setParent(&picHinten);
      counters[i].setObjectName(QString(group == 0 ? "lblpBoote%1" : "lblcBoote%1").arg(i));
      dress(counters[i], QRect({x, kCounterTop}, kCounter),
            {serifFont(14.25), windowText, kLightBlue, true});
    }
  }
}

void frmHaupt::runCommand(const QString &key) {
  if (closed())
    return;
  closeHint();
  if (key == "keyNew")
    DoNew();
  else if (key == "keyOptionen")
    DoOptionen();
  else if (key == "keyTop10")
    DoTop10();
  else if (key == "keyEnde")
    DoEnde();
  else if (key == "keyHilfe")
    DoHilfe(HelpViewer::Entry::contents);
}

bool frmHaupt::survivesEvents() {
  letEventsRun();
  return !closed();
}

ScoreServices frmHaupt::scoreServices() {
  return {globals_.score, *Grid, player_, [this](const QString &text) { endWithMessage(text); }};
}

void frmHaupt::endWithMessage(const QString &text) {
  services_.messages.warning("Korvel", text);
  close();
}

void frmHaupt::DoOptionen() { frmOptions(this, globals_.settings, services_.store).exec(); }

void frmHaupt::DoTop10() { frmScore(this, scoreServices()).showModally(); }

void frmHaupt::DoEnde() {
  if (ask(this, "\r\nWillst Du das Spiel wirklich beenden?"))
    close();
}

// The strip between toolbar and background is all that is seen of the window itself.
void frmHaupt::paintEvent(QPaintEvent *) {
  QPainter painter(this);
  painter.fillRect(0, kToolbarHeight, width(), 1, QColor(120, 140, 165));
  painter.fillRect(0, kToolbarHeight + 1, width(), kGap - 1, QColor(20, 35, 60));
}

// A click on the window while a dialog blocks it must not take the keys from the dialog.
bool frmHaupt::event(QEvent *event) {
  if (event->type() == QEvent::WindowBlocked || event->type() == QEvent::WindowUnblocked)
    windowHandle()->setFlag(Qt::WindowDoesNotAcceptFocus, event->type() == QEvent::WindowBlocked);
  return QWidget::event(event);
}

void frmHaupt::closeEvent(QCloseEvent *event) {
  Form_Unload();
  event->accept();
}

void frmHaupt::Form_Unload() {
  if (closed())
    return;
  Grid.reset();
  frmSieg_.reset();
  releaseHints();
  services_.help.close();
  while (QWidget *dialog = QApplication::activeModalWidget()) // a question without its game
    if (!dialog->close())
      break;
  player_.stop();
}

void frmHaupt::Grid_ChangePicSize() {
  placeField(picpFeld, pMitte);
  placeName(lblName[0], picpFeld);
  imgMüll.move(picpFeld.x() + picpFeld.width() - imgMüll.width(),
               picpFeld.y() + picpFeld.height() + 2);
  placeField(piccFeld, cMitte);
  placeName(lblName[1], piccFeld);
  lblName[0].setCaption(Grid->PlayerName());
}
