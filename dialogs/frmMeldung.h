#pragma once

#include "controls.h"

/// The game's own question box: a text, Ja and Nein.
class frmMeldung : public Dialog {
  Q_OBJECT

public:
  explicit frmMeldung(QWidget *main);

  void setText(const QString &text);

  /// The answer, readable after the box has closed. Closing it through its frame or with Escape
  /// counts as Nein.
  bool Ergebnis() const { return Ergebnis_; }
  /// Stores the answer and closes the box.
  void setErgebnis(bool answer);

private:
  QLabel lblMeldung_;
  BlueButton *cmdOK_;
  bool Ergebnis_ = false;
};

/// Asks a question over the main window: true for Ja.
bool ask(QWidget *main, const QString &text);
