#include "ads/frmScrlAd.h"
#include "tests/ads/CrawlerTest.h"

namespace {

using AdViewTest = CrawlerTest;

constexpr Twips kScreenHeight = 1080 * kTwipsPerPixel;

TEST_F(AdViewTest, TheFirstAdLoadsItHidden) {
  Ads({"a"});
  Desk();
  ASSERT_TRUE(station.forms.Loaded<frmAdView>());
  EXPECT_FALSE(Preview().Visible);
  EXPECT_EQ(Preview().pic.Picture.Get().path, In("a", "scorl.jpg"));
  EXPECT_EQ(Preview().Caption.Get(), "Ad's preview");
  EXPECT_TRUE(Preview().OnTop);
}

TEST_F(AdViewTest, WithAutoPreviewItShowsAtTheFirstAdOfTheStart) {
  Ads({"a"});
  Set("AdSettings", "AutoView", "1");
  Desk();
  EXPECT_TRUE(Preview().Visible);
}

TEST_F(AdViewTest, WithAutoPreviewItPopsUpAgainAtEachAdWhenItWasClosed) {
  Ads({"a", "b"});
  Set("AdSettings", "AutoView", "1");
  Desk();
  Preview().Close();
  EXPECT_FALSE(station.forms.Loaded<frmAdView>());
  Desk().NextAd();
  EXPECT_TRUE(Preview().Visible);
}

TEST_F(AdViewTest, ClosedItIsUnloadedAndTheNextAdMakesItAfreshAndHidden) {
  Ads({"a", "b"});
  Desk();
  Preview().Show();
  Preview().Close();
  EXPECT_FALSE(station.forms.Loaded<frmAdView>());
  Desk().NextAd();
  ASSERT_TRUE(station.forms.Loaded<frmAdView>());
  EXPECT_FALSE(Preview().Visible);
  EXPECT_EQ(Preview().pic.Picture.Get().path, In("b", "scorl.jpg"));
}

TEST_F(AdViewTest, ItsPictureFillsWhatIsInsideTheFrameAndItEndsAThousandTwipsAboveTheBottom) {
  Ad("a", {.headerHeight = "600", .top = "5000"});
  Desk();
  EXPECT_EQ(Preview().Height, 90 * 15 + 600 + 490);
  EXPECT_EQ(Preview().Top, kScreenHeight - Preview().Height - 1000);
  EXPECT_EQ(Preview().Flash.Width, Preview().Width);
  EXPECT_EQ(Preview().pic.Top, 600);
  EXPECT_EQ(Preview().FlashRight.Left, Preview().Width - 1000);
}

TEST_F(AdViewTest, PreviewsAreSilentAndTheBandIsNot) {
  Ads({"a"});
  Desk();
  for (const FlashBox* box : {&Preview().Flash, &Preview().FlashLeft, &Desk().FlashHeader, &Desk().FlashRight}) {
    EXPECT_TRUE(box->Silent) << box->Name();
  }
  EXPECT_FALSE(Output().Flash.Silent);
}

TEST_F(AdViewTest, ThePositionSliderDoesNotTouchIt) {
  Ads({"a"});
  Desk();
  Tick(100);
  const Twips left = Preview().pic.Left;
  ASSERT_LT(left, 0);
  Desk().SldAdTop.LetGo(3000);
  EXPECT_EQ(Preview().pic.Left, left);
}

TEST_F(AdViewTest, AnAdWithoutSideFilesHidesBothPanels) {
  Ad("a", {.left = "left.jpg", .right = "right.swf"});
  Ad("b");
  Desk();
  EXPECT_TRUE(Preview().FlashLeft.Visible);
  EXPECT_TRUE(Preview().FlashRight.Visible);
  Desk().NextAd();
  EXPECT_FALSE(Preview().FlashLeft.Visible);
  EXPECT_FALSE(Preview().FlashRight.Visible);
}

TEST_F(AdViewTest, TheSizesOfTheSidePicturesHaveNoLastingEffect) {
  Ad("a", {.left = "left.jpg", .sideWidth = "700"});
  Desk();
  EXPECT_EQ(Preview().PicLeft.Width, 60 * 15);
  EXPECT_EQ(Preview().FlashLeft.Width, 700);
}

TEST_F(AdViewTest, ItScrollsWhetherItIsSeenOrNotAndStaysOutOfSightAfterThePass) {
  Ad("a", {.width = 40});
  Desk();
  Output().Timer1.Enabled = false;  // no next ad from the band
  Desk().ListAd.ClickRow(1);
  Tick(10);
  EXPECT_EQ(Preview().pic.Left, -300);
  Tick(1000);
  EXPECT_EQ(Preview().pic.Left, -600 - 30);
  Desk().sldHeight.Move(500);
  EXPECT_EQ(Preview().pic.Left, 0);
}

TEST_F(AdViewTest, WithoutASpeedThePictureStandsStill) {
  Picture("/art/top.jpg", {300, 40});
  Picture("/art/text.jpg", {300, 90});
  sim.dialogs.files = {"/art/top.jpg", "/art/text.jpg"};
  Desk().btnHeader.Press();
  Desk().btnLoadScorl.Press();
  Desk().btnView.Press();
  Tick(100);
  EXPECT_EQ(Preview().pic.Left, 0);
}

TEST_F(AdViewTest, TheSpeedSliderActsAtTheNextTick) {
  Ads({"a"});
  Desk().ListAd.ClickRow(1);
  Desk().SldSpeed.Move(90);
  Tick();
  EXPECT_EQ(Preview().pic.Left, -90);
}

TEST_F(AdViewTest, APictureThatDoesNotLoadLeavesTheOldOne) {
  Ads({"a", "b"});
  sim.pictures.sizes.erase(In("b", "scorl.jpg"));
  Desk();
  Desk().NextAd();
  EXPECT_EQ(Preview().pic.Picture.Get().path, In("a", "scorl.jpg"));
}

class ScrollWindowTest : public CrawlerTest {
 protected:
  ScrollWindowTest() { Picture("/art/text.jpg", {100, 90}); }
  frmScrlAd& Window() { return station.forms.Get<frmScrlAd>(); }
};

TEST_F(ScrollWindowTest, NothingInTheStationOpensIt) {
  Ads({"a"});
  Set("AdSettings", "Show", "True");
  ControlWindow();
  Tick(1000);
  EXPECT_FALSE(station.forms.Loaded<frmScrlAd>());
}

TEST_F(ScrollWindowTest, ItIsAsWideAsTheScreenAndInItsMiddle) {
  EXPECT_EQ(Window().Width, 1920 * 15);
  EXPECT_EQ(Window().Left, 0);
  EXPECT_EQ(Window().Top + Window().Height / 2, kScreenHeight / 2);
}

TEST_F(ScrollWindowTest, ItScrollsBySixtyTwipsATickAndComesInFromTheRightAgain) {
  Window().pic.LoadPicture("/art/text.jpg");
  Tick(10);
  EXPECT_EQ(Window().pic.Left, -600);
  Tick(16);
  EXPECT_EQ(Window().pic.Left, -1560);
  Tick();
  EXPECT_EQ(Window().pic.Left, 1920 * 15 - 1);
}

TEST_F(ScrollWindowTest, PulledByItsPictureItSnapsBackToTheMiddle) {
  Window().pic.LoadPicture("/art/text.jpg");
  Window().pic.PressMouse(MouseButton::kLeft);
  Window().Left = 777;
  Window().Top = 888;
  sim.windows.EndDrag();
  EXPECT_EQ(Window().Left, 0);
  EXPECT_EQ(Window().Top, 888);
}

TEST_F(ScrollWindowTest, ItsEdgesCanBePulled) {
  const Twips height = Window().Height;
  Window().PressMouse({.x = 5000, .y = height - 15, .buttons = 1});
  sim.windows.MovePointer(0, 300);
  sim.windows.EndDrag();
  EXPECT_EQ(Window().Height, height + 300);
}

}  // namespace
