#pragma once

#include "Globals.h"
#include "frmHaupt.h"

#include <memory>

/// What the application as a whole needs before its first window: name, look, fonts that keep the
/// layout. Call it once, after the `QApplication` is made.
void dressApplication();

/// Starts the game: fills the globals and shows the main window. From here on window events drive
/// it, until that window is closed. `folders` is where the data files lie.
std::unique_ptr<frmHaupt> Main(Globals &globals, const Services &services, const Folders &folders);
