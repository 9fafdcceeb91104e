#include "tests/ads/CrawlerTest.h"

namespace {

using CrawlerMenuTest = CrawlerTest;

TEST_F(CrawlerMenuTest, TheEntryTurnsTheBandOnAndOffAndWritesItAtOnce) {
  Ads({"a"});
  ControlWindow().mnuShowCrawlersAd.Choose();
  EXPECT_TRUE(Output().PicAd.Visible);
  EXPECT_TRUE(Output().Timer1.Enabled);
  EXPECT_TRUE(ControlWindow().mnuShowCrawlersAd.Checked);
  EXPECT_TRUE(ControlWindow().CrawlerShown);
  EXPECT_EQ(Setting("AdSettings", "Show"), "True");
  ControlWindow().mnuShowCrawlersAd.Choose();
  EXPECT_FALSE(Output().PicAd.Visible);
  EXPECT_FALSE(Output().Timer1.Enabled);
  EXPECT_FALSE(ControlWindow().mnuShowCrawlersAd.Checked);
  EXPECT_EQ(Setting("AdSettings", "Show"), "False");
}

TEST_F(CrawlerMenuTest, TheEntryLeavesThePlayButtonsWordingOutOfStep) {
  Ads({"a"});
  Set("AdSettings", "Show", "True");
  ControlWindow();
  Desk().btnPlay.Press();
  ControlWindow().mnuShowCrawlersAd.Choose();
  ControlWindow().mnuShowCrawlersAd.Choose();
  EXPECT_TRUE(Output().Timer1.Enabled);
  EXPECT_EQ(Desk().btnPlay.Caption.Get(), "Play");
}

TEST_F(CrawlerMenuTest, TheDeskOpensByItsEntry) {
  ControlWindow();
  EXPECT_FALSE(Desk().Visible);
  ControlWindow().mnuScorlAsSettings.Choose();
  EXPECT_TRUE(Desk().Visible);
}

TEST_F(CrawlerMenuTest, TheStartHidesADeskThatStandsOpen) {
  Desk().Show();
  ControlWindow();
  EXPECT_FALSE(Desk().Visible);
  EXPECT_TRUE(station.forms.Loaded<frmAdSett>());
}

}  // namespace
