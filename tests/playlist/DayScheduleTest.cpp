#include "tests/StationTest.h"

using namespace std::chrono_literals;

// The virtual clock begins on 11/15/2026 at 07:00:00 AM.
class DayScheduleTest : public StationTest {
 protected:
  void Schedule(const std::string& text) {
    sim.files.Put("/station/Schedule.ini", text);
    Set("Playlist", "DaySchdule", "1");
  }
  int Boxes(const std::string& text) {
    const auto lines = sim.trace.Take();
    return static_cast<int>(
        std::ranges::count_if(lines, [&](const std::string& line) { return line.find(text) != std::string::npos; }));
  }
  std::string File() { return sim.files.Read("/station/Schedule.ini").value_or("(none)"); }
};

TEST_F(DayScheduleTest, AtItsTimeTheRowsAreExchangedAndTheRunningItemPlaysOn) {
  Playlist("Morning.plt", {Clip("m.mp4")});
  Playlist("Day.plt", {Clip("a.mp4", 3600), Clip("b.mp4")});
  Schedule("[11/15/2026-07:00:10 AM]\r\nPlaylistName=Morning.plt\r\n");
  Playlists().PlayNext();
  Advance(11s);
  EXPECT_EQ(Playlists().ListPlay.Count(), 1);
  EXPECT_EQ(Playlists().ListPlay.Row(1).SubItem(4), "/clips/m.mp4");
  EXPECT_EQ(Setting("Playlist", "LastPlaylist"), "Morning.plt");
  EXPECT_EQ(Playlists().fraPlaylist.Caption.Get(), "Playlist- Day");  // the title is left as it was
  EXPECT_EQ(Aired(), Names{"a.mp4"});
}

TEST_F(DayScheduleTest, TheNextItemIsTakenByItsNumberFromTheNewList) {
  Playlist("Two.plt", {Clip("x.mp4"), Clip("y.mp4"), Clip("z.mp4")});
  Playlist("Day.plt", {Clip("a.mp4", 60), Clip("b.mp4", 60)});
  Schedule("[11/15/2026-07:00:10 AM]\r\nPlaylistName=Two.plt\r\n");
  Set("Playlist", "OneAfterAnother", "1");
  Playlists().PlayNext();
  Advance(65s);
  EXPECT_EQ(Aired(), (Names{"a.mp4", "y.mp4"}));
}

TEST_F(DayScheduleTest, AMatchIsCarriedOutAtEachTickOfItsSecond) {
  Playlist("Morning.plt", {Clip("m.mp4")});
  Schedule("[11/15/2026-07:00:10 AM]\r\nPlaylistName=Morning.plt\r\n");
  int loads = 0;
  const auto watching = Playlists().ListPlay.Changed.Subscribe([&](const ListChange& change) {
    if (change.what == ListChange::What::kReset) ++loads;
  });
  Advance(30s);
  EXPECT_EQ(loads, 10);
}

TEST_F(DayScheduleTest, EachTickOfTheSecondSaysThatThePlaylistIsMissing) {
  Schedule("[11/15/2026-07:00:10 AM]\r\nPlaylistName=Gone.plt\r\n");
  Playlists();
  Advance(30s);
  EXPECT_EQ(Boxes("box \"Playlist file not found\" \"Error\""), 10);
}

TEST_F(DayScheduleTest, MessagesThatStackUpStopNeitherTimersNorThePicture) {
  Playlist("Day.plt", {Clip("a.mp4", 9), Clip("b.mp4", 60)});
  Set("Playlist", "OneAfterAnother", "1");
  Schedule("[11/15/2026-07:00:05 AM]\r\nPlaylistName=Gone.plt\r\n");
  Playlists().PlayNext();
  sim.dialogs.whileStanding = [this] { Advance(100ms); };
  Advance(5s);
  sim.dialogs.whileStanding = nullptr;
  Advance(6s);
  const auto lines = sim.trace.Take();
  EXPECT_EQ(std::ranges::count(lines, "box \"Playlist file not found\" \"Error\""), 10);
  EXPECT_EQ(std::ranges::count(lines, "frmPlayer.Player open /clips/b.mp4"), 1);
}

TEST_F(DayScheduleTest, ARowThatNamesNoPlaylistIsAMissingPlaylist) {
  Schedule("[11/15/2026-07:00:10 AM]\r\n");
  Playlists();
  Advance(10s);
  EXPECT_GT(Boxes("Playlist file not found"), 0);
  EXPECT_EQ(Setting("Playlist", "LastPlaylist"), "(none)");
}

