#include <gtest/gtest.h>

#include "platform/toolkit/Failure.h"
#include "settings/TimeTexts.h"

namespace {

DateTime At(int hour, int minute, int second) { return {2026, 11, 5, hour, minute, second, 0}; }

TEST(TimeTextsTest, ATimeTextHasTwoDigitsEachOnATwelveHourClock) {
  EXPECT_EQ(TimeText(At(7, 3, 25)), "07:03:25 AM");
  EXPECT_EQ(TimeText(At(0, 0, 20)), "12:00:20 AM");
  EXPECT_EQ(TimeText(At(12, 0, 0)), "12:00:00 PM");
  EXPECT_EQ(TimeText(At(23, 59, 59)), "11:59:59 PM");
}

TEST(TimeTextsTest, TheClockTextHasNoPaddedHour) {
  EXPECT_EQ(ClockText(At(7, 3, 25)), "7:03:25 AM");
  EXPECT_EQ(ClockText(At(0, 3, 5)), "12:03:05 AM");
}

TEST(TimeTextsTest, TheScheduleKeyIsTheShortDateAndTheTimeText) {
  EXPECT_EQ(DateText(At(0, 0, 0)), "11/5/2026");
  EXPECT_EQ(ScheduleKey({2026, 11, 15}, At(7, 0, 0)), "11/15/2026-07:00:00 AM");
}

TEST(TimeTextsTest, ATimeTextIsReadBack) {
  for (int second = 0; second < 86400; second += 7) {
    DateTime time;
    time.hour = second / 3600;
    time.minute = second / 60 % 60;
    time.second = second % 60;
    EXPECT_EQ(ParseTimeText(TimeText(time)), time);
    EXPECT_EQ(ParseTimeText(ClockText(time)), time);
  }
}

TEST(TimeTextsTest, ATimeTypedByHandMayLeaveOutSecondsAndTheHalfOfTheDay) {
  EXPECT_EQ(TimeText(ParseTimeText(" 7:03 pm ")), "07:03:00 PM");
  EXPECT_EQ(TimeText(ParseTimeText("19:03:25")), "07:03:25 PM");
  EXPECT_EQ(TimeText(ParseTimeText("0:00")), "12:00:00 AM");
}

TEST(TimeTextsTest, AnyOtherTextIsAFailure) {
  for (const char* text : {"", "7", "soon", "13:00:00 PM", "0:00 AM", "24:00", "7:60", "7:00:60", "7:00:00 XM",
                           "7:00:", "-7:00", "7:-1", "007:00", "7:00:00:00", "7:00:00 AM x"}) {
    EXPECT_THROW(ParseTimeText(text), Failure) << text;
  }
}

TEST(TimeTextsTest, AnEndTimePastMidnightPrintsAsAMorningTime) {
  EXPECT_EQ(AddSecondsToTime(30, At(23, 59, 50)), "12:00:20 AM");
  EXPECT_EQ(AddSecondsToTime(1, ParseTimeText("11:59:50 PM")), "11:59:51 PM");
}

TEST(TimeTextsTest, AddingSecondsShowsOnlyTheTimeOfDay) {
  EXPECT_EQ(AddSecondsToTime(0, At(7, 0, 0)), "07:00:00 AM");
  EXPECT_EQ(AddSecondsToTime(3 * 86400 + 5, At(7, 0, 0)), "07:00:05 AM");
  EXPECT_EQ(AddSecondsToTime(-1, At(0, 0, 0)), "11:59:59 PM");
  EXPECT_EQ(AddSecondsToTime(2147483647, At(23, 59, 59)), "03:14:06 AM");
}

TEST(TimeTextsTest, ADurationTextHasNoPadding) {
  EXPECT_EQ(SecondsToHMS(0), "0:0:0");
  EXPECT_EQ(SecondsToHMS(59), "0:0:59");
  EXPECT_EQ(SecondsToHMS(60), "0:1:0");
  EXPECT_EQ(SecondsToHMS(205), "0:3:25");
  EXPECT_EQ(SecondsToHMS(3661), "1:1:1");
  EXPECT_EQ(SecondsToHMS(3725), "1:2:5");
}

TEST(TimeTextsTest, TheHoursOfADurationAreNotLimitedToADay) { EXPECT_EQ(SecondsToHMS(100 * 3600), "100:0:0"); }

}  // namespace
