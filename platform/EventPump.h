#pragma once

/// Lets pending events run once: paints, timers, the closing of a window. Presses and keys stay
/// queued and come afterwards as ordinary ones, so that no turn nests in another.
///
/// The main window may be gone when this returns: the caller has to look.
void letEventsRun();
