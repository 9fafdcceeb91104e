// The menu of the control window, entry by entry.
#include "ads/frmAdSett.h"
#include "ads/frmFlashAdSett.h"
#include "ads/frmLeftSideAdSett.h"
#include "ads/frmVideoAdSett.h"
#include "platform/toolkit/Failure.h"
#include "shell/frmAbout.h"
#include "tests/StationTest.h"

using namespace std::chrono_literals;

namespace {

struct ToggleRow {
  const char* name;
  MenuItem frmMid::*entry;
  bool frmMid::*flag;
  const char* section;
  const char* key;
};

constexpr ToggleRow kToggles[] = {
    {"mnuShowCrawlersAd", &frmMid::mnuShowCrawlersAd, &frmMid::CrawlerShown, "AdSettings", "Show"},
    {"mnuShowVideoAd", &frmMid::mnuShowVideoAd, &frmMid::VideoAdShown, "VideoAd", "Show"},
    {"mnuOutputWindow", &frmMid::mnuOutputWindow, &frmMid::OutputShown, "Output", "Show"},
    {"mnuMonitor2", &frmMid::mnuMonitor2, &frmMid::OnMonitor2, "Output", "Monitor2"},
    {"mnuShowFlashAd", &frmMid::mnuShowFlashAd, &frmMid::FlashAdShown, "FlashAd", "Show"},
    {"mnuLeftsideAd", &frmMid::mnuLeftsideAd, &frmMid::LeftSideAdShown, "LeftSideAd", "Show"},
    {"mnuShowLogo", &frmMid::mnuShowLogo, &frmMid::LogoShown, "logo", "Show"},
    {"mnuShowStiker", &frmMid::mnuShowStiker, &frmMid::StikerShown, "Stiker", "Show"},
    {"mnuShowClock", &frmMid::mnuShowClock, &frmMid::ClockShown, "Clock", "Show"},
};

constexpr char kExitBox[] = "box \"Are You Sure you wnat to EXIT from Corvanta 6.0?\" \"Exit\"";
constexpr char kOfflineBox[] = "box \"Your PC is not cinnected to internet. Please try again later.\" \"Corvanta 6.0\"";

class MenuTest : public StationTest {
 protected:
  frmVideoAdSett& Breaks() { return station.forms.Get<frmVideoAdSett>(); }

