#include "tests/StationTest.h"

using namespace std::chrono_literals;

class SequencerTest : public StationTest {
 protected:
  void Three() { Playlist("Day.plt", {Clip("a.mp4"), Clip("b.mp4"), Clip("c.mp4")}); }
  void Folder(int files) {
    for (int i = 0; i < files; ++i) Clip(std::string(1, static_cast<char>('a' + i)) + ".mp4");
    Set("Playlist", "FolderPath", "/clips");
    Set("Playlist", "PlayLocation", "1");
  }
  // The rows that are selected while `act` runs, one for each time that one is.
  template <class Act>
  std::vector<int> RowsTried(Act act) {
    std::vector<int> tried;
    const auto watching = Playlists().ListPlay.Changed.Subscribe([&](const ListChange& change) {
      if (change.what == ListChange::What::kSelection) tried.push_back(Playlists().ListPlay.SelectedItem());
    });
    act();
    return tried;
  }
  void Call(int times) {
    for (int i = 0; i < times; ++i) {
      Playlists().PlayNext();
      Advance(1s);  // the draw is seeded from the clock
    }
  }
};

TEST_F(SequencerTest, RowsFollowOneAnotherAndTheFirstFollowsTheLast) {
  Three();
  Call(4);
  EXPECT_EQ(Aired(), (Names{"a.mp4", "b.mp4", "c.mp4", "a.mp4"}));
  EXPECT_EQ(Setting("Playlist", "LastIndex"), "0");
}

TEST_F(SequencerTest, TheRowOnTheAirIsSelected) {
  Three();
  Call(2);
  EXPECT_EQ(Playlists().ListPlay.SelectedItem(), 2);
}

TEST_F(SequencerTest, TheCursorKeepsItsNumberWhenAShorterListComesAndStartsAgain) {
  Playlist("Long.plt", {Clip("1.mp4"), Clip("2.mp4"), Clip("3.mp4"), Clip("4.mp4"), Clip("5.mp4")});
  Call(5);
  Three();
  station.stores.PlaylistFile("Day.plt");
  Playlists().LoadPlaylist(Playlists().ListPlay);
  Aired();
  Call(1);
  EXPECT_EQ(Aired(), Names{"a.mp4"});
}

TEST_F(SequencerTest, TheCursorKeepsItsNumberWhenALongerListComesAndGoesOnThere) {
  Playlist("Short.plt", {Clip("1.mp4"), Clip("2.mp4"), Clip("3.mp4"), Clip("4.mp4"), Clip("5.mp4")});
  Call(5);
  std::vector<std::string> nine;
  for (char c = 'a'; c <= 'i'; ++c) nine.push_back(Clip(std::string(1, c) + ".mp4"));
  Playlist("Nine.plt", nine);
  station.stores.PlaylistFile("Nine.plt");
  Playlists().LoadPlaylist(Playlists().ListPlay);
  Aired();
  Call(1);
  EXPECT_EQ(Aired(), Names{"f.mp4"});
}

TEST_F(SequencerTest, ARowInAnotherSpellingThanItsFileGoesOnTheAirAndTheNextFollows) {
  Clip("red.mp4");
  Clip("blue.mp4");
  Playlist("Day.plt", {"/CLIPS/RED.MP4", "\\clips\\Blue.mp4"});
  Set("Playlist", "OneAfterAnother", "1");
  Call(1);
  Advance(15s);
  EXPECT_EQ(Aired(), (Names{"red.mp4", "blue.mp4"}));
}

TEST_F(SequencerTest, AHiddenFileIsInNoListAndIsNeverPlayedFromTheFolder) {
  Folder(2);
  Clip(".a.mp4");
  Clip(".trashed.mp4");
  EXPECT_EQ(sim.files.List("/clips", FileKind::kRegular).size(), 4u);
  Call(3);
  EXPECT_EQ(Playlists().FileList.ListCount(), 2);
  EXPECT_EQ(Aired(), (Names{"b.mp4", "a.mp4", "b.mp4"}));
}

