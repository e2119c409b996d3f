#pragma once

#include "SoundDevice.h"

#include <QString>

/// The sound `name` that the program carries inside: a view of the executable's own bytes. A name
/// that isn't there stops debug builds.
Klang loadSound(const QString &name);
