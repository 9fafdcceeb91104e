#include "tests/StationTest.h"

using namespace std::chrono_literals;

class EditingTest : public StationTest {
 protected:
  // The desk with an empty playlist picked and two clips to add.
  void Desk() {
    Clip("a.mp4", 10);
    Clip("b.mp4", 20);
    sim.files.Put("/station/Playlist/Day.plt", "");
    Set("Playlist", "FolderPath", "/clips");
    Playlists().FilePlaylist.Pick(0);
    Playlists().TP.Value = {.hour = 7};
    Playlists().FileList.Pick(0);
    Advance(200ms);
  }
  // A picked playlist of rows named after their clips, of which some are selected.
  void Rows(const std::string& names, const std::vector<int>& selected) {
    std::string text;
    for (const char name : names) text += "[" + std::string(1, name) + "]\r\nPath=/clips/" + name + "\r\n";
    sim.files.Put("/station/Playlist/Day.plt", text);
    Playlists().FilePlaylist.Refresh();
    Playlists().FilePlaylist.Pick(0);
    Playlists().ListPlay.SelectRows(selected, selected.empty() ? 0 : selected.back());
  }
  std::string Order() {
    std::string order;
    for (const ListRow& row : Playlists().ListPlay.Rows()) order += row.selected ? "(" + row.text + ")" : row.text;
    return order;
  }
  Names Combo() {
    Names names;
    for (int i = 0; i < Playlists().cmbPlaylist.ListCount(); ++i) names.push_back(Playlists().cmbPlaylist.List(i));
    return names;
  }
  std::string File() { return sim.files.Read("/station/Playlist/Day.plt").value_or("(none)"); }
  bool Said(const std::string& line) { return std::ranges::count(sim.trace.Take(), line) > 0; }
};

TEST_F(EditingTest, EntriesFollowOneAnotherWithTheNextStartOneSecondAfterTheEnd) {
  Desk();
  Playlists().btnAdd.Press();
  Playlists().FileList.Pick(1);
  Advance(200ms);
  Playlists().btnAdd.Press();
  EXPECT_EQ(File(),
            "[07:00:00 AM]\r\nFileName=a\r\nDuration=0:0:10\r\nEndTime=07:00:10 AM\r\nPath=/clips/a.mp4\r\n\r\n"
            "[07:00:11 AM]\r\nFileName=b\r\nDuration=0:0:20\r\nEndTime=07:00:31 AM\r\nPath=/clips/b.mp4\r\n");
  EXPECT_EQ(Playlists().ListPlay.Count(), 2);
  EXPECT_EQ(Playlists().TP.Value.Get().second, 32);
}

TEST_F(EditingTest, AStartTimeThatIsTakenLeavesTheFileAndSelectsTheRow) {
  Desk();
  Playlists().btnAdd.Press();
  const std::string before = File();
  Playlists().TP.Value = {.hour = 7};
  sim.trace.Take();
  Playlists().btnAdd.Press();
  EXPECT_TRUE(Said("box \"07:00:00 AM already allocated as Play Time, please chose a different time\" \"Playlist\""));
  EXPECT_EQ(File(), before);
  EXPECT_EQ(Playlists().ListPlay.SelectedItem(), 1);
  EXPECT_EQ(sim.windows.focus, "frmPlaylist.ListPlay");
}

TEST_F(EditingTest, AStartTimeWithAWordBehindItTakesNoStartTime) {
  Desk();
  sim.files.Put("/station/Playlist/Day.plt", "[07:00:00 AM news]\r\nPath=/clips/b.mp4\r\n");
  Playlists().FilePlaylist.Pick(0);
  Playlists().btnAdd.Press();
  ASSERT_EQ(Playlists().ListPlay.Count(), 2);
  EXPECT_EQ(Playlists().ListPlay.Row(2).text, "07:00:00 AM");
}

TEST_F(EditingTest, TheStartTimeWrapsPastMidnight) {
  Desk();
  Playlists().txtEndTime.Type("11:59:50 PM");
  Playlists().btnAdd.Press();
  EXPECT_EQ(Playlists().TP.Value.Get(), (DateTime{.hour = 23, .minute = 59, .second = 51}));
  Playlists().txtEndTime.Type("11:59:59 PM");
  Playlists().btnAdd.Press();
  EXPECT_EQ(Playlists().TP.Value.Get(), DateTime{});
}

