#include <gtest/gtest.h>

#include <limits>

#include "platform/toolkit/Failure.h"
#include "settings/Numbers.h"

namespace {

TEST(NumbersTest, ValReadsTheLeadingNumberAndGivesZeroWhereThereIsNone) {
  EXPECT_EQ(Val("5 Min"), 5);
  EXPECT_EQ(Val("  -12.5x"), -12.5);
  EXPECT_EQ(Val("+3"), 3);
  EXPECT_EQ(Val(".5"), 0.5);
  EXPECT_EQ(Val("1E+07"), 1e7);
  EXPECT_EQ(Val("1,5"), 1);
  for (const char* text : {"", " ", "abc", "True", "-", ".", "inf", "nan", "- 1", "1e999"})
    EXPECT_EQ(Val(text), 0) << text;
}

TEST(NumbersTest, StrictNumberTakesTheWholeTextOrFails) {
  EXPECT_EQ(StrictNumber("12"), 12);
  EXPECT_EQ(StrictNumber(" -0.25 "), -0.25);
  EXPECT_EQ(StrictNumber("1.5e3"), 1500);
  for (const char* text : {"", " ", "abc", "5 Min", "1,5", "1 2", "True", "inf", "nan", "1e999"}) {
    EXPECT_THROW(StrictNumber(text), Failure) << text;
  }
}

TEST(NumbersTest, SinglePrecisionIsShownShortestInSevenDigits) {
  EXPECT_EQ(SingleText(0), "0");
  EXPECT_EQ(SingleText(-0.0f), "0");
  EXPECT_EQ(SingleText(0.1f), "0.1");
  EXPECT_EQ(SingleText(4800), "4800");
  EXPECT_EQ(SingleText(-1234.5f), "-1234.5");
  EXPECT_EQ(SingleText(1.0f / 3), "0.3333333");
  EXPECT_EQ(SingleText(12345678), "1.234568E+07");
}

TEST(NumbersTest, DoublePrecisionIsShownShortestInFifteenDigits) {
  EXPECT_EQ(DoubleText(0.1), "0.1");
  EXPECT_EQ(DoubleText(123.456), "123.456");
  EXPECT_EQ(DoubleText(1.0 / 3), "0.333333333333333");
  EXPECT_EQ(DoubleText(3600), "3600");
  EXPECT_EQ(DoubleText(std::numeric_limits<double>::quiet_NaN()), "0");
}

TEST(NumbersTest, EveryWrittenNumberIsReadBackByVal) {
  for (const double number : {0.1, 1e-9, 123456.789, 1e20, -2.5}) EXPECT_EQ(Val(DoubleText(number)), number);
}

TEST(NumbersTest, AHalfIsRoundedToTheEvenNeighbour) {
  EXPECT_EQ(RoundHalfEven(0.5), 0);
  EXPECT_EQ(RoundHalfEven(1.5), 2);
  EXPECT_EQ(RoundHalfEven(2.5), 2);
  EXPECT_EQ(RoundHalfEven(-0.5), 0);
  EXPECT_EQ(RoundHalfEven(-1.5), -2);
  EXPECT_EQ(RoundHalfEven(204.9), 205);
  EXPECT_EQ(RoundHalfEven(0.49999999999999994), 0);
}

TEST(NumbersTest, ANumberThatDoesNotFitCannotBeRounded) {
  EXPECT_EQ(RoundHalfEven(2147483647.0), 2147483647);
  EXPECT_THROW(RoundHalfEven(2147483648.0), Failure);
  EXPECT_THROW(RoundHalfEven(std::numeric_limits<double>::quiet_NaN()), Failure);
}

TEST(NumbersTest, WhatIsBeyondSixteenBitsFails) {
  for (const std::int32_t number : {-32768, 0, 32767}) EXPECT_EQ(SixteenBits(number), number);
  for (const std::int32_t number : {-32769, 32768, 57600}) EXPECT_THROW(SixteenBits(number), Failure);
}

}  // namespace
