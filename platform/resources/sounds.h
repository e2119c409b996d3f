#pragma once

#include <QByteArray>
#include <QString>

/// The WAV file of the sound `name` that the program carries inside: a view of the executable's own
/// bytes. A name that isn't there stops debug builds.
QByteArray loadSound(const QString &name);
