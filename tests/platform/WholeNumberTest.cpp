#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

#include "platform/WholeNumber.h"

namespace {

TEST(WholeNumberTest, WhatStandsBehindThePointIsCutOff) {
  EXPECT_EQ(CutToWhole<int>(2.9), 2);
  EXPECT_EQ(CutToWhole<int>(-2.9), -2);
}

TEST(WholeNumberTest, ANumberThatDoesNotFitGivesTheNearestThatDoes) {
  EXPECT_EQ(CutToWhole<int>(1e300), std::numeric_limits<int>::max());
  EXPECT_EQ(CutToWhole<int>(-1e300), std::numeric_limits<int>::min());
  EXPECT_EQ(CutToWhole<int>(2147483647.0), 2147483647);
  EXPECT_EQ(CutToWhole<int>(2147483647.5), 2147483647);
  EXPECT_EQ(CutToWhole<std::int64_t>(0x1p63), std::numeric_limits<std::int64_t>::max());
  EXPECT_EQ(CutToWhole<std::int64_t>(-0x1p63), std::numeric_limits<std::int64_t>::min());
  EXPECT_EQ(CutToWhole<std::int64_t>(std::numeric_limits<double>::infinity()),
            std::numeric_limits<std::int64_t>::max());
}

TEST(WholeNumberTest, NoNumberIsZero) { EXPECT_EQ(CutToWhole<int>(std::numeric_limits<double>::quiet_NaN()), 0); }

}  // namespace
