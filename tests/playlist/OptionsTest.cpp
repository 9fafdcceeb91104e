#include "tests/StationTest.h"

using namespace std::chrono_literals;

class OptionsTest : public StationTest {
 protected:
  // Each box, with its key.
  static constexpr struct {
    CheckBox frmPlaylist::*box;
    const char* key;
  } kBoxes[] = {{&frmPlaylist::chkPreview, "ClickTOPlay"},
                {&frmPlaylist::chkTime, "TimeON"},
                {&frmPlaylist::chkDaySchedule, "DaySchdule"},
                {&frmPlaylist::chkLastPlay, "LastPlay"},
                {&frmPlaylist::chkFolderPlay, "PlayLocation"},
                {&frmPlaylist::chkRendomPlay, "RendomPlay"},
                {&frmPlaylist::chkOneAfterAnother, "OneAfterAnother"},
                {&frmPlaylist::ChkQuickPlay, "QuickPlay"}};
};

TEST_F(OptionsTest, OnTheVeryFirstRunEveryBoxIsClearAndTheListIsEmpty) {
  const frmPlaylist& form = Playlists();
  for (const auto& [box, key] : kBoxes) EXPECT_EQ((form.*box).Value.Get(), 0) << key;
  EXPECT_FALSE(form.TimerFind.Enabled);
  EXPECT_FALSE(form.TimerDay.Enabled);
  EXPECT_EQ(form.ListPlay.Count(), 0);
}

TEST_F(OptionsTest, ItsTimersHaveTheirIntervalsAndTheSchedulesWaitForTheirBoxes) {
  EXPECT_EQ(Timers(Playlists()),
            (Names{"Timer1 1000 ms on", "Timer2 1000 ms", "Timer3 1000 ms on", "Timer4 1000 ms", "Timer5 500 ms on",
                   "TimerFind 1000 ms", "TimerDay 100 ms", "TimerGetDuration 100 ms", "TimerFileAd 2000 ms"}));
}

TEST_F(OptionsTest, EveryBoxComesBackAsItWasLeft) {
  for (const auto& [ticked, on] : kBoxes) {
    Station next(sim.world, "/station");
    sim.files.Put("/station/Settings.ini", std::string("[Playlist]\r\n") + on + "=1\r\n");
    ConnectRoads(next);
    const auto& form = next.forms.Get<frmPlaylist>();
    for (const auto& [box, key] : kBoxes) {
      EXPECT_EQ((form.*box).Value.Get(), box == ticked ? 1 : 0) << key << " with " << on;
    }
    EXPECT_EQ(form.TimerFind.Enabled.Get(), form.chkTime.Ticked());
    EXPECT_EQ(form.TimerDay.Enabled.Get(), form.chkDaySchedule.Ticked());
  }
}

TEST_F(OptionsTest, AClickWritesTheBoxAtOnceUnderItsOwnKey) {
  frmPlaylist& form = Playlists();
  for (const auto& [box, key] : kBoxes) {
    for (const char* value : {"1", "0"}) {
      (form.*box).Toggle();
      EXPECT_EQ(Setting("Playlist", key), value) << key;
    }
  }
}

TEST_F(OptionsTest, ABoxThatIsSetFromCodeRaisesNoClick) {
  Playlists().chkFolderPlay.Value = 1;
  EXPECT_EQ(Setting("Playlist", "PlayLocation"), "(none)");
}

TEST_F(OptionsTest, TheTimeScheduleStartsAndStopsWithItsBoxWithoutARestart) {
  Playlists().chkTime.Toggle();
  EXPECT_TRUE(Playlists().TimerFind.Enabled);
  Playlists().PicTimeOn.BackColor = kRed;
  Playlists().chkTime.Toggle();
  EXPECT_FALSE(Playlists().TimerFind.Enabled);
  EXPECT_EQ(Playlists().PicTimeOn.BackColor.Get(), kWhite);
}

TEST_F(OptionsTest, TheDayScheduleStartsAndStopsWithItsBox) {
  Playlists().chkDaySchedule.Toggle();
  EXPECT_TRUE(Playlists().TimerDay.Enabled);
  Playlists().chkDaySchedule.Toggle();
  EXPECT_FALSE(Playlists().TimerDay.Enabled);
}

TEST_F(OptionsTest, NoBoxClearsAnother) {
  frmPlaylist& form = Playlists();
  for (CheckBox* box : {&form.chkFolderPlay, &form.chkRendomPlay, &form.chkOneAfterAnother}) box->Toggle();
  EXPECT_TRUE(form.chkFolderPlay.Ticked() && form.chkRendomPlay.Ticked() && form.chkOneAfterAnother.Ticked());
}

