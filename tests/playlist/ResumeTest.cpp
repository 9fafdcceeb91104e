#include <limits>

#include "tests/StationTest.h"

using namespace std::chrono_literals;

class ResumeTest : public StationTest {
 protected:
  void Three() { Playlist("Day.plt", {Clip("a.mp4", 100), Clip("b.mp4", 100), Clip("c.mp4", 100)}); }
  // A power cut, and the next start with the same disk.
  void Restart() {
    next = std::make_unique<Station>(sim.world, "/station");
    ConnectRoads(*next);
    sim.trace.Take();
    next->forms.Get<frmMid>();
  }
  frmPlaylist& NextPlaylists() { return next->forms.Get<frmPlaylist>(); }
  frmPlayer& NextOutput() { return next->forms.Get<frmPlayer>(); }

  std::unique_ptr<Station> next;
};

TEST_F(ResumeTest, TheRowAndThePlaceAreRecordedEachSecondWhileTheBoxIsTicked) {
  Three();
  Set("Playlist", "LastPlay", "1");
  Playlists().PlayNext();
  Advance(3500ms);
  EXPECT_EQ(Setting("Playlist", "LastPlaySchdule"), "1");
  EXPECT_EQ(Setting("Playlist", "LastPositionSchdule"), "2.5");  // half a second after the load the form sought to 0
  EXPECT_EQ(Playlists().SldPlayer.Value.Get(), 2);
}

TEST_F(ResumeTest, WithTheBoxClearTheSettingsAreLeftAloneAndTheSliderStillMoves) {
  Three();
  Playlists().PlayNext();
  const auto before = sim.files.Read("/station/Settings.ini");
  Advance(10s);
  EXPECT_EQ(sim.files.Read("/station/Settings.ini"), before);
  EXPECT_EQ(Playlists().SldPlayer.Value.Get(), 9);
}

TEST_F(ResumeTest, AfterAPowerCutTheSameRowPlaysFromTheSamePlace) {
  Three();
  Set("Playlist", "LastPlay", "1");
  Playlists().ListPlay.ClickRow(2);
  Set("Playlist", "LastPlaylist", "Day.plt");
  Advance(42s);
  Restart();
  EXPECT_EQ(Aired(), Names{"b.mp4"});
  EXPECT_EQ(NextPlaylists().ListPlay.SelectedItem(), 2);
  Advance(1s);
  EXPECT_NEAR(NextOutput().Player.controls.currentPosition(), 41.98 + 0.5, 1);
}

TEST_F(ResumeTest, AfterARestoredRowTheSequenceBeginsWithTheFirst) {
  Three();
  Set("Playlist", "LastPlay", "1");
  Set("Playlist", "LastPlaySchdule", "2");
  Restart();
  NextPlaylists().PlayNext();
  EXPECT_EQ(Aired(), (Names{"b.mp4", "a.mp4"}));
}

TEST_F(ResumeTest, TheRestoredRowIsGivenToThePlayerWithoutATestForItsFile) {
  Three();
  Set("Playlist", "LastPlay", "1");
  Set("Playlist", "LastPlaySchdule", "2");
  sim.files.Remove("/clips/b.mp4");
  Restart();
  Advance(10s);
  EXPECT_EQ(Aired(), Names{"b.mp4"});
}

TEST_F(ResumeTest, WithoutARecordedRowNothingStarts) {
  Three();
  Set("Playlist", "LastPlay", "1");
  Restart();
  Advance(5s);
  EXPECT_EQ(Aired(), Names{});
}

TEST_F(ResumeTest, ARowThatIsNoNumberStartsNothing) {
  Three();
  Set("Playlist", "LastPlay", "1");
  for (const char* row : {"x", "-1", "4", "99999999999999999999"}) {
    Set("Playlist", "LastPlaySchdule", row);
    Restart();
    EXPECT_EQ(Aired(), Names{}) << row;
  }
}

TEST_F(ResumeTest, AFolderComesBackAtItsFileAndAnEmptyIndexIsTheFirst) {
  for (const char* name : {"a.mp4", "b.mp4", "c.mp4"}) Clip(name);
  Set("Playlist", "FolderPath", "/clips");
  Set("Playlist", "PlayLocation", "1");
  Set("Playlist", "LastPlay", "1");
  Restart();
  EXPECT_EQ(Aired(), Names{"a.mp4"});
  Set("Playlist", "LastPlayFolder", "2");
  Restart();
  EXPECT_EQ(Aired(), Names{"c.mp4"});
  NextPlaylists().PlayNext();
  EXPECT_EQ(Aired(), Names{"a.mp4"});
}