TEST_F(DayScheduleTest, ARowOfThePastNeverFiresAndStays) {
  Playlist("Morning.plt", {Clip("m.mp4")});
  Schedule("[11/15/2026-06:59:59 AM]\r\nPlaylistName=Morning.plt\r\n");
  Set("Playlist", "LastPlaylist", "");
  Playlists();
  Advance(25h);
  EXPECT_EQ(Playlists().ListPlay.Count(), 0);
  EXPECT_EQ(Playlists().ListSchedule.Count(), 1);
}

TEST_F(DayScheduleTest, ARowOfTheSameTimeOnAnotherDateDoesNotFire) {
  Playlist("Morning.plt", {Clip("m.mp4")});
  Set("Playlist", "LastPlaylist", "");
  Schedule(
      "[1/15/2026-07:00:10 AM]\r\nPlaylistName=Morning.plt\r\n[11/16/2026-07:00:10 "
      "AM]\r\nPlaylistName=Morning.plt\r\n");
  Playlists();
  Advance(1h);
  EXPECT_EQ(Playlists().ListPlay.Count(), 0);
  Advance(24h);
  EXPECT_EQ(Playlists().ListPlay.Count(), 1);
}

TEST_F(DayScheduleTest, WithItsBoxClearNothingFiresAndRowsCanBeEdited) {
  Playlist("Morning.plt", {Clip("m.mp4")});
  Schedule("");
  Set("Playlist", "DaySchdule", "0");
  Set("Playlist", "LastPlaylist", "");
  Playlists().dpSTime.Value = {.year = 2026, .month = 11, .day = 15, .hour = 7, .second = 10};
  Playlists().cmbPlaylist.Pick(0);
  Playlists().vkCommand2.Press();
  Advance(1min);
  EXPECT_EQ(Playlists().ListSchedule.Count(), 1);
  EXPECT_EQ(Playlists().ListPlay.Count(), 0);
}

TEST_F(DayScheduleTest, ARowIsAddedUnderItsDateAndTime) {
  Playlist("Morning.plt", {Clip("m.mp4")});
  Playlists().dpSDate.Value = {.year = 2026, .month = 3, .day = 7};
  Playlists().dpSTime.Value = {.hour = 13, .minute = 5};
  Playlists().cmbPlaylist.Pick(0);
  Playlists().vkCommand2.Press();
  EXPECT_EQ(Playlists().ListSchedule.Row(1).text, "3/7/2026-01:05:00 PM");
  EXPECT_EQ(Playlists().ListSchedule.Row(1).SubItem(1), "Morning.plt");
  EXPECT_NE(File().find("[3/7/2026-01:05:00 PM]\r\nPlaylistName=Morning.plt\r\n"), std::string::npos);
}

TEST_F(DayScheduleTest, WithoutAPlaylistNothingIsAddedAndTheComboHasTheKeyboard) {
  Playlists().vkCommand2.Press();
  EXPECT_EQ(Boxes("box \"Please select a playlist name\" \"Schedule manager\""), 1);
  EXPECT_EQ(sim.windows.focus, "frmPlaylist.cmbPlaylist");
  EXPECT_EQ(File(), "(none)");
}

TEST_F(DayScheduleTest, TheSameDateAndTimeCannotBeEnteredTwiceWhateverThePlaylist) {
  Playlist("A.plt", {});
  Playlist("B.plt", {});
  Playlists().cmbPlaylist.Pick(0);
  Playlists().vkCommand2.Press();
  Playlists().cmbPlaylist.Pick(1);
  Playlists().vkCommand2.Press();
  EXPECT_EQ(Boxes("11/15/2026-07:00:00 AM already allocated as schedule date, please chose a different schedule date\" "
                  "\"Schedule manager\""),
            1);
  EXPECT_EQ(Playlists().ListSchedule.Count(), 1);
  EXPECT_EQ(Playlists().ListSchedule.Row(1).SubItem(1), "A.plt");
  EXPECT_EQ(Playlists().ListSchedule.SelectedItem(), 1);
  EXPECT_EQ(sim.windows.focus, "frmPlaylist.ListSchedule");
}

TEST_F(DayScheduleTest, ATypedNameOfNoPlaylistPassesAndIsMissingAtItsTime) {
  Playlists().cmbPlaylist.Type("Nowhere.plt");
  Playlists().dpSTime.Value = {.hour = 7, .second = 5};
  Playlists().vkCommand2.Press();
  Playlists().chkDaySchedule.Toggle();
  Advance(10s);
  EXPECT_GT(Boxes("Playlist file not found"), 0);
}

TEST_F(DayScheduleTest, ARowIsRemovedAfterAYesOnly) {
  Schedule("[11/15/2026-07:00:10 AM]\r\nPlaylistName=A.plt\r\n[11/16/2026-07:00:10 AM]\r\nPlaylistName=B.plt\r\n");
  Playlists().ListSchedule.ClickRow(1);
  Playlists().vkCommand3.Press();
  EXPECT_EQ(Boxes("box \"Are You Sure you wnat to Delete this Schedule?\" \"DELETE\""), 1);
  EXPECT_EQ(Playlists().ListSchedule.Count(), 2);
  sim.dialogs.answers = {Answer::kYes};
  Playlists().vkCommand3.Press();
  ASSERT_EQ(Playlists().ListSchedule.Count(), 1);
  EXPECT_EQ(Playlists().ListSchedule.Row(1).SubItem(1), "B.plt");
}

