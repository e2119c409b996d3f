#pragma once

#include "frmHaupt.h"
#include "standIns.h"

#include <QDialog>

#include <functional>

/// Plays in the real windows with synthesized presses, for the demonstration and the tests.
class Robot {
public:
  /// The window must outlive the robot.
  explicit Robot(frmHaupt &window) : window_(window) {}

  /// The control of that name in a window. It must be there.
  template <typename Control = QWidget>
  static Control &control(QWidget &window, const QString &name) {
    auto *found = window.findChild<Control *>(name);
    Q_ASSERT(found);
    return *found;
  }

  /// A click on a control, as a person's: it does nothing where the control takes none.
  static void click(QWidget &control);
  void command(const QString &key) { click(control(window_, key)); }

  /// A press at a pixel of the left field's drawing area, or in the middle of a cell.
  void press(QPoint pixel, Qt::MouseButton button = Qt::LeftButton);
  void press(const Cell &cell);

  /// Does something with the next modal window, once it is up, in place of an earlier deed that
  /// found none. The modal call goes on when the deed has closed it.
  static void onDialog(std::function<void(QDialog &)> deed);
  /// Answers the next question: `cmdOK` is Ja, `cmdAbbruch` Nein.
  static void answer(const QString &button);

  /// A new game by the toolbar and the dialog.
  void newGame(int size, const QString &name);
  /// Presses a random fleet, all but its last point. Returns the press that completes it.
  /// `afterPress` is told the boat in work.
  Cell setFleetButOne(RandomDraw &draw,
                      const std::function<void(const BoatInWork &)> &afterPress = {});
  /// From the new-game command to the battle.
  void startBattle(int size, RandomDraw &draw);

private:
  frmHaupt &window_;
};
