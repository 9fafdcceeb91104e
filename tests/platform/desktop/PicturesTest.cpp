#include <gtest/gtest.h>

#include <QFile>
#include <QImage>
#include <QTemporaryDir>

#include "platform/qt/desktop/QtPictures.h"

namespace {

class PicturesTest : public ::testing::Test {
 protected:
  std::string Path(const char* name) const { return folder_.filePath(name).toStdString(); }

  QTemporaryDir folder_;
  QtPictures pictures_;
};

TEST_F(PicturesTest, TheSizeComesFromTheHeader) {
  QImage(6000, 90, QImage::Format_RGB32).save(QString::fromStdString(Path("scorl.jpg")));
  EXPECT_EQ(pictures_.Size(Path("scorl.jpg")), (PixelSize{6000, 90}));
}

TEST_F(PicturesTest, WhatTheFileHoldsCountsAndNotItsName) {
  QImage(30, 20, QImage::Format_RGB32).save(QString::fromStdString(Path("logo.jpg")), "PNG");
  EXPECT_EQ(pictures_.Size(Path("logo.jpg")), (PixelSize{30, 20}));
}

TEST_F(PicturesTest, WhatIsNoPictureHasNoSize) {
  QFile text(QString::fromStdString(Path("text.jpg")));
  ASSERT_TRUE(text.open(QFile::WriteOnly) && text.write("no picture") > 0);
  text.close();
  EXPECT_EQ(pictures_.Size(Path("text.jpg")), std::nullopt);
  EXPECT_EQ(pictures_.Size(Path("absent.jpg")), std::nullopt);
  EXPECT_EQ(pictures_.Size(""), std::nullopt);
  EXPECT_EQ(pictures_.Size(folder_.path().toStdString()), std::nullopt);
}

}  // namespace
