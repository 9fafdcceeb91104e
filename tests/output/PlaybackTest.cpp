#include "tests/StationTest.h"

using namespace std::chrono_literals;

class PlaybackTest : public StationTest {
 protected:
  // Lets the one seek of a playlist manager that has just been loaded pass.
  void Settle() {
    Playlists();
    Advance(1s);
  }
};

TEST_F(PlaybackTest, MainPlayStartsTheFileAndTheRecorderOfItsPlace) {
  Output().MainPlay(Clip("a.mp4"));
  EXPECT_TRUE(Playlists().Timer4.Enabled);
  Advance(1s);
  EXPECT_EQ(Output().Player.playState(), 3);
  EXPECT_EQ(Output().Player.status(), "Playing");
}

TEST_F(PlaybackTest, TheEndOfAnItemArmsOneTickHalfASecondLater) {
  Settle();
  Output().MainPlay(Clip("a.mp4", 2));
  Advance(2030ms);
  EXPECT_EQ(Output().Player.playState(), 8);
  EXPECT_TRUE(Output().TimerMedia.Enabled);
  Advance(500ms);
  EXPECT_FALSE(Output().TimerMedia.Enabled);
}

TEST_F(PlaybackTest, AStopIsNoEndAndNothingAdvances) {
  Playlist("Day.plt", {Clip("a.mp4"), Clip("b.mp4")});
  Set("Playlist", "OneAfterAnother", "1");
  ControlWindow().ThemedButton5.Press();
  Advance(1s);
  ControlWindow().ThemedButton6.Press();
  Advance(1min);
  EXPECT_EQ(Output().Player.playState(), 1);
  EXPECT_EQ(Aired(), Names{"a.mp4"});
}

TEST_F(PlaybackTest, StartAfterAStopPlaysTheNextItemNotTheStoppedOne) {
  Playlist("Day.plt", {Clip("a.mp4"), Clip("b.mp4")});
  ControlWindow().ThemedButton5.Press();
  ControlWindow().ThemedButton6.Press();
  ControlWindow().ThemedButton5.Press();
  EXPECT_EQ(Aired(), (Names{"a.mp4", "b.mp4"}));
}

TEST_F(PlaybackTest, ANewItemInPlaceOfARunningOneIsNoEnd) {
  Output().MainPlay(Clip("a.mp4", 5));
  Advance(4s);
  Output().MainPlay(Clip("b.mp4", 60));
  Advance(30s);
  EXPECT_FALSE(Output().TimerMedia.Enabled);
  EXPECT_EQ(Output().Player.playState(), 3);
}

TEST_F(PlaybackTest, ASecondEndWithinTheHalfSecondFiresOneTick) {
  int ticks = 0;
  Output().ItemOver.Connect([&ticks] { ++ticks; });
  Output().MainPlay(Clip("a.mp4", 1));
  Advance(1100ms);
  Output().MainPlay(Clip("b.mp4", 0.1));
  Advance(300ms);
  EXPECT_EQ(Output().Player.playState(), 8);
  Advance(10s);
  EXPECT_EQ(ticks, 1);
}

TEST_F(PlaybackTest, ThePausedMainItemCannotEndDuringABreakAndTheEndOfAnAdIsNotItsEnd) {
  Set("VideoAd", "AdPlay", "9");  // or the first ad's end would be the break's
  Settle();
  Output().MainPlay(Clip("a.mp4", 3));
  Advance(1s);
  Output().Player.controls.pause();
  Output().AdPlayer.URL = Clip("ad.mp4", 5);
  int ads = 0;
  Output().VideoAdOver.Connect([&ads] { ++ads; });
  Advance(20s);
  EXPECT_EQ(ads, 1);
  EXPECT_FALSE(Output().TimerMedia.Enabled);
  EXPECT_NEAR(Output().Player.controls.currentPosition(), 0.98, 0.01);
  Output().Player.controls.play();
  Advance(1900ms);
  EXPECT_EQ(Output().Player.playState(), 3);
  Advance(200ms);
  EXPECT_EQ(Output().Player.playState(), 8);
}

TEST_F(PlaybackTest, TheTickAfterAnEndRunsWhileADialogStands) {
  Playlist("Day.plt", {Clip("a.mp4", 2), Clip("b.mp4", 2)});
  Set("Playlist", "OneAfterAnother", "1");
  ControlWindow().ThemedButton5.Press();
  sim.dialogs.whileStanding = [this] { Advance(3s); };
  sim.desktop.PressCtrl('X');
  EXPECT_EQ(Aired(), (Names{"a.mp4", "b.mp4"}));
}

TEST_F(PlaybackTest, AnUnloadStopsPictureAndSoundAtOnceAndAFreshWindowIsIdle) {
  Output().MainPlay(Clip("a.mp4"));
  Advance(1s);
  station.forms.Unload<frmPlayer>();
  EXPECT_EQ(sim.media.Find("frmPlayer.Player"), nullptr);
  EXPECT_EQ(Output().Player.playState(), 0);
  Advance(1min);
  Output().MainPlay(Clip("b.mp4"));
  EXPECT_EQ(Aired(), (Names{"a.mp4", "b.mp4"}));
}

TEST_F(PlaybackTest, ASeekBeforeTheFileIsOpenIsKeptUntilItIs) {
  Settle();
  Output().MainPlay(Clip("a.mp4", 60));
  Output().Player.controls.SetCurrentPosition(30);
  Advance(1020ms);
  EXPECT_NEAR(Output().Player.controls.currentPosition(), 31, 0.001);
}

TEST_F(PlaybackTest, TheSliderTakesItsRangeAsSoonAsTheItemIsOpen) {
  Playlists();
  Output().MainPlay(Clip("a.mp4", 61.9));
  Advance(50ms);
  EXPECT_EQ(Playlists().SldPlayer.Max.Get(), 61);
}

TEST_F(PlaybackTest, WithNothingLoadedTheSliderIsLeftAlone) {
  Playlists().SldPlayer.Max = 33;
  Advance(3s);
  EXPECT_EQ(Playlists().SldPlayer.Max.Get(), 33);
}

TEST_F(PlaybackTest, TheTimerThatNothingStartsAsksForTheNextItemInTheLastTwentyFiveSeconds) {
  Settle();
  int asked = 0;
  Output().ItemNearlyOver.Connect([&asked] { ++asked; });
  Output().MainPlay(Clip("a.mp4", 60));
  Advance(1s);
  Output().Timer2.Enabled = true;
  Advance(34s);
  EXPECT_EQ(asked, 0);
  Advance(40ms);
  EXPECT_GT(asked, 0);
}

TEST_F(PlaybackTest, WithNothingLoadedThatTimersTestFailsAndCountsAsHeld) {
  Playlist("Day.plt", {Clip("a.mp4")});
  Output().Timer2.Enabled = true;
  Advance(20ms);
  EXPECT_EQ(Aired(), Names{"a.mp4"});
}
