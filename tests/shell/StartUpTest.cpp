#include "tests/StationTest.h"

using namespace std::chrono_literals;

class StartUpTest : public StationTest {
 protected:
  // Switches the station on and waits until the control window has restored it.
  void Start() {
    station.forms.Get<frmLoad>().Show();
    Advance(2s);
  }

  static inline const Names kFirstRun{"frmLoad loaded",   "frmLoad shown",
                                      "frmMid loaded",    "frmPlayer loaded",
                                      "frmAdSett loaded", "cursor down",
                                      "taskbar hidden",   "frmMid shown",
                                      "frmMid hidden",    "run at log-on \"My App\" /station/corvanta",
                                      "hot key 0 Ctrl+M", "hot key 1 Ctrl+X",
                                      "hot key 2 Ctrl+T", "hot key 3 Ctrl+O",
                                      "screen saver 0",   "frmLoad unloaded"};
};

TEST_F(StartUpTest, TheSplashStandsTwoSecondsInTheMiddleOfTheScreen) {
  auto& splash = station.forms.Get<frmLoad>();
  splash.Show();
  EXPECT_EQ(splash.Left + splash.Width / 2, 1920 * 15 / 2);
  EXPECT_EQ(splash.Top + splash.Height / 2, 1080 * 15 / 2);
  Advance(1999ms);
  EXPECT_TRUE(station.forms.Loaded<frmLoad>());
  EXPECT_FALSE(station.forms.Loaded<frmMid>());
  Advance(1ms);
  EXPECT_FALSE(station.forms.Loaded<frmLoad>());
  EXPECT_TRUE(station.forms.Loaded<frmMid>());
}

TEST_F(StartUpTest, TheSplashGoesOnlyWhenEverythingIsRestored) {
  Set("Output", "Show", "True");
  Start();
  const auto lines = sim.trace.Take();
  EXPECT_EQ(lines.back(), "frmLoad unloaded");
  EXPECT_LT(std::ranges::find(lines, "frmPlayer shown"), std::ranges::find(lines, "frmLoad unloaded"));
}

TEST_F(StartUpTest, TheSplashsButtonEndsTheProcessWithNothingRestored) {
  station.forms.Get<frmLoad>().Command1.Press();
  EXPECT_TRUE(sim.desktop.ended);
  EXPECT_FALSE(station.forms.Loaded<frmMid>());
}

TEST_F(StartUpTest, AFirstRunWalksInItsOrderAndHidesCursorTaskbarAndControlWindow) {
  Start();
  EXPECT_EQ(sim.trace.Take(), kFirstRun);
}

TEST_F(StartUpTest, AStationThatWasOnTheAirComesBackWithNobodyAtTheKeyboard) {
  for (const char* section : {"Output", "AdSettings", "LeftSideAd"}) Set(section, "Show", "True");
  Set("Playlist", "LastPlay", "1");
  for (const char* key : {"ShowMouse", "ShowTaskbar", "StartUp"}) Set("Settings", key, "1");
  Start();
  EXPECT_TRUE(Output().Visible);
  EXPECT_TRUE(Output().PicAd.Visible);
  EXPECT_TRUE(Output().Timer1.Enabled);
  EXPECT_TRUE(Output().PicSide.Visible);
  EXPECT_TRUE(station.forms.Loaded<frmPlaylist>());
  EXPECT_FALSE(Playlists().Visible);
  EXPECT_TRUE(ControlWindow().Visible);
  EXPECT_TRUE(sim.desktop.taskbarVisible);
  EXPECT_EQ(sim.desktop.cursorCount, 0);
  EXPECT_TRUE(ControlWindow().OutputShown && ControlWindow().CrawlerShown && ControlWindow().LeftSideAdShown);
}

TEST_F(StartUpTest, OnlyTheExactWordTrueTurnsAFeatureOn) {
  Set("Output", "Show", "true");
  Set("AdSettings", "Show", "1");
  Start();
  EXPECT_FALSE(Output().Visible);
  EXPECT_FALSE(Output().PicAd.Visible);
  EXPECT_FALSE(Output().Timer1.Enabled);
}

