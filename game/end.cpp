// The end of a game: file the result, celebrate it, disable the fields.

#include "frmHaupt.h"

#include <utility>

void frmHaupt::humanWins() {
  const std::string name = Grid->PlayerName();
  if (const auto place = fileResult(name, 0))
    celebrate(0, *place,
              QString::fromStdString(name) + ", Du hast den Sieg errungen.\r\n" +
                  (*place > 0 ? QString("Somit hast Du es auf den %1. Platz geschafft.").arg(*place)
                              : "Zu den Besten gehörst Du leider trotzdem nicht!"),
              globals_.sounds.SndSieg);
}

void frmHaupt::computerWins() {
  Grid->ShowComputerBoats();
  if (const auto place = fileResult("Computer", 1))
    celebrate(1, *place,
              "Der Computer hat wiedermal gegen Dich gewonnen.\r\n" +
                  (*place > 0 ? QString("Somit hat er es auf den %1. Platz geschafft.").arg(*place)
                              : "Er gehört trotzdem nicht zu den Besten!"),
              globals_.sounds.SndVerloren);
}

// Files the count of a side, 0 or 1. The place, 0 for none; nothing if the program ends.
std::optional<int> frmHaupt::fileResult(const std::string &name, int side) {
  Bomben_ = QString::number(BombenZahl(side));
  const auto place = globals_.score.EnterScore(Grid->Size(), name, BombenZahl(side));
  if (!place)
    endWithMessage(Score::kSaveFailed);
  return place;
}

void frmHaupt::celebrate(int Bild, int Platz, const QString &sentence, const Klang &klang) {
  // Unloaded by its buttons; closing the main window must not destroy it while it is open.
  const std::unique_ptr<frmSieg> dialog = std::exchange(frmSieg_, nullptr);
  dialog->setBild(Bild, Bomben_);
  if (closed())
    return;
  dialog->setPlatz(Platz);
  player_.PlayWav(klang, true);
  if (!survivesEvents())
    return;
  dialog->setText(sentence);
  dialog->exec();
  if (!closed())
    setModus(Over);
}
