#include "settings/Numbers.h"
#include "tests/StationTest.h"

using namespace std::chrono_literals;

class OutputWindowTest : public StationTest {
 protected:
  OutputWindowTest() {
    sim.pictures.sizes = {{"/ads/scorl.jpg", {400, 90}},
                          {"/ads/header.jpg", {1030, 40}},
                          {"/ads/HEADER.JPG", {1030, 40}},
                          {"/ads/left.jpg", {60, 130}},
                          {"/ads/right.jpg", {80, 130}}};
    for (const auto& [path, size] : sim.pictures.sizes) sim.files.Put(path, "jpeg");
    sim.files.Put("/ads/left.swf", "movie");
    ad.CrawlerSpeed = "30";
    ad.CrawlerHeaderHeight = "600";
    ad.CrawlerSideWidth = "1000";
  }

  // The panes that the load and the re-layout lay out, front to back.
  static std::vector<Control*> Laid(frmPlayer& form) {
    return {&form.PicVideoAd, &form.AdPlayer,   &form.picNext,   &form.picOnline, &form.PlayerOnline,
            &form.PicAd,      &form.FlashRight, &form.FlashLeft, &form.pic,       &form.Flash,
            &form.PicMedia,   &form.Player,     &form.PicAv};
  }
  // Left, top, width and height of the window and of all that is in it, front to back.
  static Names Measures(const frmPlayer& form) {
    Names lines{Line(form)};
    AddMeasures(lines, form.Controls());
    return lines;
  }
  static void AddMeasures(Names& lines, const std::vector<Control*>& controls) {
    for (const Control* control : controls) {
      lines.push_back(Line(*control));
      AddMeasures(lines, control->Children());
    }
  }
  template <class Measured>
  static std::string Line(const Measured& one) {
    std::string text = one.Name();
    for (const Twips measure : {one.Left.Get(), one.Top.Get(), one.Width.Get(), one.Height.Get()}) {
      text += " " + DoubleText(measure);
    }
    return text;
  }
  // Names front to back, what a pane holds behind it in brackets.
  static std::string Tree(const std::vector<Control*>& controls) {
    std::string text;
    for (const Control* control : controls) {
      text += (text.empty() ? "" : " ") + control->Name();
      if (!control->Children().empty()) text += "(" + Tree(control->Children()) + ")";
    }
    return text;
  }

  CurrentAd& ad = station.Shared<CurrentAd>();
};

TEST_F(OutputWindowTest, TheLoadLaysEveryPaneOut) {
  ad.CrawlerAdTop = "150";
  EXPECT_EQ(Measures(Output()), (Names{
                                    "frmPlayer 0 0 15450 11520",
                                    "PicVideoAd 0 0 15450 11520",
                                    "AdPlayer 0 0 15450 12420",
                                    "PicSide 0 0 3000 0",
                                    "FlashSideAd 0 0 0 0",
                                    "picNext 19950 5310 4500 900",
                                    "PlayerNext 0 450 4500 450",
                                    "lblUpNext 0 0 4500 450",
                                    "picOnline 0 0 15450 11520",
                                    "lblChannelName 0 0 9000 450",
                                    "PlayerOnline 0 0 15450 12120",
                                    "PicAd 0 10770 15450 600",
                                    "FlashRight 14450 0 1000 600",
                                    "FlashLeft 0 0 1000 600",
                                    "picSize 0 0 0 0",
                                    "pic 0 600 0 0",
                                    "Flash 0 0 15450 600",
                                    "PicMedia 0 0 15450 11520",
                                    "Player 0 0 15450 12420",
                                    "PicAv 2197.5 2572.5 11055 6375",
                                    "m 0 0 0 0",
                                }));
}

TEST_F(OutputWindowTest, TheRelayoutLaysEveryPaneOutAnewInTheSizeThatTheStoreGave) {
  sim.files.Put("/station/Window.ini", "[frmPlayer]\r\nLeft=15\r\nTop=30\r\nWidth=28800\r\nHeight=16200\r\n");
  frmPlayer& form = Output();
  form.Timer1.Enabled = false;
  form.ViewAd("/ads/header.jpg", "/ads/scorl.jpg", "/ads/left.jpg", "/ads/right.jpg");
  for (Control* pane : Laid(form)) {
    pane->Left = 111;
    pane->Top = 222;
  }
  for (Control* pane : std::initializer_list<Control*>{&form.PicMedia, &form.Player, &form.PicAd, &form.PicVideoAd,
                                                       &form.AdPlayer, &form.picOnline, &form.PlayerOnline, &form.Flash,
                                                       &form.FlashLeft, &form.FlashRight}) {
    pane->Width = 333;
    pane->Height = 444;
  }
  Advance(2100ms);
  EXPECT_EQ(Measures(form), (Names{
                                "frmPlayer 15 30 28800 16200",
                                "PicVideoAd 0 0 28800 16200",
                                "AdPlayer 0 0 28800 17100",
                                "PicSide 0 0 3000 0",
                                "FlashSideAd 0 0 0 0",
                                "picNext 33300 7650 4500 900",
                                "PlayerNext 0 450 4500 450",
                                "lblUpNext 0 0 4500 450",
                                "picOnline 0 0 28800 16200",
                                "lblChannelName 0 0 9000 450",
                                "PlayerOnline 0 0 28800 16800",
                                "PicAd 0 14250 28800 1950",
                                "FlashRight 27800 0 1000 1950",
                                "FlashLeft 0 0 1000 1950",
                                "picSize 0 0 1200 1950",
                                "pic 0 600 6000 1350",
                                "Flash 0 0 28800 600",
                                "PicMedia 0 0 28800 16200",
                                "Player 0 0 28800 17100",
                                "PicAv 8872.5 4912.5 11055 6375",
                                "m 0 0 0 0",
                            }));
}