TEST_F(SequencerTest, AMissingRowIsSkippedAndTheCursorStandsAtTheOneThatPlays) {
  Playlist("Day.plt", {Clip("a.mp4"), "/clips/gone.mp4", Clip("c.mp4")});
  Call(2);
  EXPECT_EQ(Aired(), (Names{"a.mp4", "c.mp4"}));
  EXPECT_EQ(Setting("Playlist", "LastIndex"), "2");
  Call(1);
  EXPECT_EQ(Aired(), Names{"a.mp4"});
}

TEST_F(SequencerTest, WhenAllFilesAreMissingOnePassIsMadeAndNothingPlays) {
  Playlist("Day.plt", {"/clips/x.mp4", "/clips/y.mp4", "/clips/z.mp4"});
  Playlists();
  Output();
  Advance(1s);  // past the seek of a form that has just been loaded
  sim.trace.Take();
  EXPECT_EQ(RowsTried([this] { Call(1); }), (std::vector<int>{1, 2, 3}));
  EXPECT_EQ(sim.trace.Take(), Names{});  // neither a file on any player nor a box
}

TEST_F(SequencerTest, WhenAllFilesAreMissingThePassBeginsBehindTheCursorAndWraps) {
  Playlist("Day.plt", {Clip("x.mp4"), Clip("y.mp4"), Clip("z.mp4")});
  Call(1);
  for (const char* name : {"x.mp4", "y.mp4", "z.mp4"}) sim.files.Remove(std::string("/clips/") + name);
  Aired();
  EXPECT_EQ(RowsTried([this] { Call(1); }), (std::vector<int>{2, 3, 1}));
  EXPECT_EQ(Aired(), Names{});
}

TEST_F(SequencerTest, TenThousandMissingFilesAreOnePassToo) {
  std::string text;
  for (int i = 0; i < 10000; ++i) text += "[row " + std::to_string(i) + "]\r\nPath=/clips/none.mp4\r\n";
  sim.files.Put("/station/Playlist/Gone.plt", text);
  Set("Playlist", "LastPlaylist", "Gone.plt");
  EXPECT_EQ(RowsTried([this] { Call(1); }).size(), 10000u);
  EXPECT_EQ(Aired(), Names{});
}

TEST_F(SequencerTest, AnEmptyListPlaysNothingAndWritesNothing) {
  Call(1);
  EXPECT_EQ(Aired(), Names{});
  EXPECT_EQ(Setting("Playlist", "LastIndex"), "(none)");
}

TEST_F(SequencerTest, AMissingRowAsksTheBoxesAnewSoThatATickedFolderTakesOver) {
  Folder(3);
  Playlist("Day.plt", {"/clips/gone.mp4"});
  Playlists().PlayNextSchdule();
  EXPECT_EQ(Aired(), Names{"b.mp4"});
}

TEST_F(SequencerTest, RandomPlayDrawsFromAllRowsAndLeavesTheCursorAlone) {
  Three();
  Playlists().chkRendomPlay.Value = 1;
  Call(60);
  const Names aired = Aired();
  EXPECT_EQ(aired.size(), 60u);
  for (const char* name : {"a.mp4", "b.mp4", "c.mp4"}) EXPECT_NE(std::ranges::count(aired, name), 0) << name;
  EXPECT_EQ(Setting("Playlist", "LastIndex"), "-1");
}

TEST_F(SequencerTest, RandomPlayDoesNotLookWhetherTheFileExists) {
  Playlist("Day.plt", {"/clips/gone.mp4"});
  Playlists().chkRendomPlay.Value = 1;
  Call(1);
  EXPECT_EQ(Aired(), Names{"gone.mp4"});
}

TEST_F(SequencerTest, AFolderBeginsWithItsSecondFileAndWraps) {
  Folder(3);
  Call(4);
  EXPECT_EQ(Aired(), (Names{"b.mp4", "c.mp4", "a.mp4", "b.mp4"}));
  EXPECT_EQ(Setting("Playlist", "LastIndex"), "-1");
  EXPECT_EQ(Setting("Playlist", "LastPlayFolder"), "1");
}

TEST_F(SequencerTest, AFileThatArrivesInTheFolderTakesPartAtOnce) {
  Folder(2);
  Call(1);
  Clip("c.mp4");
  Call(1);
  EXPECT_EQ(Aired(), (Names{"b.mp4", "c.mp4"}));
}

