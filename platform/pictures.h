#pragma once

#include <QPixmap>
#include <QString>

/// The picture `name` that the program carries inside, in the size of the design; on screens of
/// twice the density from its double-size version. A name that isn't there stops debug builds.
QPixmap loadPicture(const QString &name, const QString &suffix = "png");
