#include <gtest/gtest.h>

#include "platform/qt/desktop/WorkArea.h"

namespace {

using Edge = Strut::Edge;

const QSize kDesktop(3200, 1080);
const QRect kLeft(0, 0, 1920, 1080);
const QRect kRight(1920, 0, 1280, 720);  // smaller: below it is nothing

QRect Free(const QRect& monitor, std::vector<Strut> struts) { return WithoutStruts(monitor, kDesktop, struts); }

TEST(WorkAreaTest, WithoutPanelsTheWholeMonitorIsFree) {
  EXPECT_EQ(Free(kLeft, {}), kLeft);
  EXPECT_EQ(Free(kRight, {}), kRight);
}

TEST(WorkAreaTest, APanelCountsOnTheMonitorOnWhichItStands) {
  const Strut bottom{Edge::kBottom, 40, 0, 1919};
  EXPECT_EQ(Free(kLeft, {bottom}), QRect(0, 0, 1920, 1040));
  EXPECT_EQ(Free(kRight, {bottom}), kRight);
  const Strut top{Edge::kTop, 30, 1920, 3199};
  EXPECT_EQ(Free(kLeft, {top}), kLeft);
  EXPECT_EQ(Free(kRight, {top}), QRect(1920, 30, 1280, 690));
}

TEST(WorkAreaTest, TheDepthIsCountedFromTheEdgeOfTheWholeDesktop) {
  EXPECT_EQ(Free(kRight, {{Edge::kBottom, 360 + 40, 1920, 3199}}), QRect(1920, 0, 1280, 680));
}

TEST(WorkAreaTest, APanelBetweenTwoMonitorsTakesNothingFromTheOneThatItIsNotOn) {
  const Strut onTheRight{Edge::kLeft, 1920 + 50, 0, 719};
  EXPECT_EQ(Free(kLeft, {onTheRight}), kLeft);
  EXPECT_EQ(Free(kRight, {onTheRight}), QRect(1970, 0, 1230, 720));
  const Strut onTheLeft{Edge::kRight, 1280 + 50, 0, 1079};
  EXPECT_EQ(Free(kLeft, {onTheLeft}), QRect(0, 0, 1870, 1080));
  EXPECT_EQ(Free(kRight, {onTheLeft}), kRight);
}

TEST(WorkAreaTest, TheDeepestPanelOfAnEdgeCountsAndEachEdgeForItself) {
  EXPECT_EQ(Free(kLeft, {{Edge::kTop, 20, 0, 900}, {Edge::kTop, 30, 901, 1919}, {Edge::kLeft, 60, 0, 1079}}),
            QRect(60, 30, 1860, 1050));
}

}  // namespace