TEST_F(SequencerTest, ARandomFolderNeverDrawsItsLastFile) {
  Folder(3);
  Playlists().chkRendomPlay.Value = 1;
  Call(100);
  const Names aired = Aired();
  EXPECT_EQ(std::ranges::count(aired, "c.mp4"), 0);
  EXPECT_NE(std::ranges::count(aired, "a.mp4"), 0);
  EXPECT_NE(std::ranges::count(aired, "b.mp4"), 0);
}

TEST_F(SequencerTest, ARandomFolderOfTwoFilesAlwaysGivesTheFirst) {
  Folder(2);
  Playlists().chkRendomPlay.Value = 1;
  Call(3);
  EXPECT_EQ(Aired(), (Names{"a.mp4", "a.mp4", "a.mp4"}));
}

TEST_F(SequencerTest, ARandomFolderOfOneFileGivesItEachTime) {
  Folder(1);
  Playlists().chkRendomPlay.Value = 1;
  Call(3);
  EXPECT_EQ(Aired(), (Names{"a.mp4", "a.mp4", "a.mp4"}));
}

TEST_F(SequencerTest, AnEmptyFolderPlaysNothingInEitherMode) {
  Folder(0);
  Call(2);
  Playlists().chkRendomPlay.Value = 1;
  Call(2);
  EXPECT_EQ(Aired(), Names{});
}

TEST_F(SequencerTest, WithPreviewTickedTheFolderPlaysOnThePreviewPlayerAndTheCursorStays) {
  Folder(3);
  Playlists().chkPreview.Value = 1;
  Playlists().PlayNext();
  Playlists().PlayNext();
  Advance(0s);
  const auto lines = sim.trace.Take();
  EXPECT_EQ(std::ranges::count(lines, "frmPlaylist.Player open /clips/b.mp4"), 1);
  EXPECT_EQ(std::ranges::count(lines, "frmPlaylist.Player open /clips/c.mp4"), 1);
  for (const std::string& line : lines) EXPECT_FALSE(line.starts_with("frmPlayer.Player open")) << line;
}

TEST_F(SequencerTest, PreviewDoesNotKeepTheListOffTheAir) {
  Three();
  Playlists().chkPreview.Value = 1;
  Call(1);
  EXPECT_EQ(Aired(), Names{"a.mp4"});
}

TEST_F(SequencerTest, AnItemThatEndsIsFollowedHalfASecondLater) {
  Three();
  Set("Playlist", "OneAfterAnother", "1");
  Playlists();
  Advance(1s);  // past the seek of a form that has just been loaded
  Call(1);
  Advance(9100ms);
  EXPECT_EQ(Aired(), Names{"a.mp4"});
  Advance(300ms);
  EXPECT_EQ(Aired(), Names{});  // the moment of empty output
  Advance(300ms);
  EXPECT_EQ(Aired(), Names{"b.mp4"});
}

TEST_F(SequencerTest, WithOneAfterAnotherClearTheShowStopsAtEachEnd) {
  Three();
  Call(1);
  Advance(60s);
  EXPECT_EQ(Aired(), Names{"a.mp4"});
  EXPECT_FALSE(Output().TimerMedia.Enabled);
  Call(1);
  Advance(60s);
  EXPECT_EQ(Aired(), Names{"b.mp4"});
  EXPECT_FALSE(Output().TimerMedia.Enabled);
}

TEST_F(SequencerTest, ThePlayerThatCannotLoadAFileWaitsUntilSomethingElseStarts) {
  Three();
  Set("Playlist", "OneAfterAnother", "1");
  sim.media.WillNotLoad("/clips/a.mp4");
  Call(1);
  Advance(1h);
  EXPECT_EQ(Aired(), Names{"a.mp4"});
}

TEST_F(SequencerTest, AClickOnARowPutsItOnTheAirAndRemembersItButMovesNoCursor) {
  Three();
  Playlists().ListPlay.ClickRow(3);
  EXPECT_EQ(Aired(), Names{"c.mp4"});
  EXPECT_EQ(Setting("Playlist", "LastPlaySchdule"), "3");
  EXPECT_EQ(Setting("Playlist", "LastPlaylist"), "");  // none is picked in the list of playlists
  Call(1);
  EXPECT_EQ(Aired(), Names{"a.mp4"});
}