TEST_F(OptionsTest, TheFoldersAndThePatternOfTheLastRunComeBack) {
  Clip("a.mp4");
  Clip("b.jpg");
  Set("Playlist", "FolderPath", "/clips");
  Set("Playlist", "QuickPlayPath", "/clips");
  Set("Settings", "Ext", "*.mp4;*.avi");
  EXPECT_EQ(Playlists().txtPath.Text.Get(), "/clips");
  EXPECT_EQ(Playlists().FileList.ListCount(), 1);
  EXPECT_EQ(Playlists().FileQuick.ListCount(), 1);
}

TEST_F(OptionsTest, AnEmptyPatternShowsAllFiles) {
  Clip("a.mp4");
  Clip("b.jpg");
  Set("Playlist", "FolderPath", "/clips");
  EXPECT_EQ(Playlists().FileList.ListCount(), 2);
}

TEST_F(OptionsTest, AFolderThatIsGoneLeavesTheFileListAsItWas) {
  Set("Playlist", "FolderPath", "/nowhere");
  EXPECT_EQ(Playlists().FileList.Path.Get(), "");
  EXPECT_EQ(Playlists().txtPath.Text.Get(), "/nowhere");
}

TEST_F(OptionsTest, BrowseAsksFromTheRememberedFolderAndKeepsTheAnswer) {
  sim.files.CreateFolder("/films");
  Clip("a.mp4");
  Set("Playlist", "FolderPath", "/films");
  Playlists();
  sim.trace.Take();
  sim.dialogs.folders = {"/clips"};
  Playlists().btnBrows.Press();
  EXPECT_EQ(sim.trace.Take(), Names{"browse \"Select A Video or Audio Directory\" from /films"});
  EXPECT_EQ(Playlists().FileList.ListCount(), 1);
  EXPECT_EQ(Playlists().txtPath.Text.Get(), "/clips");
  EXPECT_EQ(Setting("Playlist", "FolderPath"), "/clips");
}

TEST_F(OptionsTest, BrowseBeginsInTheFolderWhateverItsSpelling) {
  sim.files.CreateFolder("/films");
  Set("Playlist", "FolderPath", "\\Films");
  Playlists();
  sim.trace.Take();
  Playlists().btnBrows.Press();
  EXPECT_EQ(sim.trace.Take(), Names{"browse \"Select A Video or Audio Directory\" from /films"});
}

TEST_F(OptionsTest, ACancelledBrowseChangesNothing) {
  Set("Playlist", "FolderPath", "/clips");
  Playlists().btnBrows.Press();
  EXPECT_EQ(Setting("Playlist", "FolderPath"), "/clips");
  EXPECT_EQ(Playlists().txtPath.Text.Get(), "/clips");
}

TEST_F(OptionsTest, TheQuickFolderIsKeptLikewise) {
  Clip("a.mp4");
  sim.dialogs.folders = {"/clips"};
  Playlists().btnLoadFolder.Press();
  EXPECT_EQ(Setting("Playlist", "QuickPlayPath"), "/clips");
  EXPECT_EQ(Playlists().FileQuick.ListCount(), 1);
}

TEST_F(OptionsTest, TheTitleAndTheClockLabelFollowTheClock) {
  Playlists();
  EXPECT_EQ(Playlists().Caption.Get(), "Playlist manager");
  Advance(1100ms);
  EXPECT_EQ(Playlists().Caption.Get(), "Playlist- 7:00:01 AM");
  EXPECT_EQ(Playlists().lblTime.Caption.Get(), "7:00:01 AM");
}

TEST_F(OptionsTest, ThePreviewIsSilentAndStretched) {
  Playlists();
  const SimPlayer& preview = *sim.media.Find("frmPlaylist.Player");
  EXPECT_TRUE(preview.Mute());
  EXPECT_TRUE(preview.StretchToFit());
}

TEST_F(OptionsTest, ACloseOnlyHidesAndTheTimersRunOn) {
  Playlists().Show();
  Playlists().Close();
  EXPECT_FALSE(Playlists().Visible);
  EXPECT_TRUE(station.forms.Loaded<frmPlaylist>());
  Advance(1100ms);
  EXPECT_EQ(Playlists().lblTime.Caption.Get(), "7:00:01 AM");
}

TEST_F(OptionsTest, ThePlaceOfTheWindowIsRemembered) {
  Playlists().Left = 300;
  Playlists().Top = 450.5;
  Advance(1s);
  IniFile store(sim.files);
  store.SetPath("/station/Window.ini");
  EXPECT_EQ(store.ReadValue("frmPlaylist", "Left", ""), "300");
  EXPECT_EQ(store.ReadValue("frmPlaylist", "Top", ""), "450.5");
}

TEST_F(OptionsTest, TheSliderFollowsTheOutputEachSecond) {
  Playlist("Day.plt", {Clip("a.mp4", 100)});
  Playlists().PlayNext();
  Advance(5500ms);
  EXPECT_EQ(Playlists().SldPlayer.Max.Get(), 100);
  EXPECT_EQ(Playlists().SldPlayer.Value.Get(), 4);
}
