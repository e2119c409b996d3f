// The end of a game.

#include "EventPump.h"
#include "frmHaupt.h"

void frmHaupt::humanWins() {
  player_.PlayWav(globals_.sounds.SndSieg, true);
  letEventsRun();
  if (!closed())
    setModus(Over);
}

void frmHaupt::computerWins() {
  Grid->ShowComputerBoats();
  player_.PlayWav(globals_.sounds.SndVerloren, true);
  letEventsRun();
  if (!closed())
    setModus(Over);
}
