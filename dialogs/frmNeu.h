#pragma once

#include "SizeOptions.h"
#include "clsIntelliCombo.h"
#include "controls.h"

#include <QComboBox>

#include <functional>

/// Asks for the player's name and the board size before a game.
class frmNeu : public Dialog {
  Q_OBJECT

public:
  /// Called by OK, with the dialog hidden, before it closes: the size, 1 to 3, and the name.
  using Start = std::function<void(int size, const QString &name)>;

  /// Shows the name and the size of the last game. Lets events run while it reads the names that
  /// it offers from `ComboPath`; without that file it offers none.
  frmNeu(QWidget *main, int Size, const QString &name, const QString &ComboPath, Start start);

  /// The size that is pressed, 1 to 3; 0 for none.
  int GetSize() const { return optSize_.pressed(); }

protected:
  bool event(QEvent *event) override;
  bool eventFilter(QObject *watched, QEvent *event) override;
  void keyPressEvent(QKeyEvent *event) override;

private:
  void cmdOK_Click();

  Start start_;
  QLabel *background_;
  QComboBox cboName_;
  clsIntelliCombo Intelli_; ///< completes `cboName`
  SizeOptions optSize_;
};