TEST_F(OutputWindowTest, PanesStartVisibleOrHiddenAsTheChannelNeedsThem) {
  const frmPlayer& form = Output();
  for (const Control* hidden :
       std::initializer_list<const Control*>{&form.PicVideoAd, &form.PicSide, &form.picOnline, &form.picSize}) {
    EXPECT_FALSE(hidden->Visible) << hidden->Name();
  }
  for (const Control* shown :
       std::initializer_list<const Control*>{&form.PicAd, &form.picNext, &form.PicMedia, &form.PicAv}) {
    EXPECT_TRUE(shown->Visible) << shown->Name();
  }
}

TEST_F(OutputWindowTest, ThePanesStandInTheirOrderFrontToBack) {
  EXPECT_EQ(Tree(Output().Controls()),
            "PicVideoAd(AdPlayer) PicSide(FlashSideAd) picNext(PlayerNext lblUpNext) "
            "picOnline(lblChannelName PlayerOnline) PicAd(FlashRight FlashLeft picSize pic Flash) "
            "PicMedia(Player PicAv) m");
}

TEST_F(OutputWindowTest, ThePlayersHaveTheirVolumesAndStretch) {
  Output();
  const auto expect = [this](const std::string& name, int volume, bool stretch) {
    const SimPlayer& player = *sim.media.Find("frmPlayer." + name);
    EXPECT_EQ(player.Volume(), volume) << name;
    EXPECT_EQ(player.StretchToFit(), stretch) << name;
    EXPECT_FALSE(player.Mute()) << name;
  };
  expect("Player", 50, true);
  expect("AdPlayer", 50, false);
  expect("PlayerOnline", 100, true);
  expect("m", 50, false);
}

TEST_F(OutputWindowTest, ItsTimersHaveTheirIntervalsAndTwoRunFromTheStart) {
  EXPECT_EQ(Timers(Output()), (Names{"Timer1 1 ms on", "Timer2 10 ms", "Timer3 10 ms", "Timer4 2000 ms on",
                                     "TimerMedia 500 ms", "TimerAdPlayer 500 ms"}));
}

TEST_F(OutputWindowTest, TheBannerSaysWhatItAlwaysSaid) {
  EXPECT_EQ(Output().PlayerNext.Text.Get(), "Press Ctrl+M for main menu");
  EXPECT_EQ(Output().lblUpNext.Text.Get(), "Up next:");
  EXPECT_EQ(Output().lblChannelName.Text.Get(), "");
}

TEST_F(OutputWindowTest, AnAdIsLaidOutHeaderOverPictureWithTheCapsOverTheEnds) {
  frmPlayer& form = Output();
  ad.CrawlerAdTop = "150";
  form.ViewAd("/ads/header.jpg", "/ads/scorl.jpg", "/ads/left.jpg", "/ads/right.jpg");
  EXPECT_EQ(form.Flash.Height, 600);
  EXPECT_EQ(form.pic.Top, 600);
  EXPECT_EQ(form.pic.Width, 400 * 15);
  EXPECT_EQ(form.PicAd.Height, 600 + 90 * 15);
  EXPECT_EQ(form.PicAd.Top, 11520 - 1950 - 150);
  EXPECT_EQ(form.FlashLeft.Width, 1000);  // the setting has the last word over the picture's own width
  EXPECT_EQ(form.FlashLeft.Height, 1950);
  EXPECT_EQ(form.FlashRight.Left, 15450 - 1000);
  EXPECT_TRUE(form.FlashLeft.Visible);
  EXPECT_TRUE(form.FlashRight.Visible);
}

