#pragma once

/// Lets pending events run once: paints, timers, a close. Mouse and keys are kept back and come in
/// their order, as ordinary input, after the handler under way has ended; so no turn nests in
/// another, and no close waits for the turns of the presses made before it.
///
/// The main window may be gone when this returns: the caller has to check.
void letEventsRun();