TEST_F(DayScheduleTest, ARemoveWithNothingSelectedDoesNothing) {
  Schedule("[11/15/2026-07:00:10 AM]\r\nPlaylistName=A.plt\r\n");
  sim.dialogs.answers = {Answer::kYes};
  Playlists().vkCommand3.Press();
  EXPECT_EQ(Playlists().ListSchedule.Count(), 1);
}

TEST_F(DayScheduleTest, ARemoveWithNothingSelectedReadsTheFileAnewAllTheSame) {
  Schedule("[11/15/2026-07:00:10 AM]\r\nPlaylistName=A.plt\r\n");
  ASSERT_EQ(Playlists().ListSchedule.Count(), 1);
  sim.files.Put("/station/Schedule.ini", "");
  sim.dialogs.answers = {Answer::kYes};
  Playlists().vkCommand3.Press();
  EXPECT_EQ(Playlists().ListSchedule.Count(), 0);
  EXPECT_EQ(Boxes("box"), 1);  // the question alone
}

TEST_F(DayScheduleTest, ARowThatComesDueWhileTheQuestionStandsIsNotTheOneThatGoes) {
  Playlist("A.plt", {Clip("a.mp4")});
  Schedule("[11/15/2026-07:00:10 AM]\r\nPlaylistName=A.plt\r\n[11/16/2026-07:00:10 AM]\r\nPlaylistName=B.plt\r\n");
  Playlists().ListSchedule.ClickRow(2);
  sim.dialogs.answers = {Answer::kYes};
  sim.dialogs.whileStanding = [&] { Advance(15s); };
  Playlists().vkCommand3.Press();
  EXPECT_EQ(File(), "[11/15/2026-07:00:10 AM]\r\nPlaylistName=A.plt\r\n");
}

TEST_F(DayScheduleTest, KeysThatAreNoDatesAreRowsThatNeverFire) {
  Schedule("[soon]\r\nPlaylistName=A.plt\r\n[32/13/2026-07:00:10 AM]\r\nPlaylistName=A.plt\r\n[]\r\n");
  EXPECT_GE(Playlists().ListSchedule.Count(), 2);
  sim.trace.Take();
  Advance(25h);
  EXPECT_EQ(Boxes("box"), 0);
}

TEST_F(DayScheduleTest, WithFolderPlayTheExchangeChangesNothingOnTheAir) {
  Playlist("Morning.plt", {Clip("m.mp4", 5)});
  for (const char* name : {"a.mp4", "b.mp4"}) Clip(name, 5);
  Schedule("[11/15/2026-07:00:03 AM]\r\nPlaylistName=Morning.plt\r\n");
  Set("Playlist", "FolderPath", "/clips");
  Set("Playlist", "PlayLocation", "1");
  Set("Playlist", "OneAfterAnother", "1");
  Playlists().PlayNext();
  Advance(6s);
  EXPECT_EQ(Aired(), (Names{"b.mp4", "m.mp4"}));  // m.mp4 is the third file of the folder
}

TEST_F(DayScheduleTest, APlaylistDeletedWhileItPlaysKeepsItsRowsOnTheAir) {
  Playlist("Day.plt", {Clip("a.mp4"), Clip("b.mp4")});
  Set("Playlist", "OneAfterAnother", "1");
  Playlists().PlayNext();
  Playlists().FilePlaylist.Pick(0);
  sim.dialogs.answers = {Answer::kYes};
  Playlists().btnDeletePlaylist.Press();
  EXPECT_FALSE(sim.files.Read("/station/Playlist/Day.plt").has_value());
  Advance(11s);
  EXPECT_EQ(Aired(), (Names{"a.mp4", "b.mp4"}));
}

TEST_F(DayScheduleTest, AnEntryAddedAfterAnExchangeGoesToTheScheduledPlaylist) {
  Playlist("Morning.plt", {});
  Playlist("Day.plt", {Clip("a.mp4")});
  Set("Playlist", "FolderPath", "/clips");
  Schedule("[11/15/2026-07:00:10 AM]\r\nPlaylistName=Morning.plt\r\n");
  Playlists().FilePlaylist.Pick(0);
  Advance(12s);
  Playlists().FileList.Pick(0);
  Playlists().btnAdd.Press();
  EXPECT_NE(sim.files.Read("/station/Playlist/Morning.plt")->find("Path=/clips/a.mp4"), std::string::npos);
}
