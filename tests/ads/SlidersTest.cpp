#include <functional>

#include "tests/ads/CrawlerTest.h"

namespace {

using SlidersTest = CrawlerTest;

TEST_F(SlidersTest, AnAdsKeysGoIntoSlidersAndLabels) {
  Ad("a", {.speed = "45", .headerHeight = "700", .sideWidth = "800", .top = "900"});
  EXPECT_EQ(Desk().SldSpeed.Value, 45);
  EXPECT_EQ(Desk().sldHeight.Value, 700);
  EXPECT_EQ(Desk().sldSide.Value, 800);
  EXPECT_EQ(Desk().SldAdTop.Value, 900);
  EXPECT_EQ(Desk().lblSpeed.Caption.Get(), "Speed: 45");
  EXPECT_EQ(Desk().lblHeight.Caption.Get(), "Height: 700");
  EXPECT_EQ(Desk().lblWidth.Caption.Get(), "Side content width: 800");
  EXPECT_EQ(Desk().lblAdTop.Caption.Get(), "Ad position: 900");
}

TEST_F(SlidersTest, TheSlidersHaveAnotherWordingWhenTheOperatorTurnsThem) {
  Ads({"a"});
  Desk().SldSpeed.Move(50);
  Desk().sldHeight.Move(1000);
  Desk().sldSide.LetGo(1100);
  Desk().SldAdTop.LetGo(1200);
  EXPECT_EQ(Desk().lblSpeed.Caption.Get(), "Scorl speed: 50");
  EXPECT_EQ(Desk().lblHeight.Caption.Get(), "Header height: 1000");
  EXPECT_EQ(Desk().lblWidth.Caption.Get(), "Side content width: 1100");
  EXPECT_EQ(Desk().lblAdTop.Caption.Get(), "Ad position: 1200");
}

TEST_F(SlidersTest, ASliderMovedDuringAPassRestartsItExceptTheSpeed) {
  Ads({"a"});
  Desk();
  SettleOutput();
  const auto restarts = [this](const std::function<void()>& turn) {
    Desk().ListAd.ClickRow(1);
    Tick(10);
    turn();
    return Output().pic.Left == 0;
  };
  EXPECT_FALSE(restarts([&] { Desk().SldSpeed.Move(60); }));
  EXPECT_EQ(Output().pic.Left, -300);
  Tick();
  EXPECT_EQ(Output().pic.Left, -360);
  EXPECT_TRUE(restarts([&] { Desk().sldHeight.Move(1000); }));
  EXPECT_EQ(Output().Flash.Height, 1000);
  EXPECT_TRUE(restarts([&] { Desk().sldSide.LetGo(1500); }));
  EXPECT_EQ(Output().FlashLeft.Width, 1500);
  EXPECT_EQ(Preview().FlashRight.Width, 1500);
  EXPECT_TRUE(restarts([&] { Desk().SldAdTop.LetGo(2000); }));
  EXPECT_EQ(Output().PicAd.Top, Output().Height - Output().PicAd.Height - 2000);
}

TEST_F(SlidersTest, SideWidthAndPositionWaitUntilTheThumbIsLetGo) {
  Ads({"a"});
  Desk().sldSide.Move(4000);
  Desk().SldAdTop.Move(4000);
  EXPECT_EQ(ad.CrawlerSideWidth + ad.CrawlerAdTop, "10000");  // 1000 and 0
  EXPECT_EQ(Key("a", "Settings", "SideWidth"), "1000");
}

TEST_F(SlidersTest, ATurnIsStoredForTheSelectedAdAndNotForTheOneOnTheAir) {
  Ads({"a", "b"});
  Desk().ListAd.ClickRow(1);
  Desk().ListAd.Select(2);  // by the keys: no click
  Desk().SldSpeed.Move(123);
  Desk().sldHeight.Move(456);
  Desk().sldSide.LetGo(789);
  Desk().SldAdTop.LetGo(1011);
  EXPECT_EQ(Key("b", "Settings", "Speed"), "123");
  EXPECT_EQ(Key("b", "Settings", "HeaderHeight"), "456");
  EXPECT_EQ(Key("b", "Settings", "SideWidth"), "789");
  EXPECT_EQ(Key("b", "Settings", "AdTop"), "1011");
  EXPECT_EQ(Key("a", "Settings", "Speed"), "30");
  EXPECT_EQ(ad.CrawlerSpeed, "123");
}

TEST_F(SlidersTest, ATurnWithNoAdSelectedShapesTheBandAndIsStoredNowhere) {
  Ads({"a", "b"});
  Desk().ListAd.SelectRows({}, 0);
  Desk().SldSpeed.Move(123);
  EXPECT_EQ(ad.CrawlerSpeed, "123");
  EXPECT_EQ(Key("a", "Settings", "Speed") + Key("b", "Settings", "Speed"), "3030");
}

TEST_F(SlidersTest, EverySliderStandsAtBothItsEnds) {
  Ads({"a"});
  const auto ends = [](Slider& slider) { return std::pair(slider.Min.Get(), slider.Max.Get()); };
  EXPECT_EQ(ends(Desk().SldSpeed), std::pair(5, 200));
  EXPECT_EQ(ends(Desk().sldHeight), std::pair(100, 5000));
  EXPECT_EQ(ends(Desk().sldSide), std::pair(100, 5000));
  EXPECT_EQ(ends(Desk().SldAdTop), std::pair(0, 10000));
  EXPECT_EQ(Desk().SldSpeed.LargeChange, 5);
  EXPECT_EQ(Desk().SldAdTop.LargeChange, 1000);
  for (const int beyond : {-100'000, 100'000}) {
    Desk().SldSpeed.Move(beyond);
    Desk().sldHeight.Move(beyond);
    Desk().sldSide.LetGo(beyond);
    Desk().SldAdTop.LetGo(beyond);
    const bool least = beyond < 0;
    EXPECT_EQ(Key("a", "Settings", "Speed"), least ? "5" : "200");
    EXPECT_EQ(Key("a", "Settings", "HeaderHeight"), least ? "100" : "5000");
    EXPECT_EQ(Key("a", "Settings", "SideWidth"), least ? "100" : "5000");
    EXPECT_EQ(Key("a", "Settings", "AdTop"), least ? "0" : "10000");
    Tick(10);
  }
}

TEST_F(SlidersTest, AValueThatTheSliderCannotShowIsNeitherClampedIntoTheRecordNorWrittenBack) {
  Ad("a", {.speed = "0", .headerHeight = "99999", .sideWidth = "-5", .top = "huge"});
  Desk();
  EXPECT_EQ(ad.CrawlerSpeed, "0");
  EXPECT_EQ(ad.CrawlerHeaderHeight, "99999");
  EXPECT_EQ(ad.CrawlerSideWidth, "-5");
  EXPECT_EQ(ad.CrawlerAdTop, "huge");
  EXPECT_EQ(Key("a", "Settings", "Speed"), "0");
  EXPECT_EQ(Desk().lblAdTop.Caption.Get(), "Ad position: huge");
}

TEST_F(SlidersTest, ASpeedOfZeroOrNoneKeepsTheRotationOnThisAdForEver) {
  for (const char* speed : {"0", ""}) {
    Ad("a", {.speed = speed});
    Ad("b");
    Desk();
    SettleOutput();
    Desk().ListAd.ClickRow(1);
    Tick(2000);
    EXPECT_EQ(OnBand(), "a");
    EXPECT_EQ(Output().pic.Left, 0);
  }
}

}  // namespace