TEST_F(SequencerTest, AClickOnARowWithPreviewTickedLeavesTheAirAlone) {
  Three();
  Output().MainPlay("/clips/a.mp4");
  Advance(1s);
  Playlists().chkPreview.Toggle();
  sim.trace.Take();
  Playlists().ListPlay.ClickRow(2);
  Advance(1s);
  EXPECT_EQ(sim.trace.Take(), Names{"frmPlaylist.Player open /clips/b.mp4"});
  EXPECT_EQ(MainPlayer().Url(), "/clips/a.mp4");
  EXPECT_EQ(MainPlayer().State(), PlayState::kPlaying);
  EXPECT_EQ(Setting("Playlist", "LastPlaySchdule"), "(none)");
  EXPECT_EQ(Setting("Playlist", "LastPlaylist"), "Day.plt");
}

TEST_F(SequencerTest, AClickOnARowWhoseFileIsMissingPlaysTheNextInSequence) {
  Playlist("Day.plt", {Clip("a.mp4"), "/clips/gone.mp4"});
  Playlists().ListPlay.ClickRow(2);
  EXPECT_EQ(Aired(), Names{"a.mp4"});
}

TEST_F(SequencerTest, TheQuickListStepsOnThePreviewPlayerAndWraps) {
  for (const char* name : {"a.mp4", "b.mp4"}) Clip(name);
  Set("Playlist", "QuickPlayPath", "/clips");
  Output().MainPlay("/clips/b.mp4");
  Advance(1s);
  sim.trace.Take();
  for (int i = 0; i < 3; ++i) Playlists().Command3.Press();
  Advance(1s);
  EXPECT_EQ(sim.trace.Take(), (Names{"frmPlaylist.Player open /clips/a.mp4", "frmPlaylist.Player open /clips/b.mp4",
                                     "frmPlaylist.Player open /clips/a.mp4"}));
  EXPECT_EQ(MainPlayer().Url(), "/clips/b.mp4");
  EXPECT_EQ(MainPlayer().State(), PlayState::kPlaying);
}

TEST_F(SequencerTest, AClickInTheQuickListSetsItsCursorOnlyWithPreviewTicked) {
  for (const char* name : {"a.mp4", "b.mp4", "c.mp4"}) Clip(name);
  Set("Playlist", "QuickPlayPath", "/clips");
  Playlists().FileQuick.Pick(1);
  Playlists().PlayNextQuick();
  Playlists().chkPreview.Value = 1;
  Playlists().FileQuick.Pick(1);
  Playlists().PlayNextQuick();
  EXPECT_EQ(Opened("frmPlaylist.Player"), (Names{"a.mp4", "c.mp4"}));
}

TEST_F(SequencerTest, TheLeftoverButtonsDoWhatTheyAlwaysDid) {
  Three();
  Playlists().Command2.Press();
  EXPECT_EQ(Aired(), Names{"a.mp4"});
  Playlists().Command1.Press();
  EXPECT_EQ(Opened("frmPlayer.m"), Names{"test.avi"});
  Playlists().Timer2.Enabled = true;
  Advance(5s);
  EXPECT_EQ(Aired(), Names{"b.mp4"});
}

TEST_F(SequencerTest, ATickedFolderPlaysWhateverStandsInTheList) {
  Folder(3);
  Three();
  Call(1);
  EXPECT_EQ(Aired(), Names{"b.mp4"});
}

TEST_F(SequencerTest, ADayOfListPlayKeepsItsOrderAndNeverRests) {
  Three();
  Set("Playlist", "OneAfterAnother", "1");
  Set("Playlist", "LastPlay", "1");
  Set("AdSettings", "Show", "False");
  Call(1);
  Advance(24h);
  const Names aired = Aired();
  // Each item takes its 10 seconds, the moment of opening and the half second between two items.
  EXPECT_NEAR(static_cast<double>(aired.size()), 86400 / 10.52, 2);
  for (std::size_t i = 0; i < aired.size(); ++i) EXPECT_EQ(aired[i], (Names{"a.mp4", "b.mp4", "c.mp4"})[i % 3]) << i;
}
