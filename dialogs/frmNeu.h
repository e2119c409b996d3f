#pragma once

#include "controls.h"

#include <QComboBox>

#include <array>
#include <functional>

/// Asks for the player's name and the board size before a game.
class frmNeu : public Dialog {
  Q_OBJECT

public:
  /// Called by OK, with the dialog hidden, before it closes: the size, 1 to 3, and the name.
  using Start = std::function<void(int size, const QString &name)>;

  /// Shows the name and the size of the last game.
  frmNeu(QWidget *main, int Size, const QString &name, Start start);

  /// The size that is pressed, 1 to 3; 0 for none.
  int GetSize() const;

protected:
  bool event(QEvent *event) override;
  bool eventFilter(QObject *watched, QEvent *event) override;

private:
  void cmdOK_Click();

  Start start_;
  QComboBox cboName_;
  std::array<BlueButton *, 3> optSize_;
};
