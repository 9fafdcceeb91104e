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

  CurrentAd& ad = station.Shared<CurrentAd>();
};

TEST_F(OutputWindowTest, TheLoadLaysEveryPaneOut) {
  frmPlayer& form = Output();
  EXPECT_EQ(form.Width, 15450);
  EXPECT_EQ(form.Height, 11520);
  for (const Control* pane : std::initializer_list<const Control*>{&form.PicMedia, &form.PicVideoAd, &form.picOnline}) {
    EXPECT_EQ(pane->Width, 15450) << pane->Name();
    EXPECT_EQ(pane->Height, 11520) << pane->Name();
  }
  EXPECT_EQ(form.Player.Height, 11520 + 900);
  EXPECT_EQ(form.AdPlayer.Height, 11520 + 900);
  EXPECT_EQ(form.PlayerOnline.Height, 11520 + 600);
  EXPECT_EQ(form.PicAv.Left, (15450 - 11055) / 2.0);
  EXPECT_EQ(form.PicAv.Top, (11520 - 6375) / 2.0);
  EXPECT_EQ(form.picNext.Left, 15450 + form.picNext.Width);
  EXPECT_EQ(form.PicAd.Width, 15450);
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
  std::string order;
  for (const Control* control : Output().Controls()) order += control->Name() + " ";
  EXPECT_EQ(order, "PicVideoAd PicSide picNext picOnline PicAd PicMedia m ");
  order.clear();
  for (const Control* control : Output().PicAd.Children()) order += control->Name() + " ";
  EXPECT_EQ(order, "FlashRight FlashLeft picSize pic Flash ");
}

TEST_F(OutputWindowTest, ThePlayersHaveTheirVolumesAndStretch) {
  Output();
  EXPECT_TRUE(sim.media.Find("frmPlayer.Player")->StretchToFit());
  EXPECT_FALSE(sim.media.Find("frmPlayer.AdPlayer")->StretchToFit());
  EXPECT_EQ(sim.media.Find("frmPlayer.Player")->Volume(), 50);
  EXPECT_EQ(sim.media.Find("frmPlayer.PlayerOnline")->Volume(), 100);
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
  form.ViewAd("/ads/none.jpg", "/ads/none.jpg", "", "");
  EXPECT_EQ(form.pic.Picture.Get().path, "/ads/scorl.jpg");
  EXPECT_EQ(form.Flash.Movie.Get(), "/ads/header.jpg");
}

TEST_F(OutputWindowTest, AnEmptyHeaderLeavesTheBandEmpty) {
  Output().ViewAd("/ads/header.jpg", "/ads/scorl.jpg", "", "");
  Output().ViewAd("", "/ads/scorl.jpg", "", "");
  EXPECT_EQ(Output().Flash.Movie.Get(), "");
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
  while (left == 0) Advance(1ms);
  EXPECT_EQ(form.pic.Left, -30 * (6000 / 30 + 1));
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
  form.SideAd();
  EXPECT_TRUE(form.PicSide.Visible);
  EXPECT_EQ(form.PicSide.Left, 0);
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
  Output().PressMouse(MouseButton::kLeft);
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