TEST_F(EditingTest, AnEndTimeOfNoTimeIsStoredAndLeavesTheStartTime) {
  Desk();
  const DateTime start{.hour = 9, .minute = 8, .second = 7};
  Playlists().TP.Value = start;
  Advance(200ms);
  Playlists().txtEndTime.Type("later");
  sim.trace.Take();
  Playlists().btnAdd.Press();
  EXPECT_EQ(File(), "[09:08:07 AM]\r\nFileName=a\r\nDuration=0:0:10\r\nEndTime=later\r\nPath=/clips/a.mp4\r\n");
  EXPECT_EQ(Playlists().TP.Value.Get(), start);
  ASSERT_EQ(Playlists().ListPlay.Count(), 1);  // shown all the same
  EXPECT_EQ(Playlists().ListPlay.Row(1).SubItem(2), "later");
  EXPECT_EQ(sim.trace.Take(), Names{});  // no box, and no new start time that would have run the probe anew
}

TEST_F(EditingTest, ANewEntryIsTheLastRowWhereverItsTimeFalls) {
  Desk();
  Playlists().btnAdd.Press();
  Playlists().TP.Value = {.hour = 6};
  Playlists().btnAdd.Press();
  EXPECT_EQ(Playlists().ListPlay.Row(2).text, "06:00:00 AM");
}

TEST_F(EditingTest, AnEntryIsRemovedAfterAYesOnly) {
  Rows("abc", {2});
  Playlists().cmdRemove.Press();
  EXPECT_TRUE(Said("box \"Are You Sure you wnat to Delete this pgogram from playlist?\" \"DELETE\""));
  EXPECT_EQ(Order(), "a(b)c");
  sim.dialogs.answers = {Answer::kYes};
  Playlists().cmdRemove.Press();
  EXPECT_EQ(Order(), "a(c)");
  EXPECT_EQ(File().find("[b]"), std::string::npos);
}

TEST_F(EditingTest, ARemoveWithNoPlaylistPickedEmptiesTheListOnTheScreen) {
  Playlist("Day.plt", {Clip("a.mp4"), Clip("b.mp4")});
  Playlists().ListPlay.Select(1);
  sim.dialogs.answers = {Answer::kYes};
  Playlists().cmdRemove.Press();
  EXPECT_EQ(Playlists().ListPlay.Count(), 0);
  EXPECT_EQ(File().find("a.mp4"), std::string::npos);
  EXPECT_NE(File().find("b.mp4"), std::string::npos);
}

TEST_F(EditingTest, ARemoveOnAnEmptyListIsAFailureThatTheOperatorSeesAndTheStationSurvives) {
  Rows("", {});
  sim.dialogs.answers = {Answer::kYes};
  sim.trace.Take();
  Playlists().cmdRemove.Press();
  EXPECT_EQ(sim.trace.Lines().size(), 2u);
  EXPECT_TRUE(sim.trace.Lines().back().ends_with("\"Corvanta 6.0\""));
}

// A playlist of two rows at 07:00:01 and 07:00:02, the second of which the operator is asked about.
TEST_F(EditingTest, ARowThatComesDueWhileTheQuestionStandsIsNotTheOneThatGoes) {
  Playlist("Day.plt", {Clip("a.mp4"), Clip("b.mp4")});
  Set("Playlist", "TimeON", "1");
  Playlists().FilePlaylist.Pick(0);
  Playlists().ListPlay.SelectRows({2}, 2);
  sim.dialogs.answers = {Answer::kYes};
  sim.dialogs.whileStanding = [&] {
    Advance(1500ms);
    ASSERT_EQ(Playlists().ListPlay.SelectedItem(), 1);
  };
  Playlists().cmdRemove.Press();
  ASSERT_EQ(Playlists().ListPlay.Count(), 1);
  EXPECT_EQ(Playlists().ListPlay.Row(1).text, "07:00:01 AM");
}

TEST_F(EditingTest, AListThatIsExchangedWhileTheQuestionStandsLosesNoRow) {
  Playlist("Morning.plt", {Clip("x.mp4"), Clip("y.mp4")});
  Playlist("Day.plt", {Clip("a.mp4"), Clip("b.mp4")});
  sim.files.Put("/station/Schedule.ini", "[11/15/2026-07:00:05 AM]\r\nPlaylistName=Morning.plt\r\n");
  Set("Playlist", "DaySchdule", "1");
  Playlists().FilePlaylist.Pick(0);
  Playlists().ListPlay.SelectRows({1}, 1);
  const std::string day = sim.files.Read("/station/Playlist/Day.plt").value();
  const std::string morning = sim.files.Read("/station/Playlist/Morning.plt").value();
  sim.dialogs.answers = {Answer::kYes};
  sim.dialogs.whileStanding = [&] { Advance(10s); };
  Playlists().cmdRemove.Press();
  EXPECT_EQ(sim.files.Read("/station/Playlist/Day.plt"), day);
  EXPECT_EQ(sim.files.Read("/station/Playlist/Morning.plt"), morning);
  EXPECT_EQ(Playlists().ListPlay.Row(1).SubItem(4), "/clips/x.mp4") << "the schedule's list stays";
}

