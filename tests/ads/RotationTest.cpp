#include "ads/AdFolders.h"
#include "tests/ads/CrawlerTest.h"

using namespace std::chrono_literals;

namespace {

using RotationTest = CrawlerTest;

TEST_F(RotationTest, TheAdsTakeTheirTurnInListOrderAndAfterTheLastComesTheFirst) {
  Ads({"c", "A", "b"});
  Desk();
  Names aired;
  for (int i = 0; i < 4; ++i) {
    Desk().NextAd();
    aired.push_back(OnBand());
  }
  EXPECT_EQ(aired, (Names{"b", "c", "A", "b"}));
}

TEST_F(RotationTest, APassEndsOnItsTickAndBringsTheNextAd) {
  Ads({"a", "b"});
  Desk();
  SettleOutput();
  Desk().ListAd.ClickRow(1);
  // With width W and step S the next ad comes on tick floor(W / S) + 2 of the pass.
  Tick(400 * 15 / 30 + 1);
  EXPECT_EQ(OnBand(), "a");
  EXPECT_EQ(Output().pic.Left, -6000 - 30);
  Tick();
  EXPECT_EQ(OnBand(), "b");
  EXPECT_EQ(Output().pic.Left, 0);
}

TEST_F(RotationTest, OneStepAtEachOfThirtySixThousandTicks) {
  Ad("long", {.width = 36'000});
  Desk();
  SettleOutput();
  Desk().ListAd.ClickRow(1);
  int uneven = 0;
  Twips before = Output().pic.Left;
  for (int tick = 0; tick < 18'000; ++tick) {
    Tick();
    if (Output().pic.Left != before - 30) ++uneven;
    before = Output().pic.Left;
  }
  EXPECT_EQ(uneven, 0);
  EXPECT_EQ(Output().pic.Left, -30.0 * 18'000);
  // The other half of ten minutes: the pass ends, is loaded again, and goes on by the same step.
  for (int tick = 0; tick < 18'000; ++tick) {
    Tick();
    const bool again = Output().pic.Left == 0;
    if (!again && Output().pic.Left != before - 30) ++uneven;
    before = Output().pic.Left;
  }
  EXPECT_EQ(uneven, 0);
}

TEST_F(RotationTest, OneAdAloneIsLoadedAgainAndStartsAtTheLeft) {
  Ads({"only"});
  Desk();
  SettleOutput();
  Desk().ListAd.ClickRow(1);
  const int load = Output().pic.Picture.Get().load;
  Tick(400 * 15 / 30 + 2);
  EXPECT_EQ(OnBand(), "only");
  EXPECT_EQ(Output().pic.Left, 0);
  EXPECT_EQ(Output().pic.Picture.Get().load, load + 1);
}

TEST_F(RotationTest, AnOperatorsClickPutsTheAdOnTheAirAndLeavesTheRotationWhereItStood) {
  Ads({"a", "b", "c", "d"});
  Desk().ListAd.ClickRow(4);
  EXPECT_EQ(OnBand(), "d");
  EXPECT_EQ(Setting("AdSettings", "LastAd"), "4");
  Desk().NextAd();
  EXPECT_EQ(OnBand(), "b");
}

TEST_F(RotationTest, AClickWithoutASelectionDoesNothing) {
  Ads({"a", "b"});
  Desk().ListAd.ClickRow(2);
  Desk().ListAd.SelectRows({}, 0);
  const int load = Output().pic.Picture.Get().load;
  Desk().ListAd.Click.Raise();
  EXPECT_EQ(Output().pic.Picture.Get().load, load);
  EXPECT_EQ(ad.Scorl, In("b", "scorl.jpg"));
  EXPECT_EQ(Setting("AdSettings", "LastAd"), "2");
}

// The start.

TEST_F(RotationTest, TheAdThatWasOnTheAirLastComesBackAndTheSecondOfTheListFollowsWhateverItWas) {
  Ads({"a", "b", "c"});
  Set("AdSettings", "LastAd", "3");
  Desk();
  EXPECT_EQ(OnBand(), "c");
  EXPECT_EQ(Desk().AdIndex, 1);
  Desk().NextAd();
  EXPECT_EQ(OnBand(), "b");
}

TEST_F(RotationTest, ALastAdThatIsNoRowPutsTheFirstOnTheAir) {
  for (const char* last : {"", "x", "0", "-3", "4", "99999", "1e300", "2 ads"}) {
    SimWorld other;
    Station fresh(other.world, "/station");
    ConnectRoads(fresh);
    for (const char* name : {"a", "b", "c"}) {
      other.files.Put(In(name, "adinfo.ini"), "[Info]\r\nActive=1\r\n");
    }
    other.files.Put("/station/Settings.ini", std::string("[AdSettings]\r\nLastAd=") + last + "\r\n");
    EXPECT_EQ(fresh.forms.Get<frmAdSett>().ListAd.Selected().text, "a") << last;
  }
}

TEST_F(RotationTest, ALastAdBetweenTwoRowsIsRounded) {
  Ads({"a", "b", "c"});
  Set("AdSettings", "LastAd", "2.4");
  Desk();
  EXPECT_EQ(OnBand(), "b");
}

TEST_F(RotationTest, WithTheBandOffTheFirstAdIsLoadedAllTheSame) {
  Ads({"a"});
  Set("AdSettings", "Show", "False");
  ControlWindow();
  EXPECT_EQ(ad.Scorl, In("a", "scorl.jpg"));
  EXPECT_EQ(OnBand(), "a");
  EXPECT_FALSE(Output().PicAd.Visible);
  EXPECT_FALSE(Output().Timer1.Enabled);
}

TEST_F(RotationTest, ARestoredBandRunsAndNeverShowsTheDesk) {
  Ads({"a", "b"});
  Set("AdSettings", "Show", "True");
  ControlWindow();
  EXPECT_FALSE(Desk().Visible);
  SettleOutput();
  Tick(200);
  EXPECT_EQ(OnBand(), "b");
}

// No ads.

TEST_F(RotationTest, WithoutAdsTheBandIsEmptiedAndTheNextAdIsAskedForAtEveryOtherTick) {
  Ads({"a"});
  Desk();
  SettleOutput();
  sim.files.RemoveTree("/station/Ads/a");
  LoadAdList(station, "/station/Ads/", Desk().ListAd);
  int asked = 0;
  Output().CrawlerLeft.Connect([&asked] { ++asked; });
  Desk().NextAd();
  EXPECT_EQ(Output().pic.Width, 0);
  EXPECT_EQ(Output().Flash.Movie.Get(), "");
  EXPECT_EQ(Desk().AdIndex, 1);
  Tick(20);
  EXPECT_EQ(asked, 10);
  EXPECT_EQ(Setting("AdSettings", "LastAd"), "1");  // as the last ad left it
}

TEST_F(RotationTest, WithoutAdsAndWithoutASpeedTheNextAdIsNeverAskedFor) {
  Desk();
  SettleOutput();
  int asked = 0;
  Output().CrawlerLeft.Connect([&asked] { ++asked; });
  Tick(100);
  EXPECT_EQ(asked, 0);
}

TEST_F(RotationTest, TheFirstAdOfAllCanBeComposedWhileTheEmptyBandAsksForTheNext) {
  Picture("/art/top.jpg", {300, 40});
  Desk();
  ad.CrawlerSpeed = "30";
  sim.dialogs.files = {"/art/top.jpg"};
  Desk().btnHeader.Press();
  Tick(100);
  EXPECT_EQ(ad.Header, "/art/top.jpg");
}

// Ads that are not active.

TEST_F(RotationTest, AnInactiveAdRunsUnderTheFollowingAdsSettingsWithItsOwnPicture) {
  Ad("a");
  Ad("b", {.active = "0", .header = "header.jpg", .left = "left.jpg", .speed = "11"});
  Ad("c", {.header = "header.swf", .right = "right.swf", .speed = "22", .headerHeight = "333", .top = "444"});
  Picture(In("b", "right.swf"), {1, 1});  // named by the following ad alone
  Ad("d");
  Desk();
  Desk().NextAd();
  EXPECT_EQ(OnBand(), "b");
  EXPECT_EQ(ad.Scorl, In("b", "scorl.jpg"));
  EXPECT_EQ(ad.Header, In("b", "header.swf"));  // the inactive ad's folder, the following ad's name
  EXPECT_EQ(ad.Left, "");
  EXPECT_EQ(ad.Right, In("b", "right.swf"));
  EXPECT_EQ(ad.CrawlerSpeed + " " + ad.CrawlerHeaderHeight + " " + ad.CrawlerAdTop, "22 333 444");
  EXPECT_TRUE(Desk().chkAdActive.Ticked());  // the following ad's state
  EXPECT_EQ(Preview().pic.Picture.Get().path, In("b", "scorl.jpg"));
  EXPECT_EQ(Setting("AdSettings", "LastAd"), "3");
  EXPECT_EQ(Desk().ListAd.Selected().text, "c");
  Desk().NextAd();
  EXPECT_EQ(OnBand(), "d");  // the following ad has had its turn
}

TEST_F(RotationTest, AnAdInTheShadowOfAnInactiveOneIsShownForAnInstant) {
  Ad("a");
  Ad("b", {.active = "0"});
  Ad("c");
  Desk();
  Names loaded;
  const auto watching =
      Output().pic.Picture.Changed.Subscribe([&] { loaded.push_back(AdOf(Output().pic.Picture.Get().path)); });
  Desk().NextAd();
  EXPECT_EQ(loaded, (Names{"c", "b"}));
}

TEST_F(RotationTest, OfSeveralInactiveAdsInARowTheFirstReachedStaysOnTheAir) {
  Ad("a");
  Ad("b", {.active = "0"});
  Ad("c", {.active = "0"});
  Ad("d", {.speed = "77"});
  Desk();
  Names loaded;
  const auto watching =
      Output().pic.Picture.Changed.Subscribe([&] { loaded.push_back(AdOf(Output().pic.Picture.Get().path)); });
  Desk().NextAd();
  EXPECT_EQ(loaded, (Names{"d", "c", "b"}));
  EXPECT_EQ(ad.CrawlerSpeed, "77");
  EXPECT_EQ(Setting("AdSettings", "LastAd"), "4");
}

TEST_F(RotationTest, WithEveryAdInactiveTheNestEndsAfterOnePass) {
  for (const char* name : {"a", "b", "c"}) Ad(name, {.active = "0", .speed = "7"});
  Desk();
  Names loaded;
  const auto watching =
      Output().pic.Picture.Changed.Subscribe([&] { loaded.push_back(AdOf(Output().pic.Picture.Get().path)); });
  Desk().NextAd();
  EXPECT_EQ(loaded, (Names{"a", "c", "b"}));
  EXPECT_EQ(ad.CrawlerSpeed, "7");
}

TEST_F(RotationTest, OneInactiveAdAloneRunsUnderItsOwnSettings) {
  Ad("a", {.active = "0", .speed = "9"});
  Desk();
  EXPECT_EQ(OnBand(), "a");
  EXPECT_EQ(ad.CrawlerSpeed, "9");
}

TEST_F(RotationTest, AClickOnAnInactiveAdReachesAnActiveOneWhereverTheRotationStands) {
  Ad("a", {.active = "0"});
  Ad("b", {.active = "0"});
  Ad("c", {.speed = "55"});
  Desk();
  Desk().AdIndex = 3;
  Desk().ListAd.ClickRow(1);
  EXPECT_EQ(OnBand(), "a");
  EXPECT_EQ(ad.CrawlerSpeed, "55");
}

TEST_F(RotationTest, AnAdWithoutADescriptionCountsAsInactive) {
  Ad("a");
  sim.files.CreateFolder("/station/Ads/b");
  Ad("c", {.speed = "66"});
  Desk();
  Desk().NextAd();
  EXPECT_EQ(ad.Scorl, In("b", "scorl.jpg"));
  EXPECT_EQ(ad.CrawlerSpeed, "66");
  EXPECT_EQ(OnBand(), "c");  // the other has no picture, and the old one stands
}

// Bad files.

TEST_F(RotationTest, AFolderThatGoesWhileItsAdIsOnTheAirLeavesTheBandAndTheRotationGoing) {
  Ads({"a", "b"});
  Desk();
  SettleOutput();
  Desk().ListAd.ClickRow(1);
  sim.files.RemoveTree("/station/Ads");
  Tick(100);
  EXPECT_EQ(OnBand(), "a");
  Tick(1000);
  EXPECT_EQ(OnBand(), "a");
  EXPECT_GE(Output().pic.Left, -6000 - 30);
}

TEST_F(RotationTest, ADescriptionThatIsMissingEmptyOrAFolderStopsNothing) {
  Ads({"a", "d"});
  sim.files.Put(In("b", "adinfo.ini"), "");
  sim.files.CreateFolder(In("c", "adinfo.ini"));
  Desk();
  Desk().NextAd();
  EXPECT_EQ(OnBand(), "d");
}

TEST_F(RotationTest, AScrollPictureThatIsNoneLeavesTheOldOneAndThePassEndsByItsWidth) {
  Ads({"a", "b"});
  sim.pictures.sizes.erase(In("b", "scorl.jpg"));
  Desk();
  SettleOutput();
  Desk().ListAd.ClickRow(2);
  EXPECT_EQ(OnBand(), "a");
  EXPECT_EQ(Output().pic.Width, 6000);
}

TEST_F(RotationTest, AScrollPictureOfWhichNothingCanBeDecodedLeavesTheOldOneAtItsSizeLaidOutAgain) {
  Ads({"a"});
  Ad("b", {.width = 800});
  sim.pictures.undecodable.insert(In("b", "scorl.jpg"));
  sim.pictures.sizes[In("b", "scorl.jpg")] = {800, 120};
  Desk();
  SettleOutput();
  Desk().ListAd.ClickRow(1);
  sim.time.Settle();
  const Twips top = Output().PicAd.Top;
  Desk().ListAd.ClickRow(2);
  EXPECT_EQ(Output().pic.Width, 12000);
  sim.time.Settle();
  for (PictureBox* pic : {&Output().pic, &Preview().pic}) {
    EXPECT_EQ(AdOf(pic->Picture.Get().path), "a");
    EXPECT_EQ(pic->Width, 6000);
    EXPECT_EQ(pic->Left, 0);
  }
  EXPECT_EQ(Output().PicAd.Top, top);
}

TEST_F(RotationTest, TwoScrollPicturesInARowThatCannotBeDecodedLeaveTheOneBefore) {
  Ads({"a", "b", "c"});
  for (const char* name : {"b", "c"}) sim.pictures.undecodable.insert(In(name, "scorl.jpg"));
  Desk();
  sim.time.Settle();
  Desk().ListAd.ClickRow(2);
  Desk().ListAd.ClickRow(3);
  sim.time.Settle();
  EXPECT_EQ(OnBand(), "a");
}

TEST_F(RotationTest, AnAdWithoutItsHeaderLeavesTheOldOne) {
  Ads({"a", "b"});
  sim.files.Remove(In("b", "header.jpg"));
  Desk().ListAd.ClickRow(1);
  Advance(100ms);
  Desk().ListAd.ClickRow(2);
  Advance(100ms);
  EXPECT_EQ(sim.flash.Find("frmPlayer.Flash")->Shown(), In("a", "header.jpg"));
}

TEST_F(RotationTest, ALeftOrRightKeyThatIsEmptyIsNoFile) {
  Ad("a", {.left = "", .right = ""});
  Desk();
  EXPECT_EQ(ad.Left + ad.Right, "");
  EXPECT_FALSE(Output().FlashLeft.Visible);
}

TEST_F(RotationTest, ASideFileThatIsGoneHidesItsPanel) {
  Ad("a", {.left = "left.jpg", .right = "right.jpg"});
  sim.files.Remove(In("a", "left.jpg"));
  Desk();
  EXPECT_FALSE(Output().FlashLeft.Visible);
  EXPECT_TRUE(Output().FlashRight.Visible);
}

TEST_F(RotationTest, AHalfFilledListIsReachedByTheTicksOfItsYields) {
  Ads({"a", "b", "c"});
  Desk();
  SettleOutput();
  Desk().AdIndex = 2;
  Desk().ListAd.ClickRow(1);
  Output().pic.Left = -7000;  // the next tick asks for the next ad
  sim.time.yieldTakes = kTick;
  LoadAdList(station, "/station/Ads/", Desk().ListAd);
  EXPECT_EQ(OnBand(), "a");  // row 3 was not there yet: the rotation began anew
  EXPECT_EQ(Desk().AdIndex, 1);
  EXPECT_EQ(Desk().ListAd.Count(), 3);
  EXPECT_EQ(Desk().ListAd.Row(3).text, "c");
}

// The band's switch.

TEST_F(RotationTest, ThePlayButtonReadsStopAtTheStartAndStopsOnlyTheScroll) {
  Ads({"a"});
  Desk();
  SettleOutput();
  Desk().ListAd.ClickRow(1);
  EXPECT_EQ(Desk().btnPlay.Caption.Get(), "Stop");
  EXPECT_EQ(Desk().btnPlay.Picture.Get(), "imgStop");
  Tick(10);
  Desk().btnPlay.Press();
  EXPECT_EQ(Desk().btnPlay.Caption.Get(), "Play");
  EXPECT_EQ(Desk().btnPlay.Picture.Get(), "imgPlay");
  Tick(10);
  EXPECT_EQ(Output().pic.Left, -300);
  EXPECT_TRUE(Output().PicAd.Visible);
  Desk().btnPlay.Press();
  EXPECT_EQ(Desk().btnPlay.Caption.Get(), "Stop");
  EXPECT_EQ(Output().pic.Left, -300);
  Tick();
  EXPECT_EQ(Output().pic.Left, -330);
}

TEST_F(RotationTest, TheBandsPlaceAfterADragLastsUntilTheNextLayout) {
  Ads({"a", "b"});
  Desk();
  SettleOutput();
  Desk().ListAd.ClickRow(1);
  const Twips place = Output().PicAd.Top;
  Output().pic.PressMouse(MouseButton::kLeft);
  Output().PicAd.Top = 500;
  Output().PicAd.Left = 300;
  sim.windows.EndDrag();
  EXPECT_EQ(Output().PicAd.Left, 0);
  Tick(50);
  EXPECT_EQ(Output().PicAd.Top, 500);
  Tick(300);
  EXPECT_EQ(OnBand(), "b");
  EXPECT_EQ(Output().PicAd.Top, place);
}

}  // namespace
