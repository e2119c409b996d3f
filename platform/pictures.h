#pragma once

#include <QPixmap>
#include <QString>

/// The path of a picture that the program carries inside, in the size of the design; on screens of
/// twice the density of its double-size version.
QString picturePath(const QString &name, const QString &suffix = "png");

/// The picture of that path. A name that isn't there stops debug builds.
QPixmap loadPicture(const QString &name);