TEST_F(ResumeTest, FolderPlayRecordsItsOwnPositionAndTheSelectedRowLessOne) {
  for (const char* name : {"a.mp4", "b.mp4"}) Clip(name, 100);
  Three();
  Set("Playlist", "FolderPath", "/clips");
  Set("Playlist", "PlayLocation", "1");
  Set("Playlist", "LastPlay", "1");
  Playlists().ListPlay.Select(3);
  Playlists().PlayNext();
  Advance(5100ms);
  EXPECT_EQ(Setting("Playlist", "LastPosition"), "4.5");
  EXPECT_EQ(Setting("Playlist", "LastIndex"), "2");
  EXPECT_EQ(Setting("Playlist", "LastPositionSchdule"), "(none)");
}

TEST_F(ResumeTest, WithNoRowSelectedTheRowKeyKeepsWhatItHas) {
  Set("Playlist", "LastPlay", "1");
  Playlists();
  Set("Playlist", "LastPlaySchdule", "7");
  Output().MainPlay(Clip("a.mp4"));
  Advance(3s);
  EXPECT_EQ(Setting("Playlist", "LastPlaySchdule"), "7");
}

TEST_F(ResumeTest, TheSeekComesOnceHalfASecondAfterTheLoad) {
  Set("Playlist", "LastPositionSchdule", "30");
  Playlists();
  Output().MainPlay(Clip("a.mp4", 100));
  Advance(400ms);
  EXPECT_LT(Output().Player.controls.currentPosition(), 1);
  Advance(200ms);
  EXPECT_GT(Output().Player.controls.currentPosition(), 29);
  EXPECT_FALSE(Playlists().Timer5.Enabled);
}

TEST_F(ResumeTest, AFormThatIsLoadedLateByTheFirstItemSeeksInIt) {
  Set("Playlist", "LastPositionSchdule", "30");
  Output();
  Advance(1h);
  Output().MainPlay(Clip("a.mp4", 100));
  Advance(600ms);
  EXPECT_NEAR(Output().Player.controls.currentPosition(), 30.1, 0.01);
}

TEST_F(ResumeTest, ThePositionKeyIsNotClearedWhenAnItemEndsOrBegins) {
  Playlist("Day.plt", {Clip("a.mp4", 20), Clip("b.mp4", 100)});
  Set("Playlist", "LastPlay", "1");
  Set("Playlist", "OneAfterAnother", "1");
  Playlists();
  Advance(900ms);
  Playlists().PlayNext();
  Advance(20700ms);  // the next item has begun; its first second is not recorded yet
  EXPECT_EQ(Aired(), (Names{"a.mp4", "b.mp4"}));
  EXPECT_EQ(Setting("Playlist", "LastPositionSchdule"), "19.98");
  EXPECT_EQ(Setting("Playlist", "LastPlaySchdule"), "1");
}

TEST_F(ResumeTest, APositionBeyondTheEndOrOfNoNumberIsNoMessage) {
  Three();
  Set("Playlist", "LastPlay", "1");
  Set("Playlist", "LastPlaySchdule", "1");
  for (const char* position : {"1e300", "x", "-5", ""}) {
    Set("Playlist", "LastPositionSchdule", position);
    Restart();
    Advance(3s);
    for (const std::string& line : sim.trace.Take()) EXPECT_FALSE(line.starts_with("box")) << line;
  }
}

TEST_F(ResumeTest, APositionBeyondAllNumbersIsBeyondTheEnd) {
  for (const char* position : {"1e300", "99999999999999999999", "-1e300"}) {
    Three();
    Set("Playlist", "LastPlay", "1");
    Set("Playlist", "LastPlaySchdule", "2");
    Set("Playlist", "LastPositionSchdule", position);
    Restart();
    Advance(3s);
    const bool fromTheStart = position[0] == '-';
    EXPECT_EQ(NextOutput().Player.playState(), fromTheStart ? 3 : 8) << position;
  }
}

TEST_F(ResumeTest, APositionBeyondAllNumbersInAStreamPutsTheSliderAtItsEnd) {
  Playlist("Day.plt", {Clip("endless", 0)});
  Set("Playlist", "LastPlay", "1");
  Set("Playlist", "LastPlaySchdule", "1");
  Set("Playlist", "LastPositionSchdule", "1e300");
  Restart();
  Advance(3s);
  EXPECT_EQ(NextPlaylists().SldPlayer.Value.Get(), std::numeric_limits<int>::max());
}