TEST_F(EditingTest, UpMovesEachSelectedRowOnePlace) {
  Rows("abcde", {3, 5});
  Playlists().btnUp.Press();
  EXPECT_EQ(Order(), "a(c)b(e)d");
}

TEST_F(EditingTest, ABlockAtTheTopStaysAndARowFurtherDownMovesUp) {
  Rows("abcde", {1, 2, 5});
  Playlists().btnUp.Press();
  EXPECT_EQ(Order(), "(a)(b)c(e)d");
}

TEST_F(EditingTest, DownMovesEachSelectedRowOnePlace) {
  Rows("abcde", {1, 3});
  Playlists().btnDown.Press();
  EXPECT_EQ(Order(), "b(a)d(c)e");
}

TEST_F(EditingTest, ABlockAtTheBottomStaysWhenItIsMovedDown) {
  Rows("abcde", {2, 4, 5});
  Playlists().btnDown.Press();
  EXPECT_EQ(Order(), "ac(b)(d)(e)");
}

TEST_F(EditingTest, TopReversesABlockOfSeveralRows) {
  Rows("abcde", {3, 4});
  Playlists().btnMostUp.Press();
  EXPECT_EQ(Order(), "(d)(c)abe");
}

TEST_F(EditingTest, BottomReversesABlockOfSeveralRows) {
  Rows("abcde", {2, 3});
  Playlists().btnMostDown.Press();
  EXPECT_EQ(Order(), "ade(c)(b)");
}

TEST_F(EditingTest, AMoveWritesTheFileInTheNewOrderAndKeepsTheWholeRow) {
  Rows("abc", {3});
  Playlists().btnMostUp.Press();
  EXPECT_EQ(Playlists().ListPlay.Row(1).SubItem(4), "/clips/c");
  EXPECT_LT(File().find("[c]"), File().find("[a]"));
}

TEST_F(EditingTest, AMovedRowKeepsItsTagItsKeyAndItsTickAndShowsTheFirstIconWhicheverWayItGoes) {
  const ListRow row{.text = "b",
                    .subItems = {"0:0:1", "07:00:01 AM", "name", "/clips/b"},
                    .smallIcon = 2,
                    .selected = true,
                    .checked = true,
                    .tag = "tag",
                    .key = "key"};
  ListRow moved = row;
  moved.smallIcon = 1;
  frmPlaylist& form = Playlists();
  const std::pair<CommandButton*, int> moves[] = {
      {&form.btnUp, 2}, {&form.btnDown, 4}, {&form.btnMostUp, 1}, {&form.btnMostDown, 5}};
  for (const auto& [button, place] : moves) {
    Rows("aacdd", {});
    form.ListPlay.Remove(3);
    form.ListPlay.Insert(3, row);
    button->Press();
    EXPECT_EQ(form.ListPlay.Row(place), moved) << button->Name();
    EXPECT_EQ(form.ListPlay.SelectedItem(), place) << button->Name();
    EXPECT_EQ(form.ListPlay.Count(), 5) << button->Name();
  }
}

TEST_F(EditingTest, WithNothingSelectedAMoveOnlyRewritesTheFile) {
  Rows("ab", {});
  Playlists().btnDown.Press();
  EXPECT_EQ(Order(), "ab");
  EXPECT_EQ(File().find("\r\n[a]\r\nDuration="), 0u);
}

TEST_F(EditingTest, AnEntryAddedAfterAMoveDoesNotBringTheOldOrderBack) {
  Desk();
  Rows("abc", {3});
  Playlists().btnMostUp.Press();
  Playlists().btnAdd.Press();
  EXPECT_EQ(Order(), "(c)ab07:00:00 AM");
}

TEST_F(EditingTest, APlaylistIsMadeEmptyAndListed) {
  sim.dialogs.inputs = {"Evening"};
  Playlists().btnCreateList.Press();
  EXPECT_TRUE(Said("input \"Pleasr enter Playlist name\" \"Playlist\""));
  EXPECT_EQ(sim.files.Read("/station/Playlist/Evening.plt"), "");
  EXPECT_EQ(Playlists().FilePlaylist.ListCount(), 1);
  EXPECT_EQ(Playlists().cmbPlaylist.List(0), "Evening.plt");
}

TEST_F(EditingTest, ACancelledNameMakesNoPlaylist) {
  Playlists().btnCreateList.Press();
  EXPECT_EQ(Playlists().FilePlaylist.ListCount(), 0);
}

