// The status bar of the control window: nine panels, written with each second of the wall clock.
#include "tests/StationTest.h"

using namespace std::chrono_literals;
using Lamp = StatusBar::Lamp;

namespace {

constexpr int kPanels = 9;
// The bar is written just behind the wall clock's second, so that it never tells the one before.
constexpr auto kWritten = 100ms;

class StatusBarTest : public StationTest {
 protected:
  std::string Text(int panel) { return ControlWindow().Panel.PanelAt(panel).text; }
  Lamp LampOf(int panel) { return ControlWindow().Panel.PanelAt(panel).lamp; }
  Names Texts() {
    Names texts;
    for (int panel = 1; panel <= ControlWindow().Panel.Count(); ++panel) texts.push_back(Text(panel));
    return texts;
  }
};

TEST_F(StatusBarTest, ItHasNinePanelsWithTheirTextsInTheirOrder) {
  ControlWindow();
  Advance(1s + kWritten);
  EXPECT_EQ(Texts(), (Names{"07:00:01 AM", "Crawlers Ad False", "Video Ad False", "Flash Ad False", "Show clock False",
                            "Show web feed False", "Show logo False", "Show Stiker False", "Internet True"}));
}

TEST_F(StatusBarTest, EachFlagIsToldByItsOwnPanelAndByNoOther) {
  struct Row {
    int panel;
    bool frmMid::*flag;
    const char* told;
  };
  constexpr Row kRows[] = {
      {2, &frmMid::CrawlerShown, "Crawlers Ad True"},   {3, &frmMid::VideoAdShown, "Video Ad True"},
      {4, &frmMid::FlashAdShown, "Flash Ad True"},      {5, &frmMid::ClockShown, "Show clock True"},
      {6, &frmMid::WebFeedShown, "Show web feed True"}, {7, &frmMid::LogoShown, "Show logo True"},
      {8, &frmMid::StikerShown, "Show Stiker True"},
  };
  ControlWindow().UpdateStatusPanels();
  const Names off = Texts();
  for (const Row& row : kRows) {
    ControlWindow().*row.flag = true;
    ControlWindow().UpdateStatusPanels();
    Names on = off;
    on[static_cast<std::size_t>(row.panel) - 1] = row.told;
    EXPECT_EQ(Texts(), on);
    ControlWindow().*row.flag = false;
  }
}

TEST_F(StatusBarTest, TheOutputTheSecondDisplayTheSideColumnAndTheMaskHaveNoPanel) {
  ControlWindow().UpdateStatusPanels();
  const Names off = Texts();
  for (const auto flag : {&frmMid::OutputShown, &frmMid::OnMonitor2, &frmMid::LeftSideAdShown, &frmMid::MaskingOn}) {
    ControlWindow().*flag = true;
  }
  ControlWindow().UpdateStatusPanels();
  EXPECT_EQ(Texts(), off);
}

TEST_F(StatusBarTest, WhatAnEntrySwitchesIsToldWithTheNextSecond) {
  ControlWindow();
  Advance(1s + kWritten);
  ControlWindow().mnuShowCrawlersAd.Choose();
  Advance(1s - 2 * kWritten);
  EXPECT_EQ(Text(2), "Crawlers Ad False");
  Advance(2 * kWritten);
  EXPECT_EQ(Text(2), "Crawlers Ad True");
  ControlWindow().mnuShowCrawlersAd.Choose();
  Advance(1s);
  EXPECT_EQ(Text(2), "Crawlers Ad False");
}

TEST_F(StatusBarTest, WhatAStartBroughtBackIsTold) {
  Set("AdSettings", "Show", "True");
  Set("VideoAd", "Show", "True");
  ControlWindow();
  Advance(1s + kWritten);
  EXPECT_EQ(Text(2), "Crawlers Ad True");
  EXPECT_EQ(Text(3), "Video Ad True");
}

TEST_F(StatusBarTest, TheTimeChangesWithTheSecondOfTheWallClockWheneverTheWindowCame) {
  sim.time.StepWall(300ms);
  ControlWindow();
  Advance(699ms);
  EXPECT_NE(Text(1), "07:00:01 AM");
  Advance(kWritten);
  EXPECT_EQ(Text(1), "07:00:01 AM");
  Advance(1s);
  EXPECT_EQ(Text(1), "07:00:02 AM");
}

TEST_F(StatusBarTest, TheTimeIsThatOfATwelveHourClock) {
  ControlWindow();
  sim.time.AdvanceTo({.year = 2026, .month = 11, .day = 15, .hour = 13, .minute = 5, .second = 9});
  Advance(kWritten);
  EXPECT_EQ(Text(1), "01:05:09 PM");
}

TEST_F(StatusBarTest, AHiddenControlWindowGoesOnTelling) {
  ControlWindow().Hide();
  Advance(2s + kWritten);
  EXPECT_EQ(Text(1), "07:00:02 AM");
}

TEST_F(StatusBarTest, ALampTellsWhatIsOnTheAirFromWhatIsOnAndFromWhatIsOff) {
  ControlWindow().UpdateStatusPanels();
  for (int panel = 2; panel < kPanels; ++panel) EXPECT_EQ(LampOf(panel), Lamp::kOff) << panel;
  EXPECT_EQ(LampOf(1), Lamp::kNone) << "the time is nothing that can be on";
  EXPECT_EQ(LampOf(9), Lamp::kOn);
  for (const auto flag : {&frmMid::CrawlerShown, &frmMid::VideoAdShown, &frmMid::FlashAdShown, &frmMid::ClockShown,
                          &frmMid::WebFeedShown, &frmMid::LogoShown, &frmMid::StikerShown}) {
    ControlWindow().*flag = true;
  }
  ControlWindow().UpdateStatusPanels();
  for (const int panel : {2, 4, 5, 6, 7, 8}) EXPECT_EQ(LampOf(panel), Lamp::kOnAir) << panel;
  EXPECT_EQ(LampOf(3), Lamp::kOn) << "the countdown runs; a break is on the air only now and then";
  sim.network.SetOnline(false);
  ControlWindow().UpdateStatusPanels();
  EXPECT_EQ(LampOf(9), Lamp::kOff);
}

}  // namespace