TEST_F(ResumeTest, ARowBeyondAllNumbersStartsNothing) {
  for (const char* row : {"1e300", "-1e300", "4294967298"}) {
    Three();
    Set("Playlist", "LastPlay", "1");
    Set("Playlist", "LastPlaySchdule", row);
    Restart();
    Advance(3s);
    EXPECT_EQ(Aired(), Names{}) << row;
  }
}

TEST_F(ResumeTest, AChosenFilesDurationIsProbedOnThePreviewPlayer) {
  Clip("My clip.final.mp4", 205.4);
  Set("Playlist", "FolderPath", "/clips");
  Playlists().TP.Value = {.hour = 7};
  Playlists().FileList.Pick(0);
  EXPECT_EQ(Playlists().txtDuration.Text.Get(), "0:0:0");  // not opened yet
  EXPECT_EQ(Playlists().txtFilename.Text.Get(), "My clip.final");
  Playlists().btnAdd.Enabled = false;
  Advance(200ms);
  EXPECT_EQ(Playlists().txtDuration.Text.Get(), "0:3:25");
  EXPECT_EQ(Playlists().txtEndTime.Text.Get(), "07:03:25 AM");
  EXPECT_TRUE(Playlists().btnAdd.Enabled);
  EXPECT_EQ(Opened("frmPlaylist.Player"), Names{"My clip.final.mp4"});
}

TEST_F(ResumeTest, TheProbeNeverStopsAndASecondSelectionJustChangesWhatItReports) {
  Clip("a.mp4", 60);
  Clip("b.mp4", 120);
  Set("Playlist", "FolderPath", "/clips");
  Playlists().TP.Value = {.hour = 7};
  Playlists().FileList.Pick(0);
  Advance(1min);
  EXPECT_TRUE(Playlists().TimerGetDuration.Enabled);
  Playlists().FileList.Pick(1);
  Advance(200ms);
  EXPECT_EQ(Playlists().txtDuration.Text.Get(), "0:2:0");
  Playlists().txtEndTime.Type("typed over");
  Advance(100ms);
  EXPECT_EQ(Playlists().txtEndTime.Text.Get(), "07:02:00 AM");
}

TEST_F(ResumeTest, TheProbeGoesOnBehindTheEndOfThePreviewedClip) {
  Clip("a.mp4", 60);
  Set("Playlist", "FolderPath", "/clips");
  Playlists().TP.Value = {.hour = 7};
  Playlists().FileList.Pick(0);
  Advance(70s);
  ASSERT_EQ(sim.media.Find("frmPlaylist.Player")->State(), PlayState::kMediaEnded);
  Playlists().txtDuration.Type("typed over");
  Playlists().txtEndTime.Type("typed over");
  Advance(100ms);
  EXPECT_EQ(Playlists().txtDuration.Text.Get(), "0:1:0");
  EXPECT_EQ(Playlists().txtEndTime.Text.Get(), "07:01:00 AM");
}

TEST_F(ResumeTest, AChangeOfTheStartTimeRunsTheProbeAnew) {
  Clip("a.mp4", 60);
  Set("Playlist", "FolderPath", "/clips");
  Playlists().FileList.Pick(0);
  Advance(200ms);
  Aired();
  Playlists().TP.Value = {.hour = 9};
  EXPECT_EQ(Opened("frmPlaylist.Player"), Names{"a.mp4"});
  Advance(200ms);
  EXPECT_EQ(Playlists().txtEndTime.Text.Get(), "09:01:00 AM");
}

TEST_F(ResumeTest, InFolderPlayAChangeOfTheStartTimeStartsTheSelectedFileOnTheAir) {
  Clip("a.mp4", 60);
  Set("Playlist", "FolderPath", "/clips");
  Set("Playlist", "PlayLocation", "1");
  Playlists().FileList.Pick(0);
  Aired();
  Playlists().TP.Value = {.hour = 9};
  EXPECT_EQ(Aired(), Names{"a.mp4"});
}

TEST_F(ResumeTest, WithNoFileSelectedAChangeOfTheStartTimeTouchesNothingOnTheAir) {
  Set("Playlist", "FolderPath", "/clips");
  Set("Playlist", "PlayLocation", "1");
  Playlists().TP.Value = {.hour = 9};
  EXPECT_EQ(Aired(), Names{});
}

TEST_F(ResumeTest, AStreamWithoutAnEndHasNoDuration) {
  Clip("live.ts", 0);
  Set("Playlist", "FolderPath", "/clips");
  Playlists().TP.Value = {.hour = 7};
  Playlists().FileList.Pick(0);
  Advance(1s);
  EXPECT_EQ(Playlists().txtDuration.Text.Get(), "0:0:0");
  EXPECT_EQ(Playlists().txtEndTime.Text.Get(), "07:00:00 AM");
}
