#include "settings/TimeTexts.h"
#include "tests/StationTest.h"

using namespace std::chrono_literals;

// The virtual day begins at 07:00:00 AM; the rows start at 07:00:01, 07:00:02 and so on.
class TimeScheduleTest : public StationTest {
 protected:
  void Rows(const std::vector<std::string>& sections) {
    std::string text;
    for (std::size_t i = 0; i < sections.size(); ++i) {
      text += "[" + sections[i] + "]\r\nPath=" + Clip(std::to_string(i + 1) + ".mp4", 3600) + "\r\n";
    }
    sim.files.Put("/station/Playlist/Day.plt", text);
    Set("Playlist", "LastPlaylist", "Day.plt");
    Set("Playlist", "TimeON", "1");
    Playlists();
  }
};

TEST_F(TimeScheduleTest, ARowStartsWithinTheSecondThatItNames) {
  Rows({"07:00:10 AM", "07:00:20 AM"});
  Advance(9999ms);
  EXPECT_EQ(Aired(), Names{});
  Advance(1s);
  EXPECT_EQ(Aired(), Names{"1.mp4"});
  Advance(10s);
  EXPECT_EQ(Aired(), Names{"2.mp4"});
  EXPECT_EQ(Playlists().ListPlay.SelectedItem(), 2);
}

TEST_F(TimeScheduleTest, EverySecondOfADayFindsItsRowOnceAndOnlyOnce) {
  Rows({});
  Output().Timer1.Enabled = false;  // no crawler
  DateTime minute{.hour = 7};
  for (int i = 0; i < 24 * 60; ++i) {
    // The seconds of this minute, and those of the same minute in the other half of the day.
    std::vector<ListRow> rows;
    Names expected;
    for (const int hour : {minute.hour, (minute.hour + 12) % 24}) {
      for (int second = 0; second < 60; ++second) {
        const std::string start = TimeText({.hour = hour, .minute = minute.minute, .second = second});
        rows.push_back({.text = start, .subItems = {"", "", "", "/clips/" + start}});
        if (hour == minute.hour) expected.push_back(start);
      }
    }
    if (i == 0) expected.erase(expected.begin());  // the schedule was switched on within this second
    Playlists().ListPlay.Assign(std::move(rows));
    Advance(1min);
    ASSERT_EQ(Aired(), expected);
    minute.hour = (minute.hour + (minute.minute + 1) / 60) % 24;
    minute.minute = (minute.minute + 1) % 60;
  }
}

TEST_F(TimeScheduleTest, AMatchStartsInEveryModeAndMovesNoCursor) {
  Rows({"07:00:10 AM", "07:30:00 AM"});
  Playlists().chkPreview.Value = 1;
  Playlists().chkFolderPlay.Value = 1;
  Playlists().chkRendomPlay.Value = 1;
  Advance(11s);
  EXPECT_EQ(Aired(), Names{"1.mp4"});
  Playlists().chkFolderPlay.Value = 0;
  Playlists().chkRendomPlay.Value = 0;
  Playlists().PlayNext();
  EXPECT_EQ(Aired(), Names{"1.mp4"});  // the sequence begins where it stood: before the first row
}

TEST_F(TimeScheduleTest, ARowWithAMissingFileIsGivenToThePlayerAllTheSame) {
  Rows({"07:00:05 AM"});
  sim.files.Remove("/clips/1.mp4");
  Advance(6s);
  EXPECT_EQ(Aired(), Names{"1.mp4"});
}

TEST_F(TimeScheduleTest, ARowThatIsNotATimeInItsFormNeverStarts) {
  Rows({"7:00:05 AM", "07:00:05", "07:00:05AM", "19:00:05 AM", "noon"});
  Advance(1min);
  EXPECT_EQ(Aired(), Names{});
}