TEST_F(StartUpTest, ASideColumnComesBackAtTheLeftEdgeOfAWindowOfAnySize) {
  sim.files.Put("/station/Window.ini", "[frmPlayer]\r\nLeft=0\r\nTop=0\r\nWidth=24000\r\nHeight=13500\r\n");
  Set("Output", "Show", "True");
  Set("LeftSideAd", "Show", "True");
  Start();
  Advance(3s);
  EXPECT_EQ(Output().Width, 24000);
  EXPECT_EQ(Output().PicSide.Left, 0);
  EXPECT_EQ(Output().PicSide.Height, 13500 - Output().PicAd.Height);
  EXPECT_EQ(Output().FlashSideAd.Height, Output().PicSide.Height);
}

TEST_F(StartUpTest, ARelayoutShowsNoColumnThatIsSwitchedOff) {
  Start();
  Advance(3s);
  EXPECT_FALSE(Output().PicSide.Visible);
}

TEST_F(StartUpTest, WithoutTheSideAdThePlayerHasTheFullWidth) {
  Output().Player.Left = 100;
  Output().Player.Width = 100;
  Start();
  EXPECT_EQ(Output().Player.Left, 0);
  EXPECT_EQ(Output().Player.Width, Output().Width);
}

TEST_F(StartUpTest, ThePlaylistManagerIsLoadedOnlyWithLastPlay) {
  Start();
  EXPECT_FALSE(station.forms.Loaded<frmPlaylist>());
}

TEST_F(StartUpTest, AnOutputWindowOfBeforeIsMadeAnewWhenTheOutputIsNotOnMonitorTwo) {
  Output().PicAd.Left = 77;
  Start();
  EXPECT_EQ(Output().PicAd.Left, 0);
  EXPECT_TRUE(station.forms.Loaded<frmPlayer>());
}

TEST_F(StartUpTest, WithStartUpZeroOnlyCtrlMAndTheTrayLeadToTheControlWindow) {
  Set("Settings", "StartUp", "0");
  Start();
  EXPECT_FALSE(ControlWindow().Visible);
  sim.desktop.PressCtrl('M');
  EXPECT_TRUE(ControlWindow().Visible);
  ControlWindow().Hide();
  ControlWindow().Tray.DoubleClick();
  EXPECT_TRUE(ControlWindow().Visible);
}

TEST_F(StartUpTest, AnotherNumberInStartUpNeitherShowsNorHides) {
  Set("Settings", "StartUp", "2");
  Start();
  const auto lines = sim.trace.Take();
  EXPECT_EQ(std::ranges::count(lines, "frmMid shown"), 0);
}

TEST_F(StartUpTest, ANumberWrittenOtherwiseIsTheSameNumber) {
  Set("Settings", "ShowMouse", " 0.0 ");
  Set("Settings", "ShowTaskbar", "1");
  Start();
  EXPECT_EQ(sim.desktop.cursorCount, -1);
  EXPECT_TRUE(sim.desktop.taskbarVisible);
}

TEST_F(StartUpTest, TheTrayTipKeepsItsOlderWording) {
  Start();
  EXPECT_EQ(ControlWindow().Tray.TipText.Get(), "Corvanta 5.0");
  EXPECT_EQ(ControlWindow().Caption.Get(), "Corvanta 6.0");
}

TEST_F(StartUpTest, CtrlTBringsTheTaskbarBackForGood) {
  Start();
  sim.desktop.PressCtrl('T');
  EXPECT_TRUE(sim.desktop.taskbarVisible);
  EXPECT_EQ(Setting("Settings", "ShowTaskbar"), "1");
}

TEST_F(StartUpTest, CtrlOBringsTheCursorBackForGood) {
  Start();
  sim.desktop.PressCtrl('O');
  EXPECT_EQ(sim.desktop.cursorCount, 0);
  EXPECT_EQ(Setting("Settings", "ShowMouse"), "1");
}

TEST_F(StartUpTest, TheCloseBoxHidesTheControlWindowAndPlayGoesOn) {
  Playlist("Day.plt", {Clip("a.mp4", 2), Clip("b.mp4")});
  Set("Playlist", "OneAfterAnother", "1");
  Set("Settings", "StartUp", "1");
  Start();
  ControlWindow().ThemedButton5.Press();
  ControlWindow().Tray.Visible = false;
  ControlWindow().Close();
  EXPECT_FALSE(ControlWindow().Visible);
  EXPECT_TRUE(ControlWindow().Tray.Visible);
  Advance(3s);
  EXPECT_EQ(Aired(), (Names{"a.mp4", "b.mp4"}));
}

