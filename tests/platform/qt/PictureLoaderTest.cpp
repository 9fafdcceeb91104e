#include <gtest/gtest.h>

#include <vector>

#include "platform/qt/scene/PictureLoader.h"
#include "tests/platform/qt/TestMedia.h"

namespace {

class PictureLoaderTest : public testing::Test {
 protected:
  void Load(const std::string& path, QSize size = {}) {
    loader->Load({QString::fromStdString(path), size}, receiver.get(),
                 [this](SharedPicture picture) { came.push_back(std::move(picture)); });
  }

  std::unique_ptr<PictureLoader> loader = std::make_unique<PictureLoader>();
  std::unique_ptr<QObject> receiver = std::make_unique<QObject>();
  std::vector<SharedPicture> came;
};

TEST_F(PictureLoaderTest, APictureComesLaterAndTheSecondTimeAtOnce) {
  const std::string path = test_media::Picture("twice.png", Qt::red, {40, 20});
  Load(path);
  EXPECT_TRUE(came.empty());
  ASSERT_TRUE(Until([this] { return came.size() == 1; }));
  ASSERT_NE(came[0], nullptr);
  EXPECT_EQ(came[0]->size, QSize(40, 20));
  EXPECT_EQ(came[0]->columns[0].image.pixelColor(5, 5), QColor(Qt::red));
  Load(path);
  ASSERT_EQ(came.size(), 2u);
  EXPECT_EQ(came[1], came[0]);
}

TEST_F(PictureLoaderTest, PicturesComeInTheOrderAskedForEachInItsSize) {
  const std::string path = test_media::Picture("sizes.png", Qt::blue, {100, 100});
  for (int side = 1; side <= 30; ++side) Load(path, {side, side});
  ASSERT_TRUE(Until([this] { return came.size() == 30; }));
  for (int side = 1; side <= 30; ++side) EXPECT_EQ(came[static_cast<std::size_t>(side) - 1]->size, QSize(side, side));
}

TEST_F(PictureLoaderTest, APictureWiderThanATextureComesInColumns) {
  Load(test_media::Picture("wide.png", Qt::green, {5000, 4}));
  ASSERT_TRUE(Until([this] { return came.size() == 1; }));
  int width = 0;
  for (const Picture::Column& column : came[0]->columns) {
    EXPECT_EQ(column.x, width);
    width += column.image.width();
  }
  EXPECT_EQ(width, 5000);
  EXPECT_GT(came[0]->columns.size(), 1u);
}

TEST_F(PictureLoaderTest, APixelOfExactlyTheKeysColourIsSeeThroughAndLeavesNoneOfItInTheEdges) {
  QImage image(8, 8, QImage::Format_RGB32);
  image.fill(qRgb(0xCC, 0xCC, 0xFF));
  for (int y = 0; y < 8; ++y) {
    for (int x = 4; x < 8; ++x) image.setPixel(x, y, qRgb(0xCC, 0, 0));
  }
  image.setPixel(0, 0, qRgb(0xCC, 0xCC, 0xFE));
  const QString path = QString::fromStdString(test_media::PathOf("key.png"));
  ASSERT_TRUE(image.save(path));
  const auto come = [this](SharedPicture picture) { came.push_back(std::move(picture)); };
  loader->Load({path, {}, qRgb(0xCC, 0xCC, 0xFF)}, receiver.get(), come);
  loader->Load({path, {3, 3}, qRgb(0xCC, 0xCC, 0xFF)}, receiver.get(), come);
  loader->Load({path}, receiver.get(), come);
  ASSERT_TRUE(Until([this] { return came.size() == 3; }));
  const QImage& keyed = came[0]->columns[0].image;
  EXPECT_EQ(keyed.pixelColor(0, 0), QColor(0xCC, 0xCC, 0xFE));
  EXPECT_EQ(qAlpha(keyed.pixel(1, 1)), 0);
  EXPECT_EQ(keyed.pixelColor(7, 7), QColor(0xCC, 0, 0));
  const QColor edge = came[1]->columns[0].image.pixelColor(1, 2);
  EXPECT_EQ(edge.blue(), 0);
  EXPECT_GT(edge.alpha(), 0);
  EXPECT_LT(edge.alpha(), 255);
  EXPECT_EQ(came[2]->columns[0].image.pixelColor(1, 1), QColor(0xCC, 0xCC, 0xFF));
}

TEST_F(PictureLoaderTest, AFileThatIsNoPictureAndOneThatIsAbsentGiveNone) {
  Load(test_media::Text("no.png", "no picture"));
  Load(test_media::PathOf("absent.png"));
  ASSERT_TRUE(Until([this] { return came.size() == 2; }));
  EXPECT_EQ(came, (std::vector<SharedPicture>{nullptr, nullptr}));
}

TEST_F(PictureLoaderTest, WhoHasGoneIsNotCalled) {
  const std::string path = test_media::Picture("gone.png", Qt::red, {40, 20});
  Load(path);
  receiver.reset();
  bool last = false;
  loader->Load({QString::fromStdString(path), {1, 1}}, loader.get(), [&last](const SharedPicture&) { last = true; });
  ASSERT_TRUE(Until([&last] { return last; }));
  EXPECT_TRUE(came.empty());
}

TEST_F(PictureLoaderTest, TheLoaderMayGoWhileItDecodes) {
  const std::string path = test_media::Picture("large.png", Qt::red, {3000, 2000});
  for (int i = 1; i <= 4; ++i) Load(path, {i, i});
  loader.reset();
  Pass(std::chrono::milliseconds(10));
  EXPECT_TRUE(came.empty());
}

}  // namespace
