// A turn: the human's shot, its sound to the end, the computer's reply.
//
// A repeated cell costs nothing and gets no reply, nor does the shot that wins. A hit gives neither
// side a further shot. The sound of the human's shot is the pause before the reply, whose own
// sound plays while the human is already free to press.

#include "frmHaupt.h"

void frmHaupt::takeTurn(const Cell &cell) {
  const ShotCode code = Grid->Shoot(cell.X, cell.Y);
  if (!survivesEvents())
    return;

  const int length =
      code >= ShotCode::hit ? Grid->CBoote(Grid->CFeld()(cell.X, cell.Y, 1)).length() : 0;
  const QString shot = "Du: " + inWords(cell, code, length);
  int winner = 0;
  switch (code) {
  case ShotCode::repeated:
    player_.PlayWav(globals_.sounds.SndDoppelt, false);
    say(shot);
    return;
  case ShotCode::water:
    player_.PlayWav(globals_.sounds.SndWasser, false);
    ++BombenZahl_[0];
    break;
  case ShotCode::hit:
    player_.PlayWav(globals_.sounds.SndTreffer, false);
    ++BombenZahl_[0];
    break;
  case ShotCode::sunk:
    ++BombenZahl_[0];
    winner = UpdateBoote();
    if (!survivesEvents())
      return;
    player_.PlayWav(globals_.sounds.SndVersenkt, false);
    break;
  }
  if (winner == 1) {
    say(shot + " Du hast gewonnen.");
    humanWins();
  } else {
    computerReplies(shot);
  }
}

void frmHaupt::computerReplies(const QString &shot) {
  const ShotCode code = Grid->ComputerShoot();
  const Cell cell = Grid->LastShot();
  const int length =
      code >= ShotCode::hit ? Grid->PBoote(Grid->PFeld()(cell.X, cell.Y, 1)).length() : 0;
  const QString turn = shot + " Computer: " + inWords(cell, code, length);
  ++BombenZahl_[1];
  if (code != ShotCode::sunk) {
    player_.PlayWav(code == ShotCode::hit ? globals_.sounds.SndTreffer : globals_.sounds.SndWasser,
                    true);
    say(turn);
    return;
  }
  const int winner = UpdateBoote();
  if (!survivesEvents())
    return;
  player_.PlayWav(globals_.sounds.SndVersenkt, true);
  if (winner != 2) {
    say(turn);
    return;
  }
  say(turn + " Der Computer hat gewonnen.");
  computerWins();
}