TEST_F(TimeScheduleTest, ATimeWithAWordBehindItNeverStartsAndBlocksNoRowOfThatTime) {
  Rows({"07:00:05 AM news", "07:00:05 AM", "07:00:08 AM news"});
  Advance(1min);
  EXPECT_EQ(Aired(), Names{"2.mp4"});
}

TEST_F(TimeScheduleTest, TheCaseOfThePeriodIsIgnored) {
  Rows({"07:00:05 am"});
  Advance(6s);
  EXPECT_EQ(Aired(), Names{"1.mp4"});
}

TEST_F(TimeScheduleTest, TheNextScheduledItemCutsOffOneThatOverruns) {
  Rows({"07:00:05 AM", "07:00:10 AM"});
  Advance(11s);
  EXPECT_EQ(MainPlayer().Url(), "/clips/2.mp4");
  EXPECT_FALSE(Output().TimerMedia.Enabled);
}

TEST_F(TimeScheduleTest, AfterAScheduledItemTheSequenceGoesOnFromWhereItStood) {
  Playlist("Day.plt", {Clip("a.mp4", 4), Clip("b.mp4", 4), Clip("c.mp4", 4)});
  sim.files.Put("/station/Playlist/Day.plt",
                *sim.files.Read("/station/Playlist/Day.plt") + "[07:00:10 AM]\r\nPath=" + Clip("news.mp4", 4) + "\r\n");
  Set("Playlist", "TimeON", "1");
  Set("Playlist", "OneAfterAnother", "1");
  Advance(4s);  // past the start times of the first rows
  Playlists().PlayNext();
  Advance(14s);
  EXPECT_EQ(Aired(), (Names{"a.mp4", "b.mp4", "news.mp4", "c.mp4"}));
}

TEST_F(TimeScheduleTest, ThePanelBlinksOnceInTwoSecondsAndIsWhiteWhenOff) {
  Rows({});
  Advance(1100ms);
  EXPECT_EQ(Playlists().PicTimeOn.BackColor.Get(), kRed);
  Advance(1s);
  EXPECT_EQ(Playlists().PicTimeOn.BackColor.Get(), kWhite);
  Advance(1s);
  EXPECT_EQ(Playlists().PicTimeOn.BackColor.Get(), kRed);
  Playlists().chkTime.Toggle();
  EXPECT_EQ(Playlists().PicTimeOn.BackColor.Get(), kWhite);
  Advance(5s);
  EXPECT_EQ(Playlists().PicTimeOn.BackColor.Get(), kWhite);
}

TEST_F(TimeScheduleTest, SwitchedOffInEitherPhaseThePanelIsWhiteAndGoesOnWithTheOtherPhaseLater) {
  Rows({});
  Advance(1100ms);
  ASSERT_EQ(Playlists().PicTimeOn.BackColor.Get(), kRed);
  Playlists().chkTime.Toggle();
  EXPECT_EQ(Playlists().PicTimeOn.BackColor.Get(), kWhite);
  Playlists().chkTime.Toggle();
  EXPECT_EQ(Playlists().PicTimeOn.BackColor.Get(), kWhite);
  Advance(1s);  // the phase is the timer's own, and it was red
  EXPECT_EQ(Playlists().PicTimeOn.BackColor.Get(), kWhite);
  Playlists().chkTime.Toggle();
  EXPECT_EQ(Playlists().PicTimeOn.BackColor.Get(), kWhite);
  Playlists().chkTime.Toggle();
  Advance(1s);
  EXPECT_EQ(Playlists().PicTimeOn.BackColor.Get(), kRed);
}

