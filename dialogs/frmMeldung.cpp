#include "frmMeldung.h"

frmMeldung::frmMeldung(QWidget *main) : Dialog(main, {354, 141}, "") {
  setAccessibleName("Frage");
  auto *picHintergrund = makePicture(this, {2, 2, 349, 137}, "meldung-hintergrund");

  lblMeldung_.setParent(picHintergrund);
  lblMeldung_.setObjectName("lblMeldung");
  dress(lblMeldung_, {16, 16, 313, 57},
        {serifFont(11.25), palette().color(QPalette::WindowText), kLightBlue, true, true});
  lblMeldung_.setAlignment(Qt::AlignHCenter | Qt::AlignTop);

  cmdOK_ = new BlueButton(picHintergrund, "cmdOK", {88, 96, 73, 25}, "&Ja");
  auto *cmdAbbruch = new BlueButton(picHintergrund, "cmdAbbruch", {168, 96, 73, 25}, "&Nein");
  connect(cmdOK_, &QPushButton::clicked, this, [this] { setErgebnis(true); });
  connect(cmdAbbruch, &QPushButton::clicked, this, [this] { setErgebnis(false); });
}

void frmMeldung::setText(const QString &text) {
  lblMeldung_.setText(text);
  cmdOK_->setAccessibleDescription(text.simplified()); // readers say it with the first button
}

void frmMeldung::setErgebnis(bool answer) {
  Ergebnis_ = answer;
  close();
}

bool ask(QWidget *main, const QString &text) {
  frmMeldung box(main);
  box.setText(text);
  box.exec();
  return box.Ergebnis();
}
