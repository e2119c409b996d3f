#pragma once

#include "controls.h"
#include "frmScore.h"

/// The end of a game: banner, sentence, bomb count, and the question whether the top ten is to be
/// shown. It has no frame: its buttons close it, and Escape as Nein.
class frmSieg : public Dialog {
  Q_OBJECT

public:
  frmSieg(QWidget *main, const ScoreServices &services);

  void setText(const QString &text);

  /// 0 the human has won, 1 the computer, with `Bomben`, the digits of the winner's count. Lets
  /// events run.
  void setBild(int Bild, const QString &Bomben);

  /// The winner's place in the top ten, 0 for none.
  void setPlatz(int Platz) { Platz_ = Platz; }

private:
  void showScores();

  const ScoreServices services_;
  int Platz_ = 0;
  QLabel picHinten_{this};
  QLabel imgTitle_{&picHinten_};
  QLabel lblText_{&picHinten_};
  QLabel lblBomben_{&picHinten_};
  BlueButton *cmdJa_;
};