TEST_F(OutputWindowTest, AHeaderInCapitalsIsNotTakenForAPictureButShownAllTheSame) {
  frmPlayer& form = Output();
  form.ViewAd("/ads/HEADER.JPG", "/ads/scorl.jpg", "", "");
  EXPECT_EQ(form.picSize.Width, 0);  // never looked at
  EXPECT_EQ(form.Flash.Movie.Get(), "/ads/HEADER.JPG");
}

TEST_F(OutputWindowTest, WithoutALeftPanelOnlyTheRightOneShows) {
  frmPlayer& form = Output();
  form.ViewAd("/ads/header.jpg", "/ads/scorl.jpg", "", "/ads/right.jpg");
  EXPECT_FALSE(form.FlashLeft.Visible);
  EXPECT_TRUE(form.FlashRight.Visible);
  EXPECT_EQ(form.pic.Left, 0);
}

TEST_F(OutputWindowTest, AStripLiftedBeyondTheTopIsCutOffThere) {
  ad.CrawlerAdTop = "12000";
  Output().ViewAd("/ads/header.jpg", "/ads/scorl.jpg", "", "");
  EXPECT_EQ(Output().PicAd.Top, 11520 - 1950 - 12000);
}

TEST_F(OutputWindowTest, APictureThatCannotBeLoadedLeavesTheOldOneOnTheBand) {
  frmPlayer& form = Output();
  form.ViewAd("/ads/header.jpg", "/ads/scorl.jpg", "", "");
  Advance(1s);
  form.ViewAd("/ads/none.jpg", "/ads/none.jpg", "", "");
  EXPECT_EQ(form.pic.Picture.Get().path, "/ads/scorl.jpg");
  Advance(1s);
  EXPECT_EQ(sim.flash.Find("frmPlayer.Flash")->Shown(), "/ads/header.jpg");
}

TEST_F(OutputWindowTest, AnEmptyHeaderLeavesTheBandEmpty) {
  Output().ViewAd("/ads/header.jpg", "/ads/scorl.jpg", "", "");
  Output().ViewAd("", "/ads/scorl.jpg", "", "");
  EXPECT_EQ(Output().Flash.Movie.Get(), "");
  EXPECT_EQ(sim.flash.Find("frmPlayer.Flash")->Shown(), "");
}

TEST_F(OutputWindowTest, APictureWrittenAnewUnderItsOldNameIsLoadedAnew) {
  Output().ViewAd("", "/ads/scorl.jpg", "", "");
  int told = 0;
  const auto listening = Output().pic.Picture.Changed.Subscribe([&told] { ++told; });
  Output().ViewAd("", "/ads/scorl.jpg", "", "");
  EXPECT_EQ(told, 1);
}

TEST_F(OutputWindowTest, TheBandScrollsBySpeedATickAndTellsWhenThePictureHasLeft) {
  frmPlayer& form = Output();
  Advance(3s);  // past the relayout
  form.ViewAd("", "/ads/scorl.jpg", "", "");
  int left = 0;
  form.CrawlerLeft.Connect([&left] { ++left; });
  Advance(1s);
  EXPECT_EQ(form.pic.Left, -30 * 60);  // sixty ticks a second
  // With width W and step S, the picture has left on tick floor(W / S) + 2 of the pass.
  Twips last = 0;
  while (left == 0) {
    last = form.pic.Left;
    Advance(1ms);
  }
  EXPECT_EQ(last, -30 * (6000 / 30 + 1));
}

TEST_F(OutputWindowTest, ASpeedOfNoNumberNeverMovesThePicture) {
  ad.CrawlerSpeed = "";
  Output().ViewAd("", "/ads/scorl.jpg", "", "");
  Advance(10s);
  EXPECT_EQ(Output().pic.Left, 0);
}

TEST_F(OutputWindowTest, TheSideColumnStandsAtTheLeftEdgeAndMakesNoRoom) {
  frmPlayer& form = Output();
  form.ViewAd("/ads/header.jpg", "/ads/scorl.jpg", "", "");
  for (Control* pane : std::initializer_list<Control*>{&form.PicSide, &form.FlashSideAd}) {
    pane->Left = 111;
    pane->Top = 222;
  }
  form.SideAd();
  EXPECT_TRUE(form.PicSide.Visible);
  EXPECT_EQ(form.PicSide.Left, 0);
  EXPECT_EQ(form.PicSide.Top, 0);
  EXPECT_EQ(form.PicSide.Width, 3000);
  EXPECT_EQ(form.FlashSideAd.Left, 0);
  EXPECT_EQ(form.FlashSideAd.Top, 0);
  EXPECT_EQ(form.PicSide.Height, 11520 - 1950);
  EXPECT_EQ(form.FlashSideAd.Height, form.PicSide.Height);
  EXPECT_EQ(form.FlashSideAd.Width, form.PicSide.Width);
  EXPECT_EQ(form.Player.Width, 15450);
}

