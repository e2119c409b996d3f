// Decodes pictures for the game to carry inside.
//
// The first picture that Qt decodes makes it look at all its plugins. That and the decoding of the
// main window's pictures took a quarter of what the game's start takes beyond a bare window's.

#include "pictures.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cstdio>

namespace {

bool decode(const QString &path, const QDir &folder) {
  QImage image(path);
  if (image.isNull() || !folder.mkpath("."))
    return false;
  // The formats that Qt draws fastest.
  image.convertTo(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                          : QImage::Format_RGB32);
  const DecodedHead head{image.width(), image.height(), image.format(),
                         static_cast<qint32>(image.devicePixelRatio())};
  QFile file(folder.filePath(QFileInfo(path).baseName()));
  return file.open(QIODevice::WriteOnly) &&
         file.write(reinterpret_cast<const char *>(&head), sizeof head) == sizeof head &&
         file.write(reinterpret_cast<const char *>(image.constBits()), image.sizeInBytes()) ==
             image.sizeInBytes() &&
         file.flush();
}

} // namespace

int main(int argc, char **argv) {
  const QCoreApplication app(argc, argv);
  const QStringList arguments = QCoreApplication::arguments();
  if (argc < 3) {
    std::puts(
        "decode_pictures FOLDER PICTURE...: writes the pixels of pictures into a folder, as the\n"
        "game's build asks for");
    return argc == 2 && arguments[1] == "--help" ? 0 : 2;
  }
  const QDir folder(arguments[1]);
  for (const QString &path : arguments.sliced(2))
    if (!decode(path, folder)) {
      std::fprintf(stderr, "%s can't be decoded into %s\n", qPrintable(path),
                   qPrintable(arguments[1]));
      return 1;
    }
  return 0;
}