TEST_F(StartUpTest, TheMenuShowsThePlaylistManager) {
  Start();
  ControlWindow().mnuPlayList.Choose();
  EXPECT_TRUE(Playlists().Visible);
}

TEST_F(StartUpTest, NoInTheExitBoxChangesNothingAndTheTaskbarStays) {
  Start();
  sim.trace.Take();
  sim.desktop.PressCtrl('X');
  EXPECT_EQ(sim.trace.Take(), Names{"box \"Are You Sure you wnat to EXIT from Corvanta 6.0?\" \"Exit\""});
  EXPECT_FALSE(sim.desktop.taskbarVisible);
}

TEST_F(StartUpTest, YesInTheExitBoxBringsTheTaskbarBackAndUnloadsNothing) {
  Start();
  sim.trace.Take();
  sim.dialogs.answers = {Answer::kYes};
  sim.desktop.PressCtrl('X');
  EXPECT_EQ(sim.trace.Take(), (Names{"box \"Are You Sure you wnat to EXIT from Corvanta 6.0?\" \"Exit\"",
                                     "taskbar shown", "process ends"}));
}

TEST_F(StartUpTest, ASettingsFileThatCannotBeReadIsAFirstRun) {
  for (const char* section : {"Output", "AdSettings", "LeftSideAd"}) Set(section, "Show", "True");
  Set("Playlist", "LastPlay", "1");
  for (const char* key : {"ShowMouse", "ShowTaskbar", "StartUp"}) Set("Settings", key, "1");
  sim.files.SetFault("/station/Settings.ini", FileFault::kUnreadable);
  Start();
  EXPECT_EQ(sim.trace.Take(), kFirstRun);
  EXPECT_EQ(sim.desktop.cursorCount, -1);
  EXPECT_FALSE(sim.desktop.taskbarVisible);
  EXPECT_FALSE(ControlWindow().Visible);
  EXPECT_FALSE(Output().Visible || Output().PicAd.Visible || Output().PicSide.Visible || Output().Timer1.Enabled);
}

TEST_F(StartUpTest, AProgramOfAnotherNameIsRegisteredUnderThatName) {
  sim.desktop.programName = "channel \\ five";
  Start();
  const auto lines = sim.trace.Take();
  EXPECT_NE(std::ranges::find(lines, "run at log-on \"My App\" /station/channel \\ five"), lines.end());
}

TEST_F(StartUpTest, AFurtherStartOfTheStationBringsTheControlWindowForward) {
  Set("Settings", "StartUp", "0");
  Start();
  EXPECT_FALSE(ControlWindow().Visible);
  sim.desktop.StartAgain();
  EXPECT_TRUE(ControlWindow().Visible);
  bool asked = false;
  const auto watching = ControlWindow().ShowAsked.Subscribe([&] { asked = true; });
  sim.desktop.StartAgain();
  EXPECT_TRUE(asked) << "a window that is shown already comes to the front";
}

class MaskingTest : public StationTest {
 protected:
  // The output window with a strip of 1950 twips, at a place of its own.
  frmPlayer& OutputWithStrip() {
    sim.files.Put("/ads/scorl.jpg", "jpeg");
    sim.pictures.sizes = {{"/ads/scorl.jpg", {400, 90}}};
    station.Shared<CurrentAd>().CrawlerHeaderHeight = "600";
    Output().Height = 9000;
    Output().Left = 700;
    Output().ViewAd("", "/ads/scorl.jpg", "", "");
    return Output();
  }
};

TEST_F(MaskingTest, TheWindowIsCutDownToTheStripAtTheBottomOfTheScreenAndItsLeftEdgeStays) {
  ControlWindow();
  frmPlayer& output = OutputWithStrip();
  ControlWindow().mnuMasking.Choose();
  EXPECT_EQ(output.Height, 1950);
  EXPECT_EQ(output.PicAd.Top, 0);
  EXPECT_EQ(output.Top, 1080 * 15 - 1950);
  EXPECT_EQ(output.Left, 700);
  EXPECT_TRUE(output.OnTop);
  EXPECT_TRUE(ControlWindow().MaskingOn);
  EXPECT_TRUE(ControlWindow().mnuMasking.Checked);
}