TEST_F(TimeScheduleTest, AMatchIsScrolledIntoViewSelectedAndGivenTheKeyboardAndNothingElseIs) {
  Rows({"07:00:05 AM", "07:00:10 AM", "07:00:20 AM"});
  std::vector<int> shown;
  const auto watching = Playlists().ListPlay.Changed.Subscribe([&](const ListChange& change) {
    if (change.what == ListChange::What::kEnsureVisible) shown.push_back(change.index);
  });
  Advance(4s);
  EXPECT_EQ(sim.windows.focus, "");
  EXPECT_EQ(Playlists().ListPlay.SelectedItem(), 0);
  Advance(8s);
  EXPECT_EQ(sim.windows.focus, "frmPlaylist.ListPlay");
  EXPECT_EQ(shown, (std::vector<int>{1, 2}));
  EXPECT_EQ(Playlists().ListPlay.SelectedItem(), 2);
  EXPECT_FALSE(Playlists().ListPlay.Row(1).selected);
}

TEST_F(TimeScheduleTest, ItWorksWithTheFormHiddenAndNotAtAllBeforeItIsLoaded) {
  Playlist("Day.plt", {Clip("a.mp4", 100)});
  Set("Playlist", "TimeON", "1");
  Set("Playlist", "LastPlay", "0");
  ControlWindow();
  Advance(3s);
  EXPECT_EQ(Aired(), Names{});
  Playlists();
  EXPECT_FALSE(Playlists().Visible);
  Advance(24h);
  EXPECT_EQ(Aired(), Names{"a.mp4"});
}

TEST_F(TimeScheduleTest, ASecondTickInOneSecondStartsTheRowFromItsBeginning) {
  Rows({"07:00:05 AM"});
  Advance(5100ms);
  sim.time.StepWall(-500ms);  // the same second once more
  Advance(1s);
  EXPECT_EQ(Aired(), (Names{"1.mp4", "1.mp4"}));
}

TEST_F(TimeScheduleTest, AClockSetBackAnHourStartsTheRowsOfThatHourAgainAndStopsNothing) {
  Rows({"07:00:05 AM"});
  Advance(10s);
  sim.time.StepWall(-1h);
  Advance(1h);
  EXPECT_EQ(Aired(), (Names{"1.mp4", "1.mp4"}));
}

TEST_F(TimeScheduleTest, AClockSetForwardAMinuteStepsOverTheRowsOfThatMinute) {
  Rows({"07:00:30 AM", "07:02:00 AM"});
  Advance(10s);
  sim.time.StepWall(1min);
  Advance(3min);
  EXPECT_EQ(Aired(), Names{"2.mp4"});
}

TEST_F(TimeScheduleTest, ALeapAtMidnightRepeatsTheSecondThatItRepeatsAndLosesNone) {
  Rows({"11:59:59 PM", "12:00:00 AM", "12:00:01 AM"});
  sim.time.AdvanceTo({.year = 2026, .month = 11, .day = 15, .hour = 23, .minute = 59, .second = 58});
  Aired();
  Advance(2500ms);
  sim.time.StepWall(-1s);
  Advance(10s);
  EXPECT_EQ(Aired(), (Names{"1.mp4", "2.mp4", "2.mp4", "3.mp4"}));
}

TEST_F(TimeScheduleTest, AClockStepWithinTheSecondLosesNoStart) {
  Rows({"07:00:11 AM", "07:00:12 AM", "07:00:13 AM"});
  Advance(10300ms);
  sim.time.StepWall(-200ms);
  Advance(1300ms);
  sim.time.StepWall(150ms);
  Advance(10s);
  EXPECT_EQ(Aired(), (Names{"1.mp4", "2.mp4", "3.mp4"}));
}

TEST_F(TimeScheduleTest, ADialogThatStandsStopsNoStart) {
  Rows({"07:00:05 AM"});
  sim.dialogs.whileStanding = [this] { Advance(10s); };
  Playlists().cmdRemove.Press();
  EXPECT_EQ(Aired(), Names{"1.mp4"});
}

TEST_F(TimeScheduleTest, ABreakOrAStreamDoesNotGuardTheMainPlayer) {
  Rows({"07:00:05 AM"});
  Output().PicVideoAd.Visible = true;
  Output().picOnline.Visible = true;
  Output().Player.controls.pause();
  Advance(6s);
  EXPECT_EQ(Aired(), Names{"1.mp4"});
}