  // What the next start would read.
  std::string OnDisk(const char* section, const char* key) {
    IniFile file(sim.files);
    file.SetPath("/station/Settings.ini");
    return file.ReadValue(section, key, "(none)");
  }
  // What choosing the entry did to the world.
  Names Does(MenuItem& entry) {
    sim.trace.Take();
    entry.Choose();
    return sim.trace.Take();
  }
  void ExpectInStep(const ToggleRow& row, bool on) {
    SCOPED_TRACE(row.name);
    EXPECT_EQ(ControlWindow().*row.flag, on);
    EXPECT_EQ((ControlWindow().*row.entry).Checked, on);
    EXPECT_EQ(OnDisk(row.section, row.key), on ? "True" : "False");
  }
  void TwoMonitors() {
    sim.monitors.monitors = {
        {.handle = 11, .name = "DESK", .area = {0, 0, 1920, 1080}, .workArea = {0, 0, 1920, 1040}, .primary = true},
        {.handle = 22, .name = "AIR", .area = {1920, 0, 3840, 1080}, .workArea = {1920, 0, 3840, 1080}}};
  }
  bool OnSecondMonitor() { return Output().Left >= ToTwips(1920); }
  // One video ad of ten seconds, and a break with it every minute.
  void OneAdEveryMinute() {
    sim.files.Put("/station/VideoAd/a/adinfo.ini", "[AdInfo]\r\nFileName=ad.mp4\r\n");
    sim.files.Put("/station/VideoAd/a/ad.mp4", "media");
    Set("VideoAd", "AdTime", "1");
    Set("VideoAd", "AdPlay", "1");
  }
};

TEST_F(MenuTest, EachToggleKeepsItsFlagItsTickAndItsKeyInStepBothWaysAndWritesAtOnce) {
  ControlWindow();
  for (const ToggleRow& row : kToggles) {
    for (const bool on : {true, false, true}) {
      (ControlWindow().*row.entry).Choose();
      ExpectInStep(row, on);
    }
  }
}

TEST_F(MenuTest, AToggleTouchesNoOtherFlagTickOrKey) {
  ControlWindow();
  for (const ToggleRow& chosen : kToggles) {
    (ControlWindow().*chosen.entry).Choose();
    for (const ToggleRow& other : kToggles) {
      if (&other == &chosen) continue;
      SCOPED_TRACE(other.name);
      EXPECT_FALSE((ControlWindow().*other.entry).Checked) << chosen.name;
      EXPECT_FALSE(ControlWindow().*other.flag) << chosen.name;
      EXPECT_NE(OnDisk(other.section, other.key), "True") << chosen.name;
    }
    (ControlWindow().*chosen.entry).Choose();
  }
}

TEST_F(MenuTest, AfterAStartEachEntryIsTickedAsItsKeySaysAndItsFirstUseSwitchesItOff) {
  for (const ToggleRow& row : kToggles) Set(row.section, row.key, "True");
  ControlWindow();
  for (const ToggleRow& row : kToggles) {
    ExpectInStep(row, true);
    (ControlWindow().*row.entry).Choose();
    ExpectInStep(row, false);
  }
}

TEST_F(MenuTest, OnAFirstStartNothingIsTickedAndNothingIsWrittenForTheToggles) {
  ControlWindow();
  for (const ToggleRow& row : kToggles) {
    EXPECT_FALSE((ControlWindow().*row.entry).Checked) << row.name;
    EXPECT_EQ(OnDisk(row.section, row.key), "(none)") << row.name;
  }
}

TEST_F(MenuTest, AToggleWhoseKeyCannotBeWrittenWorksAllTheSame) {
  ControlWindow();
  sim.files.SetDiskFull(true);
  ControlWindow().mnuOutputWindow.Choose();
  EXPECT_TRUE(Output().Visible);
  EXPECT_TRUE(ControlWindow().mnuOutputWindow.Checked);
}

TEST_F(MenuTest, AFeatureThatFailsToComeOnIsTickedAndWrittenAllTheSame) {
  ControlWindow();
  const auto fail = [] { throw Failure("out of order"); };
  const auto band = Output().PicAd.Visible.Changed.Subscribe(fail);
  ControlWindow().mnuShowCrawlersAd.Choose();
  ExpectInStep(kToggles[0], true);
  const auto countdown = Breaks().Timer1.Enabled.Changed.Subscribe(fail);
  ControlWindow().mnuShowVideoAd.Choose();
  ExpectInStep(kToggles[1], true);
  const auto window = Output().Visible.Changed.Subscribe(fail);
  ControlWindow().mnuOutputWindow.Choose();
  ExpectInStep(kToggles[2], true);
}

TEST_F(MenuTest, AnOutputWindowThatFailsToShowStillGoesToItsMonitor) {
  TwoMonitors();
  ControlWindow().OnMonitor2 = true;
  const auto failing = Output().Visible.Changed.Subscribe([] { throw Failure("out of order"); });
  ControlWindow().mnuOutputWindow.Choose();
  EXPECT_TRUE(OnSecondMonitor());
}

TEST_F(MenuTest, SwitchingTheOutputOffLeavesAFreshHiddenWindowBehind) {
  ControlWindow();
  ControlWindow().mnuOutputWindow.Choose();
  EXPECT_EQ(Does(ControlWindow().mnuOutputWindow), (Names{"frmPlayer unloaded", "frmPlayer loaded"}));
  EXPECT_FALSE(Output().Visible);
}

TEST_F(MenuTest, TheOutputTwiceLeavesAnIdlePlayerOnItsMonitorAndPlayGoesOnWithTheNextItemOnly) {
  TwoMonitors();
  Playlist("Day.plt", {Clip("a.mp4", 60), Clip("b.mp4", 60)});
  Set("Playlist", "OneAfterAnother", "1");
  Set("Output", "Show", "True");
  Set("Output", "Monitor2", "True");
  ControlWindow().ThemedButton5.Press();
  Advance(5s);
  ASSERT_EQ(Aired(), Names{"a.mp4"});
  ControlWindow().mnuOutputWindow.Choose();
  EXPECT_TRUE(OnSecondMonitor()) << "the hidden window that stands in for it";
  ControlWindow().mnuOutputWindow.Choose();
  EXPECT_TRUE(Output().Visible);
  EXPECT_TRUE(OnSecondMonitor());
  Advance(90s);
  EXPECT_EQ(Aired(), Names{}) << "by itself nothing comes back";
  EXPECT_EQ(MainPlayer().State(), PlayState::kUndefined);
  EXPECT_EQ(MainPlayer().Url(), "");
  ControlWindow().ThemedButton5.Press();
  Advance(1s);
  EXPECT_EQ(Aired(), Names{"b.mp4"});
  EXPECT_EQ(MainPlayer().State(), PlayState::kPlaying);
}

TEST_F(MenuTest, TheSecondDisplaySendsTheOutputThereAndBack) {
  TwoMonitors();
  Set("Output", "Show", "True");
  ControlWindow();
  ASSERT_FALSE(OnSecondMonitor());
  ControlWindow().mnuMonitor2.Choose();
  EXPECT_TRUE(OnSecondMonitor());
  ControlWindow().mnuMonitor2.Choose();
  EXPECT_FALSE(OnSecondMonitor());
  EXPECT_TRUE(Output().Visible);
}

TEST_F(MenuTest, WithoutASecondDisplayItsEntryIsTickedAndWrittenAndTheOutputStays) {
  Set("Output", "Show", "True");
  ControlWindow();
  const double left = Output().Left;
  ControlWindow().mnuMonitor2.Choose();
  ExpectInStep(kToggles[3], true);
  EXPECT_EQ(Output().Left, left);
}

TEST_F(MenuTest, MovingTheOutputTakesNothingOffTheAir) {
  TwoMonitors();
  Playlist("Day.plt", {Clip("a.mp4", 60)});
  Set("Output", "Show", "True");
  ControlWindow().ThemedButton5.Press();
  Advance(2s);
  ControlWindow().mnuMonitor2.Choose();
  EXPECT_EQ(MainPlayer().State(), PlayState::kPlaying);
}

TEST_F(MenuTest, MaskingWritesNothing) {
  ControlWindow();
  const auto before = sim.files.Read("/station/Settings.ini");
  ControlWindow().mnuMasking.Choose();
  EXPECT_TRUE(ControlWindow().MaskingOn);
  EXPECT_EQ(sim.files.Read("/station/Settings.ini"), before);
}

TEST_F(MenuTest, SwitchingTheBreaksOffStopsTheirCountdownAndOnAgainGoesOnWithIt) {
  OneAdEveryMinute();
  ControlWindow().mnuShowVideoAd.Choose();
  frmVideoAdSett* const form = &Breaks();
  form->txtCompany.Text = "half written";
  Advance(5s);
  EXPECT_EQ(form->AdTimeCount, 5);
  ControlWindow().mnuShowVideoAd.Choose();
  EXPECT_FALSE(form->Timer1.Enabled);
  Advance(90s);
  EXPECT_EQ(Breaks().AdTimeCount, 5);
  ControlWindow().mnuShowVideoAd.Choose();
  EXPECT_EQ(&Breaks(), form);
  EXPECT_EQ(form->txtCompany.Text.Get(), "half written") << "the same form: it refuses to unload";
  Advance(1s);
  EXPECT_EQ(form->AdTimeCount, 6);
}

TEST_F(MenuTest, SwitchingTheBreaksOffHidesTheirFormAndOnAgainDoesNotShowIt) {
  ControlWindow().mnuShowVideoAd.Choose();
  EXPECT_FALSE(Breaks().Visible);
  ControlWindow().mnuVideoAdSettings.Choose();
  EXPECT_TRUE(Breaks().Visible);
  ControlWindow().mnuShowVideoAd.Choose();
  EXPECT_FALSE(Breaks().Visible);
  ControlWindow().mnuShowVideoAd.Choose();
  EXPECT_FALSE(Breaks().Visible);
}

TEST_F(MenuTest, ABreakThatRunsWhenTheBreaksAreSwitchedOffEndsByItselfAndStartsTheCountdownAgain) {
  OneAdEveryMinute();
  Playlist("Day.plt", {Clip("a.mp4", 600)});
  ControlWindow().mnuShowVideoAd.Choose();
  ControlWindow().ThemedButton5.Press();
  Advance(61s);
  ASSERT_TRUE(Output().PicVideoAd.Visible);
  ControlWindow().mnuShowVideoAd.Choose();
  EXPECT_TRUE(Output().PicVideoAd.Visible);
  Advance(15s);
  EXPECT_FALSE(Output().PicVideoAd.Visible);
  EXPECT_EQ(MainPlayer().State(), PlayState::kPlaying);
  EXPECT_FALSE(ControlWindow().VideoAdShown);
  EXPECT_TRUE(Breaks().Timer1.Enabled);
}

TEST_F(MenuTest, AtAStartWithTheBreaksOnTheCountdownGoesOnFromWhereItStoodAndTheirFormStaysHidden) {
  OneAdEveryMinute();
  Set("VideoAd", "Show", "True");
  Set("VideoAd", "AdTimeCount", "42");
  ControlWindow();
  EXPECT_TRUE(station.forms.Loaded<frmVideoAdSett>());
  EXPECT_FALSE(Breaks().Visible);
  Advance(1s);
  EXPECT_EQ(Breaks().AdTimeCount, 43);
  EXPECT_EQ(Breaks().txtAdTime.Text.Get(), "17");
}

TEST_F(MenuTest, AtAStartWithTheBreaksOffTheirFormIsNotLoaded) {
  Set("VideoAd", "Show", "False");
  ControlWindow();
  EXPECT_FALSE(station.forms.Loaded<frmVideoAdSett>());
}

TEST_F(MenuTest, TheBreaksComeBackBehindTheCrawlersAndBeforeThePlaylist) {
  Set("VideoAd", "Show", "True");
  Set("Playlist", "LastPlay", "1");
  ControlWindow();
  const Names lines = sim.trace.Take();
  const auto breaks = std::ranges::find(lines, "frmVideoAdSett loaded");
  ASSERT_NE(breaks, lines.end());
  EXPECT_LT(std::ranges::find(lines, "frmAdSett loaded"), breaks);
  EXPECT_LT(breaks, std::ranges::find(lines, "frmPlaylist loaded"));
}

TEST_F(MenuTest, EntriesOpenTheirFormsAndLeaveTheStationToItself) {
  ControlWindow();
  const auto opens = [&](MenuItem& entry, const Form& form) {
    EXPECT_FALSE(form.Visible) << form.Name();
    entry.Choose();
    EXPECT_TRUE(form.Visible) << form.Name();
  };
  opens(ControlWindow().mnuPlayList, Playlists());
  opens(ControlWindow().mnuScorlAsSettings, station.forms.Get<frmAdSett>());
  opens(ControlWindow().mnuVideoAdSettings, Breaks());
  opens(ControlWindow().mnuFlashAd, station.forms.Get<frmFlashAdSett>());
  opens(ControlWindow().mnuLeftsideAdsettings, station.forms.Get<frmLeftSideAdSett>());
  opens(ControlWindow().mnuAbout2, station.forms.Get<frmAbout>());
}

TEST_F(MenuTest, AboutStandsInTheMiddleAndItsButtonUnloadsItFromBothItsEntries) {
  for (MenuItem* entry : {&ControlWindow().mnuAbout2, &ControlWindow().mnuTrayAbout}) {
    entry->Choose();
    auto& about = station.forms.Get<frmAbout>();
    EXPECT_TRUE(about.Visible);
    EXPECT_NEAR(about.Left + about.Width / 2, 1920 * 15 / 2, 15);
    EXPECT_NEAR(about.Top + about.Height / 2, 1080 * 15 / 2, 15);
    about.btnLoadScorl.Press();
    EXPECT_FALSE(station.forms.Loaded<frmAbout>());
  }
}

TEST_F(MenuTest, EachToolIsStartedFromItsPlaceUnderTheStationsFolder) {
  frmMid& control = ControlWindow();
  EXPECT_EQ(Does(control.mnuSWF_0), Names{"tool /station/Tools/SWF Easy.exe"});
  EXPECT_EQ(Does(control.mnuSWF_1), Names{"tool /station/Tools/FlashMaker.exe"});
  EXPECT_EQ(Does(control.mnuSWF_2), Names{"tool /station/Tools/SWFText.exe"});
  EXPECT_EQ(Does(control.mnuVideoConvert_0), Names{"tool /station/Tools/DVDConverter.exe"});
  EXPECT_EQ(Does(control.mnuVideoConvert_1), Names{"tool /station/Tools/FormatFactory.exe"});
  EXPECT_EQ(Does(control.mnuTeamviewer), Names{"tool /station/Tools/Tolvex.exe"});
  EXPECT_EQ(Does(control.mnuQuicksupport), Names{"tool /station/Tools/Tolvex.exe"});
}

TEST_F(MenuTest, OfflineTheRemoteControlAndTheQuickSupportSaySoAndStartNothing) {
  sim.network.SetOnline(false);
  EXPECT_EQ(Does(ControlWindow().mnuTeamviewer), Names{kOfflineBox});
  EXPECT_EQ(Does(ControlWindow().mnuQuicksupport), Names{kOfflineBox});
}

TEST_F(MenuTest, OfflineTheToolsThatNeedNoNetworkStart) {
  sim.network.SetOnline(false);
  EXPECT_EQ(Does(ControlWindow().mnuSWF_0), Names{"tool /station/Tools/SWF Easy.exe"});
  EXPECT_EQ(Does(ControlWindow().mnuVideoConvert_1), Names{"tool /station/Tools/FormatFactory.exe"});
}

TEST_F(MenuTest, WhileTheOfflineBoxStandsTheStationGoesOn) {
  sim.network.SetOnline(false);
  Playlist("Day.plt", {Clip("a.mp4", 2), Clip("b.mp4", 60)});
  Set("Playlist", "OneAfterAnother", "1");
  ControlWindow().ThemedButton5.Press();
  sim.dialogs.whileStanding = [this] { Advance(4s); };
  ControlWindow().mnuTeamviewer.Choose();
  EXPECT_EQ(Aired(), (Names{"a.mp4", "b.mp4"}));
}

TEST_F(MenuTest, HelpShowsTheGuide) { EXPECT_EQ(Does(ControlWindow().mnuHelp2), Names{"guide"}); }

TEST_F(MenuTest, TurningTheMonitorOffStopsNothingElse) {
  Playlist("Day.plt", {Clip("a.mp4", 60)});
  ControlWindow().ThemedButton5.Press();
  Advance(1s);
  EXPECT_EQ(Does(ControlWindow().mnuTurnOffMonitor), Names{"monitor off"});
  EXPECT_EQ(MainPlayer().State(), PlayState::kPlaying);
}

TEST_F(MenuTest, HideMeHidesTheControlWindowAndShowMeBringsItBack) {
  Set("Settings", "StartUp", "1");
  EXPECT_TRUE(ControlWindow().Visible);
  EXPECT_EQ(Does(ControlWindow().mnuHideMe), Names{"frmMid hidden"});
  EXPECT_EQ(Does(ControlWindow().mnuShow), Names{"frmMid shown"});
}

TEST_F(MenuTest, ADoubleClickOnTheTrayShowsTheControlWindow) {
  ControlWindow().Hide();
  ControlWindow().Tray.DoubleClick();
  EXPECT_TRUE(ControlWindow().Visible);
}

TEST_F(MenuTest, OnlyTheRightButtonOnTheTrayOpensItsMenu) {
  ControlWindow().Tray.PressMouse(MouseButton::kLeft);
  ControlWindow().Tray.PressMouse(MouseButton::kMiddle);
  EXPECT_EQ(sim.windows.popUp, "");
  ControlWindow().Tray.PressMouse(MouseButton::kRight);
  EXPECT_EQ(sim.windows.popUp, "frmMid.mnuTray");
}

TEST_F(MenuTest, ExitAsksFromTheMenuAndFromTheTrayAndOnlyYesEndsTheProcess) {
  for (MenuItem* entry : {&ControlWindow().mnuExit, &ControlWindow().mnuTrayExit}) {
    EXPECT_EQ(Does(*entry), Names{kExitBox});
    EXPECT_FALSE(sim.desktop.ended);
  }
  for (MenuItem* entry : {&ControlWindow().mnuExit, &ControlWindow().mnuTrayExit}) {
    sim.dialogs.answers = {Answer::kYes};
    EXPECT_EQ(Does(*entry), (Names{kExitBox, "taskbar shown", "process ends"}));
  }
}

TEST_F(MenuTest, StopBroadcastStopsTheItemAndNothingFollows) {
  Playlist("Day.plt", {Clip("a.mp4", 60), Clip("b.mp4")});
  Set("Playlist", "OneAfterAnother", "1");
  ControlWindow().ThemedButton5.Press();
  Advance(2s);
  ControlWindow().ThemedButton6.Press();
  Advance(60s);
  EXPECT_EQ(Aired(), Names{"a.mp4"});
  EXPECT_EQ(MainPlayer().State(), PlayState::kStopped);
}

}  // namespace
