#include <gtest/gtest.h>

#include <QPainter>

#include "platform/qt/scene/AlphaShape.h"

namespace {

QImage Clear(int width, int height) {
  QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  return image;
}

void Fill(QImage& image, const QRect& place, int alpha) {
  QPainter painter(&image);
  painter.setCompositionMode(QPainter::CompositionMode_Source);
  painter.fillRect(place, QColor(255, 255, 255, alpha));
}

std::vector<QRect> Rects(const QRegion& region) { return {region.begin(), region.end()}; }

TEST(AlphaShapeTest, APixelIsInFromTheLeastAlphaOn) {
  QImage image = Clear(4, 1);
  Fill(image, {1, 0, 1, 1}, 127);
  Fill(image, {2, 0, 1, 1}, 128);
  EXPECT_EQ(AlphaShape(image, 128), QRegion(2, 0, 1, 1));
  EXPECT_EQ(AlphaShape(image, 127), QRegion(1, 0, 2, 1));
}

TEST(AlphaShapeTest, EqualRowsAreOneRectangle) {
  QImage image = Clear(20, 10);
  Fill(image, {2, 1, 5, 6}, 255);
  Fill(image, {10, 1, 3, 6}, 255);
  EXPECT_EQ(Rects(AlphaShape(image, 128)), (std::vector<QRect>{{2, 1, 5, 6}, {10, 1, 3, 6}}));
}

TEST(AlphaShapeTest, ARowThatIsEmptyParts) {
  QImage image = Clear(5, 5);
  Fill(image, {0, 0, 5, 2}, 255);
  Fill(image, {0, 3, 5, 2}, 255);
  EXPECT_EQ(Rects(AlphaShape(image, 128)), (std::vector<QRect>{{0, 0, 5, 2}, {0, 3, 5, 2}}));
}

TEST(AlphaShapeTest, ARoundPictureIsItsOwnShape) {
  QImage image = Clear(60, 60);
  QPainter painter(&image);
  painter.setBrush(Qt::white);
  painter.setPen(Qt::NoPen);
  painter.drawEllipse(image.rect());
  painter.end();
  const QRegion shape = AlphaShape(image, 128);
  for (int y = 0; y < 60; ++y) {
    for (int x = 0; x < 60; ++x) {
      ASSERT_EQ(shape.contains(QPoint(x, y)), qAlpha(image.pixel(x, y)) >= 128) << x << " " << y;
    }
  }
}

TEST(AlphaShapeTest, APictureWithoutAlphaIsOpaqueThroughoutAndNoneIsNothing) {
  EXPECT_EQ(AlphaShape(QImage(7, 3, QImage::Format_RGB32), 128), QRegion(0, 0, 7, 3));
  EXPECT_TRUE(AlphaShape({}, 0).isEmpty());
  EXPECT_TRUE(AlphaShape(Clear(7, 3), 1).isEmpty());
}

QImage Solid(int from, int width) {
  QImage image = Clear(10, 1);
  Fill(image, {from, 0, width, 1}, 255);
  return image;
}

TEST(LastingShapeTest, OnlyWhatWasOpaqueInEveryPictureLasts) {
  LastingShape shape;
  shape.Take(Solid(0, 6));
  shape.Settle();
  EXPECT_EQ(shape.Region(), QRegion(0, 0, 6, 1));
  QImage second = Solid(3, 7);
  Fill(second, {4, 0, 1, 1}, 254);
  shape.Take(second);
  EXPECT_EQ(shape.Region(), QRegion(3, 0, 1, 1) + QRegion(5, 0, 1, 1));
  shape.Take(Solid(0, 6));
  EXPECT_EQ(shape.Region(), QRegion(3, 0, 1, 1) + QRegion(5, 0, 1, 1));
}

TEST(LastingShapeTest, WithAnotherFileItOnlyShrinksUntilThatHasSettled) {
  LastingShape shape;
  shape.Take(Solid(0, 6));
  EXPECT_TRUE(shape.Region().isEmpty()) << "what comes next is not known yet";
  shape.Settle();
  EXPECT_EQ(shape.Region(), QRegion(0, 0, 6, 1));
  shape.Restart();
  shape.Take(Solid(4, 6));
  EXPECT_EQ(shape.Region(), QRegion(4, 0, 2, 1));
  shape.Take(Solid(4, 5));
  shape.Settle();
  EXPECT_EQ(shape.Region(), QRegion(4, 0, 5, 1));
}

TEST(LastingShapeTest, APictureOfAnotherSizeIsAnotherFiles) {
  LastingShape shape;
  shape.Take(Solid(0, 6));
  shape.Settle();
  QImage larger = Clear(12, 1);
  Fill(larger, {4, 0, 8, 1}, 255);
  shape.Take(larger);
  EXPECT_EQ(shape.Region(), QRegion(4, 0, 2, 1));
  shape.Settle();
  EXPECT_EQ(shape.Region(), QRegion(4, 0, 8, 1));
  shape.Take({});
  EXPECT_TRUE(shape.Region().isEmpty());
}

}  // namespace
