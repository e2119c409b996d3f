#pragma once

/// Lets pending events run once: paints, timers, a close. Presses and keys stay queued and come
/// afterwards as ordinary ones, so that no turn nests in another. On X11 a click on the frame's
/// close box waits in the same queue, behind the presses made before it.
///
/// The main window may be gone when this returns: the caller has to look.
void letEventsRun();