TEST_F(EditingTest, ATakenNameIsToldAndTheOldPlaylistStays) {
  sim.files.Put("/station/Playlist/Day.plt", "[a]\r\n");
  sim.dialogs.inputs = {"day"};
  Playlists().btnCreateList.Press();
  EXPECT_TRUE(
      Said("box \"There is already a playlist with the same name. Please choose a different playlist name.\" "
           "\"Playlist\""));
  EXPECT_EQ(File(), "[a]\r\n");
}

TEST_F(EditingTest, APlaylistIsDeletedAfterAYesItsRowsStayAndTheComboKeepsItsName) {
  sim.files.Put("/station/Playlist/Evening.plt", "");
  Rows("ab", {});
  Playlists().btnDeletePlaylist.Press();
  EXPECT_TRUE(Said("box \"Are You Sure you wnat to Delete this playlist?\" \"DELETE\""));
  EXPECT_EQ(Playlists().FilePlaylist.ListCount(), 2);
  EXPECT_EQ(Combo(), (Names{"Day.plt", "Evening.plt"}));
  sim.dialogs.answers = {Answer::kYes};
  Playlists().btnDeletePlaylist.Press();
  EXPECT_EQ(File(), "(none)");
  EXPECT_EQ(Order(), "ab");
  EXPECT_EQ(Playlists().FilePlaylist.ListCount(), 1);
  EXPECT_EQ(Playlists().FilePlaylist.List(0), "Evening.plt");
  EXPECT_EQ(Combo(), (Names{"Day.plt", "Evening.plt", "Evening.plt"}));  // what is left is added once more
  EXPECT_EQ(station.stores.PlaylistIni.Path(), "/station/Playlist/Day.plt");
}

TEST_F(EditingTest, WithNothingPickedRemovePlaylistDeletesNothingAndSetToPlayWritesTheEmptyText) {
  Playlist("Day.plt", {});
  Playlists();
  sim.dialogs.answers = {Answer::kYes};
  Playlists().btnDeletePlaylist.Press();
  EXPECT_EQ(Playlists().FilePlaylist.ListCount(), 1);
  Playlists().ThemedButton1.Press();
  EXPECT_EQ(Setting("Playlist", "LastPlaylist"), "");
}

TEST_F(EditingTest, TheSliderSeeksOnTheAir) {
  Playlist("Day.plt", {Clip("a.mp4", 100)});
  Playlists().PlayNext();
  Advance(2s);
  Playlists().SldPlayer.Work(60);
  EXPECT_EQ(Output().Player.controls.currentPosition(), 60);
}

TEST_F(EditingTest, TheSliderWithNothingLoadedDoesNothing) {
  Playlists().SldPlayer.Work(5);
  Output().MainPlay(Clip("a.mp4", 100));
  Advance(1s);
  EXPECT_LT(Output().Player.controls.currentPosition(), 1.1);
}

TEST_F(EditingTest, SearchEntrySelectsTheFirstRowThatBeginsWithTheTextAndSaysNothingOtherwise) {
  Rows("abc", {});
  Playlists().ListPlay.Add({.text = "Morning show", .subItems = {}});
  sim.trace.Take();
  Playlists().SearchEntry(Playlists().ListPlay, "morn");
  EXPECT_EQ(Playlists().ListPlay.SelectedItem(), 4);
  Playlists().SearchEntry(Playlists().ListPlay, "evening");
  EXPECT_EQ(Playlists().ListPlay.SelectedItem(), 4);
  EXPECT_EQ(sim.trace.Take(), Names{});
}

TEST_F(EditingTest, NamesWithEveryCharacterAFileMayHaveAreAddedAndPlayed) {
  Desk();
  const std::vector<std::string> names = {
      "a=b.mp4",        "[x].mp4",       "100%.mp4",  "two  blanks.mp4", "\xC3\xA9t\xC3\xA9.mp4",
      "semi;colon.mp4", "'quotes\".mp4", "#hash.mp4", "back\\slash.mp4"};
  for (const std::string& name : names) Clip(name, 3);
  Playlists().FileList.Refresh();
  int minute = 0;
  for (const std::string& name : names) {
    for (int index = 0; index < Playlists().FileList.ListCount(); ++index) {
      if (Playlists().FileList.List(index) == name) Playlists().FileList.ListIndex = index;
    }
    Playlists().TP.Value = {.hour = 8, .minute = ++minute};
    Playlists().btnAdd.Press();
  }
  ASSERT_EQ(Playlists().ListPlay.Count(), static_cast<int>(names.size()));
  for (std::size_t i = 0; i < names.size(); ++i) {
    EXPECT_EQ(Playlists().ListPlay.Row(static_cast<int>(i) + 1).SubItem(4), "/clips/" + names[i]);
    Playlists().PlayNext();
    EXPECT_EQ(MainPlayer().Url(), "/clips/" + names[i]);
  }
}
