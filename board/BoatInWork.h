#pragma once

#include "clsGrid.h"

/// The boat that the human is setting: boats come in the order of their numbers, and each is set
/// point by point.
struct BoatInWork {
  int BootID = 1; ///< beyond `BoatCount` the fleet is complete
  int TeilNr = 0; ///< points of this boat that are set

  /// Whether a press on the cell adds a point. A press that adds none has no effect.
  bool accepts(const clsGrid &grid, int X, int Y) const {
    return BootID <= grid.BoatCount() && grid.CreatePoint(BootID, X, Y);
  }
  /// Adds an accepted point. True if the boat has further points to come.
  bool add(clsGrid &grid, int X, int Y) { return grid.SetPoint(BootID, ++TeilNr, X, Y); }
  /// Goes on to the next boat. False if there is none left.
  bool next(const clsGrid &grid) {
    TeilNr = 0;
    return ++BootID <= grid.BoatCount();
  }
  /// Removes the boat; the next point is again its first one.
  void discard(clsGrid &grid) {
    grid.DeleteBoat(BootID);
    TeilNr = 0;
  }
};
