// The human sets the fleet: press by press, boat by boat, the longest first.

#include "frmHaupt.h"
#include "frmMeldung.h"

void frmHaupt::setPoint(const Cell &cell) {
  if (!boat_.accepts(*Grid, cell.X, cell.Y)) {
    say(cellName(cell) + " geht nicht.");
    return;
  }
  showBin(true);
  if (boat_.add(*Grid, cell.X, cell.Y)) {
    say(cellName(cell) + ", " + describeCell(picpFeld, cell) + ".");
    return;
  }

  Grid->DrawBoat(boat_.BootID);
  player_.PlayWav(globals_.sounds.SndBoot, true);
  UpdateBoote();
  if (!survivesEvents())
    return;
  showBin(false);
  const QString stands = boatInWords(boat_.BootID) + " steht.";
  if (boat_.next(*Grid))
    say(stands + " Als Nächstes " + boatInWords(boat_.BootID) + ".");
  else
    fleetComplete(stands);
}

void frmHaupt::fleetComplete(const QString &stands) {
  player_.PlayWav(globals_.sounds.SndBoot, false);
  player_.PlayWav(globals_.sounds.SndAlle, true);
  if (!survivesEvents())
    return;
  say(stands);
  const bool accepted = ask(this, "Alle Boote wurden gesetzt.\r\n\r\n"
                                  "Bist Du mit der Aufstellung zufrieden?");
  if (closed())
    return;
  if (!accepted) {
    Grid->setSize(Grid->Size());
    setModus(Setup);
    return;
  }
  imgMüll.setEnabled(false);
  imgMüll.hide();
  player_.PlayWav(globals_.sounds.SndStart, true);
  Grid->MoveFleet();
  setModus(Battle);
  say("Die Schlacht beginnt.");
  openHint("Versuche nun, die Boote des Gegners\nim linken Feld zu treffen!\n"
           "(Einfach ins Feld klicken...)");
}

void frmHaupt::imgMuell_Click() {
  if (closed())
    return;
  player_.PlayWav(globals_.sounds.SndMuell, true);
  boat_.discard(*Grid);
  showBin(false);
  say(boatInWords(boat_.BootID) + " gelöscht.");
}

// The dustbin is red and takes clicks exactly while a boat is in work.
void frmHaupt::showBin(bool inWork) {
  imgMüll.setPicture(globals_.MuellIcon[inWork ? 1 : 0]);
  imgMüll.setEnabled(inWork);
}