TEST_F(OutputWindowTest, TheRelayoutAfterTwoSecondsPutsTheStripBackAndKeepsItsMovies) {
  frmPlayer& form = Output();
  form.ViewAd("/ads/header.jpg", "/ads/scorl.jpg", "/ads/left.jpg", "");
  form.PicAd.Left = 100;
  form.picNext.Left = 0;
  Advance(2100ms);
  EXPECT_EQ(form.PicAd.Left, 0);
  EXPECT_EQ(form.picNext.Left, 15450 + form.picNext.Width);
  EXPECT_EQ(form.Flash.Movie.Get(), "/ads/header.jpg");
  EXPECT_EQ(form.FlashLeft.Movie.Get(), "/ads/left.jpg");
  EXPECT_FALSE(form.Timer4.Enabled);
}

TEST_F(OutputWindowTest, AnEventOfTheBannerBringsOneMoreRelayout) {
  frmPlayer& form = Output();
  Advance(3s);
  form.PicAd.Left = 100;
  form.picNext.PressMouse(MouseButton::kLeft);
  Advance(1900ms);
  EXPECT_EQ(form.PicAd.Left, 100);
  Advance(200ms);
  EXPECT_EQ(form.PicAd.Left, 0);
}

TEST_F(OutputWindowTest, AfterTheRelayoutTheWindowStandsWhereTheOperatorHadPutIt) {
  frmPlayer& form = Output();
  form.Left = 28800;
  form.Top = 450;
  Advance(2500ms);
  EXPECT_EQ(form.Left, 28800);
  EXPECT_EQ(form.Top, 450);
  IniFile store(sim.files);
  store.SetPath("/station/Window.ini");
  EXPECT_EQ(store.ReadValue("frmPlayer", "Left", ""), "28800");
}

TEST_F(OutputWindowTest, TheSizeComesFromThePositionStoreAndTheRelayoutFillsIt) {
  sim.files.Put("/station/Window.ini", "[frmPlayer]\r\nLeft=15\r\nTop=30\r\nWidth=28800\r\nHeight=16200\r\n");
  frmPlayer& form = Output();
  EXPECT_EQ(form.Width, 28800);
  EXPECT_EQ(form.Left, 15);
  EXPECT_EQ(form.PicMedia.Width, 15450);  // laid out before the store had its say
  Advance(2100ms);
  EXPECT_EQ(form.PicMedia.Width, 28800);
  EXPECT_EQ(form.Player.Height, 16200 + 900);
  EXPECT_EQ(form.Top, 30);
}

TEST_F(OutputWindowTest, ATornPositionStoreLeavesTheDesignSize) {
  sim.files.Put("/station/Window.ini", "[frmPlayer]\r\nLeft=9999999999\r\nTop=x\r\nWidth=-5\r\nHeight=16200\r\n");
  EXPECT_EQ(Output().Width, 15450);
  EXPECT_EQ(Output().Height, 11520);
}

TEST_F(OutputWindowTest, ThePlaceRecordedIsNeverTheCornerOfTheRelayout) {
  Output().Left = 28800;
  Advance(1s);
  int written = 0;
  const std::string before = sim.files.Read("/station/Window.ini").value_or("");
  for (int i = 0; i < 40; ++i) {
    Advance(100ms);
    if (sim.files.Read("/station/Window.ini") != before) ++written;
  }
  EXPECT_EQ(written, 0);
}

TEST_F(OutputWindowTest, TheStripCanBePulledUpAndDownAndSnapsBackToTheCentre) {
  frmPlayer& form = Output();
  form.ViewAd("/ads/header.jpg", "/ads/scorl.jpg", "", "");
  sim.trace.Take();
  form.pic.PressMouse(MouseButton::kLeft);
  EXPECT_EQ(sim.trace.Take(), Names{"frmPlayer PicAd dragged"});
  form.PicAd.Top = 500;
  form.PicAd.Left = 300;
  sim.windows.EndDrag();
  EXPECT_EQ(form.PicAd.Left, 0);
  EXPECT_EQ(form.PicAd.Top, 500);
  form.SetHeight();
  EXPECT_EQ(form.PicAd.Top, 11520 - 1950);
}

TEST_F(OutputWindowTest, APressOnTheBareFormMovesTheWindow) {
  Output();
  sim.trace.Take();
  Output().PressMouse({.buttons = 1});
  EXPECT_EQ(sim.trace.Take(), Names{"frmPlayer dragged"});
}

TEST_F(OutputWindowTest, TheBannerStaysParkedUnlessItsTimerIsStarted) {
  frmPlayer& form = Output();
  Advance(1min);
  EXPECT_EQ(form.picNext.Left, 15450 + form.picNext.Width);
  form.Timer3.Enabled = true;
  Advance(1min);
  EXPECT_EQ(form.picNext.Left, 15450 - form.picNext.Width);
  EXPECT_FALSE(form.Timer3.Enabled);
}
