#include "tests/ads/VideoAdTest.h"

using namespace std::chrono_literals;

namespace {

using VideoBreakTest = VideoAdTest;

TEST_F(VideoBreakTest, TwoAdsABreakOfThreeGoOnWhereTheLastBreakStopped) {
  Ads({"a", "b", "c"});
  StartWithBreaks("2", "1");
  Advance(60s);
  EXPECT_EQ(AdsAired(), Names{"a"});
  Advance(6s);
  EXPECT_EQ(AdsAired(), Names{"b"});
  Advance(60s + 12s);
  EXPECT_EQ(AdsAired(), (Names{"c", "a"}));
}

TEST_F(VideoBreakTest, ABreakPausesTheProgrammeCoversItAndLetsItGoOnFromTheSamePlace) {
  Ads({"a"});
  StartWithBreaks("1", "1");
  Programme();
  Advance(59s);
  EXPECT_FALSE(InBreak());
  Advance(1s);
  EXPECT_TRUE(InBreak());
  EXPECT_EQ(MainPlayer().State(), PlayState::kPaused);
  EXPECT_FALSE(Desk().Timer1.Enabled);
  const double place = Output().Player.controls.currentPosition();
  Advance(5s);
  EXPECT_TRUE(InBreak());
  EXPECT_EQ(Output().Player.controls.currentPosition(), place);
  // The ad is over after the moment that it takes to open; the tick that ends the break comes half a second later.
  Advance(520ms);
  EXPECT_FALSE(InBreak());
  EXPECT_EQ(MainPlayer().State(), PlayState::kPlaying);
  EXPECT_NEAR(Output().Player.controls.currentPosition(), place, 0.1);
  EXPECT_TRUE(Desk().Timer1.Enabled);
}

TEST_F(VideoBreakTest, HalfASecondPassesBetweenTwoAds) {
  Ads({"a", "b"});
  StartWithBreaks("2", "1");
  Advance(60s + 5s + 500ms);
  EXPECT_EQ(AdsAired(), Names{"a"});
  Advance(20ms);
  EXPECT_EQ(AdsAired(), Names{"b"});
}

TEST_F(VideoBreakTest, EachAdIsStretchedToThePane) {
  Ads({"a"});
  StartWithBreaks("1", "1");
  Output().AdPlayer.stretchToFit = false;
  Advance(60s);
  EXPECT_TRUE(Output().AdPlayer.stretchToFit);
}

TEST_F(VideoBreakTest, TheCountIsWrittenEachSecondAndZeroOnTheTickThatStartsABreak) {
  Ads({"a"});
  StartWithBreaks("1", "1");
  Advance(1s);
  EXPECT_EQ(Count(), "1");
  Advance(58s);
  EXPECT_EQ(Count(), "59");
  EXPECT_EQ(Desk().txtAdTime.Text.Get(), "1");
  Advance(1s);
  EXPECT_EQ(Count(), "0");
  EXPECT_EQ(Desk().txtAdTime.Text.Get(), "0");
}

TEST_F(VideoBreakTest, ARestartInMidCountdownKeepsTheSecondsCounted) {
  Ads({"a"});
  Set("VideoAd", "AdTimeCount", "37");
  StartWithBreaks("1", "1");
  Advance(1s);
  EXPECT_EQ(Count(), "38");
  Advance(21s);
  EXPECT_FALSE(InBreak());
  Advance(1s);
  EXPECT_TRUE(InBreak());
}

TEST_F(VideoBreakTest, ARestartBeginsWithTheFirstAdWhateverWasPlayedLast) {
  Ads({"a", "b", "c", "d", "e"});
  Set("VideoAd", "LastIndex", "2");
  StartWithBreaks("1", "1");
  EXPECT_EQ(Desk().AdIndex, 120);
  Advance(60s);
  EXPECT_EQ(AdsAired(), Names{"a"});
}

TEST_F(VideoBreakTest, WithMoreThanSixtyAdsARestartCanBeginWithALaterOne) {
  for (int i = 101; i <= 162; ++i) Ad(std::to_string(i));
  Set("VideoAd", "LastIndex", "1");
  StartWithBreaks("1", "1");
  Advance(60s);
  EXPECT_EQ(AdsAired(), Names{"161"});
}

TEST_F(VideoBreakTest, TheIndexIsReadFromTheSectionOfTheOtherSpelling) {
  Ads({"a", "b"});
  sim.files.Put("/station/Settings.ini", "[Videoad]\r\nLastIndex=3\r\n");
  EXPECT_EQ(Desk().AdIndex, 180);
  Desk().CmbAdplay.Type("1");
  Desk().NextAd();
  EXPECT_EQ(sim.files.Read("/station/Settings.ini"), "[Videoad]\r\nLastIndex=1\r\n");
}

TEST_F(VideoBreakTest, ANewIntervalStartsTheCountdownAnewAndItsFirstTickShowsOneSecondLess) {
  Ads({"a"});
  StartWithBreaks("1", "1");
  Advance(30s);
  Desk().CmbBreak.Pick(4);
  EXPECT_EQ(Desk().AdTimeCount, 0);
  EXPECT_EQ(Setting("VideoAd", "AdTime"), "5");
  EXPECT_EQ(Count(), "30");  // until the next tick
  Advance(1s);
  EXPECT_EQ(Desk().txtAdTime.Text.Get(), "299");
  EXPECT_EQ(Count(), "1");
  Advance(298s);
  EXPECT_FALSE(InBreak());
  Advance(1s);
  EXPECT_TRUE(InBreak());
}

TEST_F(VideoBreakTest, TheNumberOfAdsIsKeptAndTakesEffectInTheRunningBreak) {
  Ads({"a", "b", "c"});
  StartWithBreaks("1", "1");
  Advance(61s);
  Desk().CmbAdplay.Pick(2);
  EXPECT_EQ(Setting("VideoAd", "AdPlay"), "3");
  Advance(15s);
  EXPECT_EQ(AdsAired(), (Names{"a", "b", "c"}));
  Desk().CmbAdplay.Pick(0);
  Advance(2s);
  EXPECT_FALSE(InBreak());
}

TEST_F(VideoBreakTest, ANumberOfAdsThatIsTypedTakesEffectAndIsNotKept) {
  Ads({"a", "b"});
  StartWithBreaks("1", "1");
  Desk().CmbAdplay.Type("2");
  Advance(60s + 6s);
  EXPECT_EQ(AdsAired(), (Names{"a", "b"}));
  EXPECT_EQ(Setting("VideoAd", "AdPlay"), "1");
}

TEST_F(VideoBreakTest, MoreAdsABreakThanThereAreGoRound) {
  Ads({"a", "b"});
  StartWithBreaks("5", "1");
  Advance(60s + 40s);
  EXPECT_EQ(AdsAired(), (Names{"a", "b", "a", "b", "a"}));
  EXPECT_FALSE(InBreak());
}

TEST_F(VideoBreakTest, ABreakWithoutAnyAdStartsAndNeverEnds) {
  StartWithBreaks("1", "1");
  Programme();
  ExpectBreakForGood();
}

TEST_F(VideoBreakTest, AnAdThatCannotBePlayedLeavesTheScreenOnThePaneAndTheProgrammePaused) {
  Ads({"a"});
  sim.media.WillNotLoad(In("a", "a.mp4"));
  StartWithBreaks("1", "1");
  Programme();
  ExpectBreakForGood();
}

TEST_F(VideoBreakTest, AnAdWithoutADescriptionOrWithAFolderInItsPlaceCannotBePlayed) {
  sim.files.Put(In("a", "a.mp4"), "media");
  sim.files.CreateFolder(In("b", "adinfo.ini"));
  StartWithBreaks("1", "1");
  for (const char* path : {"/station/VideoAd/a/", "/station/VideoAd/b/"}) {
    Desk().NextAd();
    EXPECT_EQ(Output().AdPlayer.URL.Get(), path);
    Desk().BreakCount = 0;
  }
  Advance(1min);
  EXPECT_NE(Output().AdPlayer.playState(), 8);
}

TEST_F(VideoBreakTest, WithoutANumberOfAdsThePaneCoversAPausedProgrammeForGood) {
  Ads({"a"});
  StartWithBreaks("", "1");
  Programme();
  Advance(60s);
  EXPECT_TRUE(AdsAired().empty());
  EXPECT_EQ(Desk().BreakCount, 0);
  ExpectBreakForGood();
}

TEST_F(VideoBreakTest, WithoutAnIntervalTheFirstTickStartsABreak) {
  Ads({"a"});
  StartWithBreaks("1", "");
  Advance(1s);
  EXPECT_TRUE(InBreak());
  EXPECT_EQ(AdsAired(), Names{"a"});
}

TEST_F(VideoBreakTest, AProgrammeThatWasStoppedIsStartedByTheEndOfTheBreak) {
  Ads({"a"});
  StartWithBreaks("1", "1");
  Programme();
  Output().Player.controls.stop();
  Advance(60s);
  EXPECT_EQ(MainPlayer().State(), PlayState::kStopped);
  Advance(6s);
  EXPECT_EQ(MainPlayer().State(), PlayState::kPlaying);
}

TEST_F(VideoBreakTest, ABreakKeepsNothingFromStartingAnotherItemBehindIt) {
  Ads({"a"});
  StartWithBreaks("1", "1");
  Programme();
  Advance(60s);
  Output().MainPlay(Clip("news.mp4"));
  Advance(1s);
  EXPECT_TRUE(InBreak());
  EXPECT_EQ(MainPlayer().State(), PlayState::kPlaying);
}

TEST_F(VideoBreakTest, TheCrawlerAndAStreamAreNotTouchedByABreak) {
  Ads({"a"});
  Set("AdSettings", "Show", "True");
  StartWithBreaks("1", "1");
  Output().picOnline.Visible = true;
  Advance(61s);
  EXPECT_TRUE(InBreak());
  EXPECT_TRUE(Output().PicAd.Visible);
  EXPECT_TRUE(Output().Timer1.Enabled);
  EXPECT_TRUE(Output().picOnline.Visible);
}

TEST_F(VideoBreakTest, ANewAdDuringABreakIsCountedAndListedAtOnceAndTheNextIsTheFirst) {
  Ads({"b", "c"});
  StartWithBreaks("2", "1");
  Advance(60s);
  Ad("a");
  Desk().LoadSett();
  EXPECT_EQ(Desk().AdCount, 3);
  EXPECT_EQ(Shown(), (Names{"a", "b", "c"}));
  Advance(6s);
  EXPECT_EQ(AdsAired(), (Names{"b", "a"}));
}

TEST_F(VideoBreakTest, DeletingTheAdOnTheAirStopsThePreviewAlone) {
  Ads({"a", "b"});
  StartWithBreaks("1", "1");
  Desk().ListAd.ClickRow(1);
  Advance(61s);
  sim.dialogs.answers = {Answer::kYes};
  Desk().btnDelete.Press();
  EXPECT_EQ(Shown(), Names{"b"});
  EXPECT_EQ(Output().AdPlayer.playState(), 3);
  EXPECT_EQ(Desk().AdView.playState(), 1);
  Advance(6s);
  EXPECT_FALSE(InBreak());
}

TEST_F(VideoBreakTest, SwitchingOffDuringABreakDoesNotEndItAndItsEndStartsTheCountdownAgain) {
  Ads({"a"});
  StartWithBreaks("1", "1");
  Advance(61s);
  ControlWindow().mnuShowVideoAd.Choose();
  EXPECT_EQ(Setting("VideoAd", "Show"), "False");
  EXPECT_TRUE(InBreak());
  Advance(6s);
  EXPECT_FALSE(InBreak());
  EXPECT_TRUE(Desk().Timer1.Enabled);
  EXPECT_FALSE(ControlWindow().mnuShowVideoAd.Checked);
}

TEST_F(VideoBreakTest, ABreakThatComesWhileTheListIsFilledPlaysWhatIsThere) {
  Ads({"a", "b", "c"});
  StartWithBreaks("1", "1");
  Desk().AdIndex = 2;
  Advance(59s + 500ms);
  sim.time.yieldTakes = 600ms;
  Desk().LoadSett();
  EXPECT_TRUE(InBreak());
  EXPECT_EQ(AdsAired(), Names{"a"});
  EXPECT_EQ(Desk().AdCount, 3);
}

TEST_F(VideoBreakTest, TheCountGoesToThirtyTwoThousandSevenHundredAndSixtySevenAndNoFurther) {
  Ads({"a"});
  Set("VideoAd", "AdTimeCount", "32766");
  StartWithBreaks("1", "999");
  Advance(10s);
  EXPECT_EQ(Count(), "32767");
  EXPECT_EQ(Desk().txtAdTime.Text.Get(), std::to_string(999 * 60 - 32767));
  EXPECT_FALSE(InBreak());
}

TEST_F(VideoBreakTest, TheLongestIntervalThatEverComesToABreakIsFiveHundredAndFortySixMinutes) {
  Ads({"a"});
  StartWithBreaks("1", "546");
  Advance(546min);
  EXPECT_TRUE(InBreak());
}

TEST_F(VideoBreakTest, StoredTextsThatAreNoNumbersOrDoNotFitAreNotTaken) {
  Ads({"a", "b"});
  Set("VideoAd", "AdPlay", "many");
  Set("VideoAd", "AdTime", "99999999999");
  Set("VideoAd", "AdTimeCount", "32768");
  Set("VideoAd", "LastIndex", "1e12");
  EXPECT_EQ(Desk().AdTime, 0);
  EXPECT_EQ(Desk().AdTimeCount, 0);
  EXPECT_EQ(Desk().AdIndex, 0);
  EXPECT_EQ(Desk().CmbAdplay.Text.Get(), "many");
  EXPECT_EQ(Desk().CmbBreak.Text.Get(), "99999999999");
  Set("VideoAd", "AdTime", "7");
  Set("VideoAd", "AdTimeCount", "12");
  Set("VideoAd", "LastIndex", "2 or so");
  Desk().LoadSett();
  EXPECT_EQ(Desk().AdTime, 7);
  EXPECT_EQ(Desk().AdTimeCount, 12);
  EXPECT_EQ(Desk().AdIndex, 120);
  for (const char* text : {"", "soon", "1,5 h"}) {
    Set("VideoAd", "AdTime", text);
    Set("VideoAd", "AdTimeCount", text);
    Set("VideoAd", "LastIndex", "-2");
    Desk().LoadSett();
    EXPECT_EQ(Desk().AdTime, 7) << text;
    EXPECT_EQ(Desk().AdTimeCount, 12) << text;
    EXPECT_EQ(Desk().AdIndex, 120) << text;
  }
}

TEST_F(VideoBreakTest, AnIntervalBeyondAllBoundsIsNeverReached) {
  Ads({"a"});
  StartWithBreaks("1", "2147483647");
  Advance(1h);
  EXPECT_FALSE(InBreak());
  EXPECT_EQ(Desk().txtAdTime.Text.Get(), std::to_string(2147483647LL * 60 - 3600));
}

TEST_F(VideoBreakTest, ANegativeNumberOfAdsCountsAsNoneAndANegativeIntervalAsPast) {
  Ads({"a"});
  StartWithBreaks("-1", "-5");
  Advance(1s);
  EXPECT_TRUE(AdsAired().empty());
  EXPECT_TRUE(InBreak());
}

TEST_F(VideoBreakTest, EachReloadOfTheSettingsAddsTheMinutesOnceMore) {
  Ads({"a", "b"});
  EXPECT_EQ(Desk().CmbBreak.ListCount(), 999);
  EXPECT_EQ(Desk().CmbAdplay.ListCount(), 2);
  Desk().LoadSett();
  EXPECT_EQ(Desk().CmbBreak.ListCount(), 2 * 999);
  EXPECT_EQ(Desk().CmbBreak.List(999), "1");
  EXPECT_EQ(Desk().CmbAdplay.ListCount(), 2);
}

TEST_F(VideoBreakTest, TheStartBringsTheFormToLifeUnseenWhenBreaksAreOn) {
  StartWithBreaks("1", "1");
  ASSERT_TRUE(station.forms.Loaded<frmVideoAdSett>());
  EXPECT_FALSE(Desk().Visible);
  EXPECT_TRUE(ControlWindow().VideoAdShown);
  EXPECT_TRUE(ControlWindow().mnuShowVideoAd.Checked);
  EXPECT_EQ(Timers(Desk()), Names{"Timer1 1000 ms on"});
}

TEST_F(VideoBreakTest, WithoutBreaksTheStartDoesNotMakeTheForm) {
  Set("VideoAd", "Show", "true");  // not the word
  ControlWindow();
  EXPECT_FALSE(station.forms.Loaded<frmVideoAdSett>());
  EXPECT_FALSE(ControlWindow().VideoAdShown);
  EXPECT_EQ(Timers(Desk()), Names{"Timer1 1000 ms"});
}

TEST_F(VideoBreakTest, TheEntryStopsTheCountdownAndGoesOnWithItLater) {
  Ads({"a"});
  StartWithBreaks("1", "1");
  Advance(10s);
  Desk().Show();
  ControlWindow().mnuShowVideoAd.Choose();
  EXPECT_FALSE(Desk().Visible);
  EXPECT_EQ(Setting("VideoAd", "Show"), "False");
  Advance(1min);
  EXPECT_EQ(Count(), "10");
  ControlWindow().mnuShowVideoAd.Choose();
  EXPECT_EQ(Setting("VideoAd", "Show"), "True");
  EXPECT_FALSE(Desk().Visible);
  Advance(1s);
  EXPECT_EQ(Count(), "11");
}

TEST_F(VideoBreakTest, AStartInTheMiddleOfABreakCountsFromZeroWithTheProgrammeOnTheAir) {
  Ads({"a"});
  StartWithBreaks("1", "1");
  Advance(62s);
  EXPECT_EQ(Count(), "0");
  Station next(sim.world, "/station");
  ConnectRoads(next);
  next.forms.Get<frmMid>();
  EXPECT_FALSE(next.forms.Get<frmPlayer>().PicVideoAd.Visible);
  EXPECT_TRUE(next.forms.Get<frmVideoAdSett>().Timer1.Enabled);
  EXPECT_EQ(next.forms.Get<frmVideoAdSett>().AdTimeCount, 0);
}

}  // namespace
