#include <gtest/gtest.h>
#include <unistd.h>

#include "platform/qt/programs/SharedFrames.h"

// Pictures from one program to the other: one side paints, the other shows.

namespace {

constexpr QSize kSize(3, 2);

// The part that is passed stands at 4, 5.
QImage Whole(const QColor& part, const QColor& around) {
  QImage whole(10, 10, QImage::Format_ARGB32_Premultiplied);
  whole.fill(around);
  for (int y = 5; y < 7; ++y) {
    for (int x = 4; x < 7; ++x) whole.setPixelColor(x, y, part);
  }
  return whole;
}

class SharedFramesTest : public testing::Test {
 protected:
  static constexpr QPoint kCorner{4, 5};

  // As if it had come over the socket.
  Descriptor Memory() const { return Descriptor(dup(shows->Memory()->Number())); }

  std::shared_ptr<SharedFrames> shows = SharedFrames::Make(kSize);
  std::shared_ptr<SharedFrames> paints = SharedFrames::Open(Memory(), kSize);
};

TEST_F(SharedFramesTest, ThePartOfALargerPictureIsPassedOnce) {
  EXPECT_EQ(SharedFrames::Take(shows), std::nullopt);
  paints->Publish(Whole(Qt::red, Qt::blue), kCorner);
  const auto picture = SharedFrames::Take(shows);
  ASSERT_TRUE(picture);
  QImage red(kSize, QImage::Format_ARGB32_Premultiplied);
  red.fill(Qt::red);
  EXPECT_EQ(*picture, red);
  EXPECT_EQ(SharedFrames::Take(shows), std::nullopt);
}

TEST_F(SharedFramesTest, OnlyTheNewestPictureIsTakenAndWhatIsShownIsNeverPainted) {
  paints->Publish(Whole(Qt::red, Qt::blue), kCorner);
  const auto shown = SharedFrames::Take(shows);
  for (const Qt::GlobalColor colour : {Qt::green, Qt::yellow, Qt::white}) {
    paints->Publish(Whole(colour, Qt::blue), kCorner);
  }
  EXPECT_EQ(shown->pixelColor(0, 0), QColor(Qt::red));
  EXPECT_EQ(SharedFrames::Take(shows)->pixelColor(2, 1), QColor(Qt::white));
}

TEST_F(SharedFramesTest, APictureDiffersByItsOwnPartAlone) {
  const QImage red = Whole(Qt::red, Qt::blue);
  EXPECT_TRUE(paints->Differs(red, kCorner)) << "from nothing";
  paints->Publish(red, kCorner);
  EXPECT_FALSE(paints->Differs(red, kCorner));
  EXPECT_FALSE(paints->Differs(Whole(Qt::red, Qt::green), kCorner));
  QImage other = red;
  other.setPixelColor(kCorner + QPoint(2, 1), Qt::green);
  EXPECT_TRUE(paints->Differs(other, kCorner));
  EXPECT_TRUE(paints->Differs(red)) << "from another corner";
}

TEST_F(SharedFramesTest, MemoryThatIsTooSmallOrNoneIsNotOpened) {
  EXPECT_EQ(SharedFrames::Open(Memory(), kSize * 100), nullptr);
  EXPECT_EQ(SharedFrames::Open(Descriptor(), kSize), nullptr);
  EXPECT_EQ(SharedFrames::Open(Memory(), {0, 0}), nullptr);
  EXPECT_EQ(SharedFrames::Make({}), nullptr);
}

}  // namespace
