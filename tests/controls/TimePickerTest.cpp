#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "controls/TimePicker.h"
#include "platform/sim/SimWorld.h"
#include "platform/toolkit/Form.h"
#include "settings/Station.h"

namespace {

class frmTimes : public Form {
 public:
  explicit frmTimes(Station& station) : Form(station.forms, "frmTimes", Kind::kOperator) {}

  TimePicker First{*this, "First"};
  TimePicker Second{*this, "Second"};
};

class TimePickerTest : public testing::Test {
 protected:
  static std::vector<std::string> Items(const ComboBox& list) {
    std::vector<std::string> items;
    for (int index = 0; index < list.ListCount(); ++index) items.push_back(list.List(index));
    return items;
  }

  SimWorld sim;
  Station station{sim.world, "/station"};
  TimePicker& picker = station.forms.Get<frmTimes>().First;
};

TEST_F(TimePickerTest, AtRestItIsMidnight) {
  EXPECT_EQ(picker.GetTime(), "12:00:00 AM");
  EXPECT_EQ(picker.Label8.Caption.Get(), "Play time");
}

TEST_F(TimePickerTest, TheHoursGoFromOneToTwelveWithALeadingNought) {
  const auto hours = Items(picker.CmbHH);
  ASSERT_EQ(hours.size(), 12U);
  EXPECT_EQ(hours.front(), "01");
  EXPECT_EQ(hours[8], "09");
  EXPECT_EQ(hours.back(), "12");
}

TEST_F(TimePickerTest, MinutesAndSecondsGoFromOneToFiftyNineAndHaveNoNought) {
  for (const ComboBox* list : {&picker.CmbMM, &picker.cmbSS}) {
    const auto items = Items(*list);
    ASSERT_EQ(items.size(), 59U);
    EXPECT_EQ(items.front(), "01");
    EXPECT_EQ(items[9], "10");
    EXPECT_EQ(items.back(), "59");
  }
  EXPECT_EQ(Items(picker.cmbAMPM), (std::vector<std::string>{"AM", "PM"}));
}

TEST_F(TimePickerTest, TheTimeIsWhatIsPicked) {
  picker.CmbHH.Pick(6);
  picker.CmbMM.Pick(4);
  picker.cmbSS.Pick(58);
  picker.cmbAMPM.Pick(1);
  EXPECT_EQ(picker.GetTime(), "07:05:59 PM");
}

TEST_F(TimePickerTest, OnceAMinuteWasPickedTheNoughtComesBackByTypingAlone) {
  picker.CmbMM.Pick(0);
  EXPECT_EQ(picker.GetTime(), "12:01:00 AM");
  picker.CmbMM.Type("00");
  EXPECT_EQ(picker.GetTime(), "12:00:00 AM");
}

TEST_F(TimePickerTest, WhatIsTypedIsTakenAsItIs) {
  picker.CmbHH.Type("25");
  picker.CmbMM.Type("");
  picker.cmbSS.Type("soon");
  picker.cmbAMPM.Type("am");
  EXPECT_EQ(picker.GetTime(), "25::soon am");
  picker.CmbHH.Type("7");
  EXPECT_EQ(picker.GetTime(), "7::soon am");
}

TEST_F(TimePickerTest, TwoOnOneFormAreTwo) {
  TimePicker& other = station.forms.Get<frmTimes>().Second;
  other.CmbHH.Pick(0);
  EXPECT_EQ(picker.GetTime(), "12:00:00 AM");
  EXPECT_EQ(other.GetTime(), "01:00:00 AM");
}

}  // namespace
