#pragma once

#include <QCursor>
#include <QImage>
#include <QPixmap>
#include <QString>

/// A picture that the program carries inside, by its name without ending. A name that isn't there
/// stops debug builds.
QImage loadImage(const QString &name);

/// The picture in the size of the design; on screens of twice the density its double-size version.
QPixmap loadPicture(const QString &name);

/// A pointer that looks like the picture and points with its centre.
QCursor loadPointer(const QString &name);

/// The head of a picture that is stored decoded, before its pixels (see decode_pictures.cpp).
/// The pixels have 32 bits each.
struct DecodedHead {
  qint32 width = 0, height = 0;
  qint32 format = 0; ///< a `QImage::Format`
  qint32 ratio = 1;  ///< its pixels to one of the design
};
