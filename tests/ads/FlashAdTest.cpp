// What the flash ad's rotation does otherwise than the left column's.
#include "overlay/mdlFlash.h"
#include "tests/ads/MovieRotationTest.h"

using namespace std::chrono_literals;

namespace {

class FlashAdTest : public MovieRotationTest<OverlaySide> {
 protected:
  frmFlashAdShow& Window() { return station.forms.Get<frmFlashAdShow>(); }
  bool HasKeyColour() { return Window().KeyInForce().has_value(); }
};

TEST_F(FlashAdTest, TheWindowHasTheKeyColourFromItsFirstMovieOn) {
  Movie("Sweets", "a.swf");
  RunWith("Sweets");
  Window().Show();
  EXPECT_FALSE(HasKeyColour());
  Advance(20ms);
  EXPECT_TRUE(HasKeyColour());
}

TEST_F(FlashAdTest, SizeBoxAndCategoryAreRestoredWithTheAdSwitchedOffToo) {
  Movie("Sweets", "a.swf");
  Store("Show", "False");
  Store("Height", "2500");
  Store("Width", "4500");
  Store("ShowLogo", "1");
  Store("LastPath", Category("Sweets"));
  EXPECT_EQ(Desk().sldHeight.Value.Get(), 2500);
  EXPECT_EQ(Desk().SlidWidth.Value.Get(), 4500);
  EXPECT_TRUE(Desk().chkShowLogo.Ticked());
  EXPECT_EQ(Listed(), Names{"a.swf"});
  EXPECT_FALSE(Desk().TimerFlash.Enabled);
}

// Meant so: the window's size is its own to remember, and the sliders have their say when they are moved.
TEST_F(FlashAdTest, SizesThatAreRestoredResizeNoWindow) {
  Store("Show", "True");
  Store("Height", "2500");
  Store("Width", "4500");
  Desk();
  EXPECT_EQ(Window().Height.Get(), 3000);
  EXPECT_EQ(Window().Width.Get(), 3000);
}

TEST_F(FlashAdTest, TheSlidersSetTheSizeOfTheWindowHeightFirst) {
  frmFlashAdSett& desk = Desk();
  desk.sldHeight.Move(3000);
  EXPECT_EQ(desk.sldHeight.Max.Get(), 1080 * 15);
  EXPECT_EQ(desk.sldHeight.LargeChange.Get(), 1000);
  EXPECT_EQ(desk.SlidWidth.Max.Get(), 40400) << "only the slider that is moved gets the screen's range";
  desk.SlidWidth.Move(6000);
  EXPECT_EQ(Window().Height.Get(), 3000);
  EXPECT_EQ(Window().Width.Get(), 6000);
  EXPECT_EQ(Stored("Height"), "3000");
  EXPECT_EQ(Stored("Width"), "6000");
}

TEST_F(FlashAdTest, BeforeAnySizeIsStoredTheSlidersStandAtThatOfTheWindowAndOneMoveLeavesTheOtherMeasure) {
  const double width = Window().Width;
  EXPECT_EQ(Desk().SlidWidth.Value.Get(), width);
  Desk().sldHeight.Move(5000);
  EXPECT_EQ(Window().Height.Get(), 5000);
  EXPECT_EQ(Window().Width.Get(), width);
}

TEST_F(FlashAdTest, AWidthBeyondSixteenBitsIsStoredAndLeavesTheWindowAsItIs) {
  sim.windows.screenSize = {3840, 1080};
  frmFlashAdSett& desk = Desk();
  desk.SlidWidth.Move(6000);
  const double width = Window().Width;
  desk.SlidWidth.Move(40000);
  EXPECT_EQ(Stored("Width"), "40000");
  EXPECT_EQ(Window().Width.Get(), width);
}

TEST_F(FlashAdTest, TheTransparentBoxSwitchesTheKeyColourAndIsNotStored) {
  Movie("Sweets", "a.swf");
  frmFlashAdSett& desk = RunWith("Sweets");
  Advance(1s);
  const auto settings = sim.files.Read("/station/Settings.ini");
  desk.chkTransparent.Toggle();
  EXPECT_FALSE(HasKeyColour());
  desk.chkTransparent.Toggle();
  EXPECT_TRUE(HasKeyColour());
  desk.chkTransparent.Toggle();
  EXPECT_EQ(sim.files.Read("/station/Settings.ini"), settings);
  desk.File.Pick(0);
  EXPECT_TRUE(HasKeyColour()) << "each movie brings it back, whatever the box shows";
}

TEST_F(FlashAdTest, ThePreviewOnTheFormStaysEmpty) {
  for (const char* name : {"a.swf", "b.swf"}) Movie("Sweets", name);
  RunWith("Sweets");
  Advance(10s);
  EXPECT_EQ(Desk().FlashPreview.Movie.Get(), "");
}

TEST_F(FlashAdTest, TheListShowsTheCategoriesFromTheStart) {
  Movie("Sweets", "a.swf");
  EXPECT_EQ(Categories(), Names{"Sweets"});
}

TEST_F(FlashAdTest, ADeletedMovieStopsTheRotationAndTheListStaysWhereItIsForWantOfTheWrongFolder) {
  for (const char* name : {"a.swf", "b.swf"}) Movie("Sweets", name);
  frmFlashAdSett& desk = RunWith("Sweets");
  PickCategory("Sweets");
  Advance(1s);
  Answers(Answer::kYes);
  desk.btnDelete.Press();
  EXPECT_FALSE(desk.TimerFlash.Enabled);
  EXPECT_EQ(desk.File.Path.Get(), Category("Sweets"));
  EXPECT_EQ(Listed(), Names{"b.swf"});
  sim.trace.Take();
  Advance(10s);
  EXPECT_EQ(Aired(), Names{}) << "until it is switched off and on";
}

TEST_F(FlashAdTest, AfterADeleteTheListGoesOneLevelTooHighWhereThereIsSuchAFolder) {
  Movie("Logo", "a.swf");
  frmFlashAdSett& desk = RunWith("Logo");
  PickCategory("Logo");
  Advance(1s);
  Answers(Answer::kYes);
  desk.btnDelete.Press();
  EXPECT_EQ(desk.File.Path.Get(), "/station/media/Logo");
  EXPECT_EQ(Listed(), Names{});
}

TEST_F(FlashAdTest, TheLeftoverButtonDeletesThePickedCategoryWithoutAQuestionAndTheRotationGoesOn) {
  Movie("Sweets", "a.swf");
  Movie("Toys", "x.swf");
  frmFlashAdSett& desk = RunWith("Sweets");
  PickCategory("Toys");
  Asked();
  desk.Command1.Press();
  EXPECT_EQ(Asked(), Names{});
  EXPECT_EQ(Categories(), Names{"Sweets"});
  EXPECT_TRUE(desk.TimerFlash.Enabled);
  desk.Command1.Press();
  EXPECT_EQ(Categories(), Names{"Sweets"}) << "with none picked nothing is deleted";
  EXPECT_EQ(sim.files.Kind(Category("Sweets") + "/a.swf"), FileKind::kRegular);
}

TEST_F(FlashAdTest, ALibraryThatVanishesBringsNoSecondWarningWhileOneStandsAndTheProgrammeGoesOn) {
  for (const char* name : {"a.swf", "b.swf"}) Movie("Sweets", name);
  Output().MainPlay(Clip("programme.mp4", 3600));
  RunWith("Sweets");
  Advance(1s);
  sim.files.RemoveTree(OverlaySide::kLibrary);
  int boxes = 0;
  sim.dialogs.whileStanding = [&] {
    if (++boxes > 1) return;
    Advance(60s);
    EXPECT_EQ(boxes, 1);
    EXPECT_EQ(MainPlayer().State(), PlayState::kPlaying);
  };
  Advance(5s);
  EXPECT_GE(boxes, 1);
}

TEST_F(FlashAdTest, SwitchedOnByTheMenuTheWindowShowsAndTheRotationRuns) {
  for (const char* name : {"a.swf", "b.swf"}) Movie("Sweets", name);
  Store("LastPath", Category("Sweets"));
  ControlWindow().mnuShowFlashAd.Choose();
  EXPECT_TRUE(Window().Visible);
  EXPECT_FALSE(Desk().Visible);
  EXPECT_EQ(Stored("Show"), "True");
  Advance(6s);
  EXPECT_EQ(Aired(), (Names{"a.swf", "b.swf"}));
}

TEST_F(FlashAdTest, SwitchedOffByTheMenuTheWindowIsUnloadedAndItsFormHides) {
  Movie("Sweets", "a.swf");
  Store("LastPath", Category("Sweets"));
  ControlWindow().mnuShowFlashAd.Choose();
  ControlWindow().mnuFlashAd.Choose();
  EXPECT_TRUE(Desk().Visible);
  ControlWindow().mnuShowFlashAd.Choose();
  EXPECT_FALSE(station.forms.Loaded<frmFlashAdShow>());
  EXPECT_TRUE(station.forms.Loaded<frmFlashAdSett>());
  EXPECT_FALSE(Desk().Visible);
  EXPECT_FALSE(Desk().TimerFlash.Enabled);
  EXPECT_EQ(Stored("Show"), "False");
  Advance(1s);
  EXPECT_FALSE(station.forms.Loaded<frmFlashAdShow>()) << "nothing brings it back";
}

TEST_F(FlashAdTest, SwitchedOnAgainTheRotationBeginsInTheEmptyWindowWithTheNextMovie) {
  for (const char* name : {"a.swf", "b.swf"}) Movie("Sweets", name);
  Store("LastPath", Category("Sweets"));
  for (int times = 0; times < 3; ++times) {
    ControlWindow().mnuShowFlashAd.Choose();
    Advance(1s);
  }
  EXPECT_EQ(Aired(), (Names{"a.swf", "b.swf"}));
}

TEST_F(FlashAdTest, AStartWithTheAdOnBringsItBackWithItsFormHidden) {
  Movie("Sweets", "a.swf");
  Store("Show", "True");
  Store("LastPath", Category("Sweets"));
  ControlWindow();
  EXPECT_TRUE(Window().Visible);
  EXPECT_FALSE(Desk().Visible);
  EXPECT_TRUE(ControlWindow().mnuShowFlashAd.Checked);
  Advance(1s);
  EXPECT_EQ(Window().Flash.Movie.Get(), Category("Sweets") + "/a.swf");
}

TEST_F(FlashAdTest, AStartWithTheAdOffLoadsNeitherWindowNorForm) {
  ControlWindow();
  EXPECT_FALSE(station.forms.Loaded<frmFlashAdShow>());
  EXPECT_FALSE(station.forms.Loaded<frmFlashAdSett>());
}

}  // namespace
