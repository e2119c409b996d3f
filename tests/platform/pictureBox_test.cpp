#include "PictureBox.h"
#include "pictures.h"

#include <QPainter>
#include <QTest>
#include <gtest/gtest.h>

namespace {

constexpr QRgb kWhite = 0xffffffff;
constexpr QRgb kBlack = 0xff000000;
constexpr QRgb kBlue = 0xff0000ff;
constexpr std::array kNames{"wasser", "boot", "daneben", "treffer", "versenkt"};

/// The area where an image is not of the background colour; every pixel in it has to differ.
QRect drawnArea(const QImage &image, QRgb background) {
  QRect area;
  int pixels = 0;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      if (image.pixel(x, y) != background) {
        area |= QRect(x, y, 1, 1);
        ++pixels;
      }
  EXPECT_EQ(pixels, area.width() * area.height());
  return area;
}

struct PictureBoxTest : testing::TestWithParam<std::array<int, 3>> {
  const Sprites sprites = Sprites::load();
  QWidget window;
  PictureBox box{sprites, &window};
  const int w = GetParam()[0] - 2, h = GetParam()[1] - 2; ///< the drawing area
  const int cell = GetParam()[2];
  const int ratio = qRound(box.devicePixelRatio());

  QRect physical(const QRect &r) const { return {r.topLeft() * ratio, r.size() * ratio}; }
  void SetUp() override {
    window.resize(400, 320);
    box.move(20, 10);
    box.setWidth(w + 2);
    box.setHeight(h + 2);
    box.clear();
    window.show();
  }
};

TEST_P(PictureBoxTest, LinesAndBoxesHoldTheirEndsAndAreClipped) {
  struct Case {
    void (PictureBox::*draw)(int, int, int, int, Colour);
    std::array<int, 4> ends;
    QRect drawn;
  };
  const auto line = &PictureBox::line, filledBox = &PictureBox::filledBox;
  const Case cases[] = {
      {line, {3, 5, 9, 5}, {3, 5, 7, 1}},
      {line, {4, 2, 4, 8}, {4, 2, 1, 7}},
      {line, {6, 6, 6, 6}, {6, 6, 1, 1}},
      {line, {w - 1, 0, w - 1, h + 2}, {w - 1, 0, 1, h}},
      {line, {-3, h - 1, w + 2, h - 1}, {0, h - 1, w, 1}},
      {line, {w, 0, w, h}, {}},
      {filledBox, {3, 4, 5, 6}, {3, 4, 3, 3}},
      {filledBox, {7, 7, 7, 7}, {7, 7, 1, 1}},
      {filledBox, {-5, -5, 2, 1}, {0, 0, 3, 2}},
      {filledBox, {w - 2, h - 1, w + 9, h + 9}, {w - 2, h - 1, 2, 1}},
      {filledBox, {-9, 5, -1, 9}, {}},
      {filledBox, {5, 5, 4, 9}, {}}, // empty
      {filledBox, {9, 9, 3, 3}, {}}, // inverted
      {filledBox, {0, 0, w - 1, h - 1}, {0, 0, w, h}},
  };
  for (const auto &[draw, ends, drawn] : cases)
    for (const auto &[colour, pixel] : {std::pair(Colour::black, kBlack), {Colour::blue, kBlue}}) {
      box.clear();
      (box.*draw)(ends[0], ends[1], ends[2], ends[3], colour);
      EXPECT_EQ(drawnArea(box.content(), kWhite), physical(drawn));
      EXPECT_TRUE(drawn.isNull() || box.content().pixel(physical(drawn).center()) == pixel);
    }
}

TEST_P(PictureBoxTest, SpritesAreStretchedOverExactlyTheirRectangle) {
  for (const QPoint &corner :
       {QPoint(1, 1), QPoint(cell + 2, 1), QPoint(w - 1 - cell, h - 1 - cell), QPoint(-5, -7),
        QPoint(w - 4, h - 3)})
    for (std::size_t i = 0; i < kNames.size(); ++i) {
      SCOPED_TRACE(kNames[i]);
      const QRect place(corner, QSize(cell, cell));
      const QRect visible = place & QRect(0, 0, w, h);
      box.filledBox(0, 0, w - 1, h - 1, Colour::blue);
      box.sprite(static_cast<Picture>(i), corner.x(), corner.y(), cell, cell);
      EXPECT_EQ(drawnArea(box.content(), kBlue), physical(visible));
      const QImage whole =
          loadImage(QString("%1@2x").arg(kNames[i]))
              .scaled(physical(place).size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
              .convertToFormat(QImage::Format_RGB32);
      EXPECT_EQ(box.content().copy(physical(visible)),
                whole.copy(physical(visible.translated(-corner))));
    }
}

TEST_P(PictureBoxTest, ShowsItsContentInsideABlackBorderAlsoAfterHiding) {
  box.filledBox(0, 0, w - 1, h - 1, Colour::blue);
  box.sprite(Picture::picBoot, w - cell, h - cell, cell, cell);
  QImage expected(QSize(w + 2, h + 2) * ratio, QImage::Format_RGB32);
  expected.setDevicePixelRatio(ratio);
  expected.fill(Qt::black);
  QPainter(&expected).drawImage(1, 1, box.content());
  for (int i = 0; i < 2; ++i) {
    EXPECT_EQ(box.grab().toImage().convertToFormat(QImage::Format_RGB32), expected);
    window.hide();
    window.show();
  }
}

TEST_P(PictureBoxTest, PressesCarryPixelsOfTheDrawingArea) {
  std::vector<std::array<int, 3>> presses;
  QObject::connect(&box, &PictureBox::pressed, [&](Qt::MouseButton button, int x, int y) {
    presses.push_back({static_cast<int>(button), x, y});
  });
  QWindow *handle = window.windowHandle();
  for (const QPoint &p : {QPoint(0, 0), QPoint(1, 1), QPoint(w, h), QPoint(w + 1, h + 1),
                          QPoint(-1, -1), QPoint(w + 2, h)}) // the last two beside it
    QTest::mouseClick(handle, Qt::LeftButton, {}, box.pos() + p);
  QTest::mouseClick(handle, Qt::RightButton, {}, box.pos() + QPoint(31, 41));
  QTest::mouseDClick(handle, Qt::LeftButton, {}, box.pos() + QPoint(51, 61)); // two presses
  const std::vector<std::array<int, 3>> expected{
      {1, -1, -1}, {1, 0, 0}, {1, w - 1, h - 1}, {1, w, h}, {2, 30, 40}, {1, 50, 60}, {1, 50, 60}};
  EXPECT_EQ(presses, expected);
}

INSTANTIATE_TEST_SUITE_P(Sizes, PictureBoxTest,
                         testing::Values(std::array{253, 203, 24}, std::array{288, 231, 18},
                                         std::array{323, 259, 15}),
                         [](const auto &tested) { return std::to_string(tested.param[0]); });

TEST(Pictures, AreSharpOnDenseScreens) {
  const QPixmap picture = loadPicture("tb-neu");
  EXPECT_EQ(picture.devicePixelRatio(), qGuiApp->devicePixelRatio());
  EXPECT_EQ(picture.deviceIndependentSize(), QSizeF(49, 40));
}

} // namespace
