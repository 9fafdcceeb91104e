#include <gtest/gtest.h>

#include "platform/qt/forms/WindowPlace.h"

namespace {

const QList<QRect> kTwoScreens{QRect(0, 0, 1280, 800), QRect(1280, 0, 1920, 1080)};

TEST(WindowPlace, ThePlaceStandsWhileItsUpperEdgeIsInReach) {
  const QRect onSecond(2000, 500, 600, 900);
  EXPECT_EQ(Reachable(onSecond, kTwoScreens), onSecond);
  const QRect halfOut(-500, 100, 600, 400);
  EXPECT_EQ(Reachable(halfOut, kTwoScreens), halfOut);
}

TEST(WindowPlace, AWindowOfAScreenThatIsGoneComesToTheNearestOne) {
  const QRect lost(2000, 500, 600, 400);
  const QRect found = Reachable(lost, {QRect(0, 0, 1280, 800)});
  EXPECT_TRUE(QRect(0, 0, 1280, 800).contains(found));
  EXPECT_EQ(found.size(), lost.size());
}

TEST(WindowPlace, AWindowAboveTheScreenComesDownSinceNobodyCouldGraspIt) {
  EXPECT_EQ(Reachable(QRect(100, -50, 600, 400), kTwoScreens), QRect(100, 0, 600, 400));
}

TEST(WindowPlace, AWindowLargerThanAllScreensBecomesSmaller) {
  const QRect fitted = Reachable(QRect(5000, 5000, 3000, 2000), {QRect(0, 0, 1280, 800)});
  EXPECT_TRUE(QRect(0, 0, 1280, 800).contains(fitted));
  EXPECT_GT(fitted.width(), 1200);
  const QRect inReach = Reachable(QRect(0, 20, 1280, 800), {QRect(0, 0, 1280, 800)});
  EXPECT_TRUE(QRect(0, 0, 1280, 800).contains(inReach)) << "no lower edge is left below the screen";
}

TEST(WindowPlace, AWindowMayReachOverTwoScreens) {
  const QRect wide(100, 100, 2800, 600);
  EXPECT_EQ(Reachable(wide, kTwoScreens), wide);
}

TEST(WindowPlace, WithoutAnyScreenNothingMoves) {
  EXPECT_EQ(Reachable(QRect(5000, 0, 10, 10), {}), QRect(5000, 0, 10, 10));
}

}  // namespace
