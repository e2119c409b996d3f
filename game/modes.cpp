// The modes of a game, the start of a new one, and what a press does in each mode.

#include "EventPump.h"
#include "frmHaupt.h"
#include "frmNeu.h"

void frmHaupt::setModus(Mode mode) {
  Modus_ = mode;
  switch (mode) {
  case Idle:
    enableFields(false);
    imgMüll.hide();
    UpdateBoote();
    Grid->Treffer = 0;
    break;
  case Setup:
    enterSetup();
    break;
  case Battle:
    UpdateBoote();
    BombenZahl_ = {};
    break;
  case Over:
    enableFields(false);
    Grid->Treffer = 0;
    break;
  }
}

void frmHaupt::enterSetup() {
  if (!Grid->CreateComputerField()) {
    services_.messages.critical("Fehler!",
                                "Systemfehler\r\n\r\nComputer kann Spielfeld nicht erstellen!");
    close();
    return;
  }
  boat_ = {};
  enableFields(true);
  showBin(false);
  imgMüll.show();
  UpdateBoote();
  say("Zuerst " + boatInWords(boat_.BootID) + ".");
}

// Only the left field ever takes a press.
void frmHaupt::enableFields(bool enabled) { picpFeld.setEnabled(enabled); }

// Writes the counters. The result is the winner: 0 nobody, 1 the human, 2 the computer.
int frmHaupt::UpdateBoote() {
  const BoatTexts table = Grid->BoatTable(Modus_);
  for (std::size_t i = 0; i < lblpBoote.size(); ++i) {
    lblpBoote[i].setText(QString::fromStdString(table[0][i]));
    lblcBoote[i].setText(QString::fromStdString(table[1][i]));
    lblpBoote[i].setAccessibleName(QString("Deine %1er: %2").arg(6 - i).arg(lblpBoote[i].text()));
    lblcBoote[i].setAccessibleName(
        QString("%1er des Computers: %2").arg(6 - i).arg(lblcBoote[i].text()));
  }
  return Modus_ == Battle ? winnerOf(table) : 0;
}

void frmHaupt::DoNew() {
  frmNeu dialog(this, Grid->Size(), lblName[0].text(), globals_.folders.names(),
                [this](int size, const QString &name) { startGame(size, name); });
  if (closed())
    return;
  dialog.exec();
  if (!survivesEvents())
    return;
  openHint("Setze Deine Boote ins linke Feld!\n(Einfach ins Feld klicken...)");
  if (!frmSieg_)
    frmSieg_ = std::make_unique<frmSieg>(this, scoreServices());
}

void frmHaupt::startGame(int size, const QString &name) {
  if (closed())
    return;
  Grid->setSize(size);
  Grid->setPlayerName(name.toStdString());
  setModus(Setup);
}

void frmHaupt::picpFeld_MouseDown(Qt::MouseButton button, int X, int Y) {
  closeHint();
  if (closed() || button != Qt::LeftButton)
    return;
  const auto cell = Grid->geometry().cellAt(X, Y, picpFeld.innerWidth(), picpFeld.innerHeight());
  if (!cell)
    return;
  if (Modus_ == Setup)
    setPoint(*cell);
  else if (Modus_ == Battle)
    takeTurn(*cell);
  letEventsRun(); // a close that came during a sound goes before the input that came with it
}
