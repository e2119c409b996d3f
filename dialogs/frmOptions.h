#pragma once

#include "Settings.h"
#include "SizeOptions.h"
#include "controls.h"

/// Shows the settings and changes them. Sound and hints act at once, the board size from the next
/// start of the program on.
class frmOptions : public Dialog {
  Q_OBJECT

public:
  /// Both must outlive the dialog. Only Übernehmen writes them.
  frmOptions(QWidget *main, Settings &settings, SettingsStore &store);

private:
  void cmdÜbernehmen_Click();

  Settings &settings_;
  SettingsStore &store_;
  QLabel *picHinten_;
  BlueButton *chkSound_;
  BlueButton *chkHelp_;
  SizeOptions optSize_;
};
