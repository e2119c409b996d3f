// Pictures and fields on the screen, once more on a dense one, whose ratio is 2.

#include "PictureBox.h"
#include "pictures.h"
#include "scale.h"

#include <QDialog>
#include <QDir>
#include <QPainter>
#include <QTest>
#include <gtest/gtest.h>

namespace {

struct PictureBoxTest : testing::Test {
  const Sprites sprites = Sprites::load();
  QWidget window;
  PictureBox box{sprites, &window};

  PictureBoxTest() {
    box.setGeometry(20, 10, 253, 203);
    box.clear();
    window.show();
  }
};

TEST_F(PictureBoxTest, DrawsExactlyThePixelsAskedForInsideABlackBorder) {
  QImage expected(box.size() * box.devicePixelRatio(), QImage::Format_RGB32);
  expected.setDevicePixelRatio(box.devicePixelRatio());
  expected.fill(Qt::black);
  QPainter painter(&expected);
  painter.translate(1, 1);
  painter.setClipRect(0, 0, 251, 201);
  painter.fillRect(0, 0, 251, 201, Qt::white);
  box.line(250, 2, 250, 203, Colour::black); // the last column, to the end
  painter.fillRect(250, 2, 1, 199, Qt::black);
  box.filledBox(3, 7, 5, 9, Colour::blue);
  painter.fillRect(3, 7, 3, 3, Qt::blue);
  const char *const names[] = {"wasser", "boot", "daneben", "treffer", "versenkt"};
  for (int i = 0; i < 5; ++i) {
    const QImage cell = loadImage(QString(names[i]) + "@2x");
    painter.drawImage(QRect(60 * i, 40, 24, 24), // of the last one a part
                      cell.scaled(QSize(24, 24) * box.devicePixelRatio(), Qt::IgnoreAspectRatio,
                                  Qt::SmoothTransformation));
    box.sprite(static_cast<Picture>(i), 60 * i, 40, 24, 24);
  }
  EXPECT_EQ(box.grab().toImage().convertToFormat(QImage::Format_RGB32), expected);
}

TEST_F(PictureBoxTest, PressesCarryPixelsOfTheDrawingArea) {
  QString presses;
  QObject::connect(&box, &PictureBox::pressed, [&](Qt::MouseButton button, int x, int y) {
    presses += QString("%1: %2,%3 ").arg(button).arg(x).arg(y);
    if (x == 70)
      QDialog(&window).open(); // and closed again, as a question is by the press
  });
  QWindow *handle = window.windowHandle();
  for (const int x : {51, 71}) // two presses each
    QTest::mouseDClick(handle, Qt::LeftButton, {}, box.pos() + QPoint(x, 61));
  EXPECT_EQ(presses.toStdString(), "1: 50,60 1: 50,60 1: 70,60 ");
}

TEST(Pictures, AreThoseOfTheirFilesAndSharpOnDenseScreens) {
  for (const QFileInfo &drawing : QDir(KORVEL_PICTURES).entryInfoList({"[!k]*.svg"})) {
    const QString name = drawing.baseName();
    for (const QString &file : {name, name + "@2x"}) {
      const QImage picture = loadImage(file);
      EXPECT_EQ(picture, QImage(KORVEL_PICTURES "/" + file).convertToFormat(picture.format()));
    }
    const QImage dense = loadImage(name + "@2x");
    EXPECT_EQ(dense.deviceIndependentSize(), loadImage(name).size()) << name.toStdString();
  }
  EXPECT_EQ(loadPicture("tb-neu").devicePixelRatio(), qGuiApp->devicePixelRatio());
  EXPECT_EQ(loadPointer("fadenkreuz").hotSpot(), QPoint(16, 16));
}

TEST(Scales, AreWholeNumbers) {
  qputenv("QT_SCREEN_SCALE_FACTORS", "1.5;DP-1=1.4;DP-2=0.3");
  qputenv("QT_SCALE_FACTOR_ROUNDING_POLICY", "PassThrough"); // which would go before ours
  keepScalesWhole();
  EXPECT_FALSE(qEnvironmentVariableIsSet("QT_SCALE_FACTOR_ROUNDING_POLICY"));
  EXPECT_EQ(qgetenv("QT_SCREEN_SCALE_FACTORS"), "2;DP-1=1;DP-2=1");
  EXPECT_EQ(QGuiApplication::highDpiScaleFactorRoundingPolicy(),
            Qt::HighDpiScaleFactorRoundingPolicy::Round);
}

} // namespace