TEST_F(MaskingTest, UnmaskingAlwaysGivesTheDesignHeightWhateverItWasBefore) {
  ControlWindow();
  frmPlayer& output = OutputWithStrip();
  ControlWindow().mnuMasking.Choose();
  ControlWindow().mnuMasking.Choose();
  EXPECT_EQ(output.Height, 11520);
  EXPECT_EQ(output.Top, (1080 * 15 - 11520) / 2);
  EXPECT_EQ(output.Left, (1920 * 15 - 15450) / 2);
  EXPECT_FALSE(output.OnTop);
  EXPECT_FALSE(ControlWindow().MaskingOn);
  EXPECT_EQ(output.PicAd.Top, 0);  // until the next ad
  output.SetHeight();
  EXPECT_EQ(output.PicAd.Top, 11520 - 1950);
}

TEST_F(MaskingTest, APowerCutWhileMaskedBringsTheWholeWindowBack) {
  ControlWindow();
  frmPlayer& output = OutputWithStrip();
  output.Top = 450;
  Advance(3s);
  ControlWindow().mnuMasking.Choose();
  Advance(3s);
  ASSERT_EQ(output.Height, 1950);

  Station next(sim.world, "/station");
  ConnectRoads(next);
  const auto& control = next.forms.Get<frmMid>();
  const auto& whole = next.forms.Get<frmPlayer>();
  for (const auto wait : {0s, 3s}) {  // before the re-layout and after it
    Advance(wait);
    EXPECT_EQ(whole.Height, 9000);
    EXPECT_EQ(whole.Width, 15450);
    EXPECT_EQ(whole.Left, 700);
    EXPECT_EQ(whole.Top, 450);
    EXPECT_FALSE(whole.OnTop);
    EXPECT_FALSE(control.MaskingOn);
    EXPECT_FALSE(control.mnuMasking.Checked);
  }
  EXPECT_EQ(whole.PicMedia.Height, 9000);
  EXPECT_EQ(whole.PicAd.Top, 9000 - whole.PicAd.Height);
}

TEST_F(MaskingTest, AWindowMaskedWithinTwoSecondsOfItsLoadStaysMasked) {
  sim.files.Put("/station/Window.ini", "[frmPlayer]\r\nLeft=30\r\nTop=30\r\nWidth=24000\r\nHeight=13500\r\n");
  ControlWindow();
  frmPlayer& output = Output();
  sim.files.Put("/ads/scorl.jpg", "jpeg");
  sim.pictures.sizes = {{"/ads/scorl.jpg", {400, 90}}};
  output.ViewAd("", "/ads/scorl.jpg", "", "");
  output.SideAd();
  Advance(1s);
  ControlWindow().mnuMasking.Choose();
  Advance(3s);
  EXPECT_EQ(output.Height, 1350);
  EXPECT_EQ(output.Top, 1080 * 15 - 1350);
  EXPECT_EQ(output.Left, 30);
  EXPECT_EQ(output.PicAd.Top, 0);
  EXPECT_EQ(output.PicAd.Width, 24000);
  EXPECT_TRUE(output.OnTop);
  EXPECT_TRUE(ControlWindow().MaskingOn);
  // What stands behind the mask is laid out for the whole window.
  EXPECT_EQ(output.PicMedia.Height, 13500);
  EXPECT_EQ(output.Player.Width, 24000);
  EXPECT_EQ(output.PicSide.Height, 13500 - 1350);
  ControlWindow().mnuMasking.Choose();
  EXPECT_EQ(output.Height, 11520);
  IniFile store(sim.files);
  store.SetPath("/station/Window.ini");
  EXPECT_EQ(store.ReadValue("frmPlayer", "Height", ""), "13500");
}

TEST_F(MaskingTest, AnOutputWindowMadeAnewIsWholeWhileMaskingStaysOn) {
  ControlWindow();
  OutputWithStrip();
  Advance(3s);
  ControlWindow().mnuMasking.Choose();
  station.forms.Unload<frmPlayer>();
  for (const auto wait : {0s, 3s}) {
    Output();
    Advance(wait);
    EXPECT_EQ(Output().Height, 9000);
    EXPECT_FALSE(Output().OnTop);
  }
  EXPECT_TRUE(ControlWindow().MaskingOn);
  ControlWindow().mnuMasking.Choose();
  EXPECT_FALSE(ControlWindow().MaskingOn);
  EXPECT_EQ(Output().Height, 11520);
}
