// What the column at the left of the picture does otherwise than the flash ad.
#include "tests/ads/MovieRotationTest.h"

using namespace std::chrono_literals;

namespace {

using LeftSideAdTest = MovieRotationTest<ColumnSide>;

TEST_F(LeftSideAdTest, AtTheEndOfAMovieThePreviewAndTheColumnChangeInTheSameStep) {
  for (const char* name : {"a.swf", "b.swf"}) Movie("Sweets", name);
  RunWith("Sweets");
  Names puts;
  const auto note = [&puts](const std::string& who) { return [&puts, who] { puts.push_back(who); }; };
  Desk().FlashPreview.Movie.Changed.Connect(note("preview"));
  Output().FlashSideAd.Movie.Changed.Connect(note("column"));
  Advance(20ms);
  EXPECT_EQ(puts, (Names{"preview", "column"}));
  Advance(4s);
  EXPECT_EQ(puts, (Names{"preview", "column", "preview", "column"}));
  EXPECT_EQ(Output().FlashSideAd.Movie.Get(), Desk().FlashPreview.Movie.Get());
}

TEST_F(LeftSideAdTest, ThePreviewDecidesWhateverTheColumnCounts) {
  for (const char* name : {"a.swf", "b.swf"}) Movie("Sweets", name);
  RunWith("Sweets");
  Advance(2s);
  ASSERT_EQ(Aired(), Names{"a.swf"});
  Output().FlashSideAd.Movie = Category("Sweets") + "/a.swf";  // it begins anew, two seconds behind
  Advance(2500ms);
  EXPECT_EQ(Aired(), (Names{"a.swf", "b.swf"}));
}

TEST_F(LeftSideAdTest, TheColumnSoundsAndThePreviewIsSilent) {
  EXPECT_TRUE(Desk().FlashPreview.Silent);
  EXPECT_FALSE(Output().FlashSideAd.Silent);
}

TEST_F(LeftSideAdTest, TheColumnIsPutOnlyWhereItDiffersAndAnOutputWindowMadeAnewFollowsAtTheNextTick) {
  Movie("Sweets", "a.swf");
  RunWith("Sweets");
  Advance(10s);
  EXPECT_EQ(Aired(), Names{"a.swf"});
  station.forms.Unload<frmPlayer>();
  EXPECT_EQ(Output().FlashSideAd.Movie.Get(), "");
  Advance(20ms);
  EXPECT_EQ(Aired(), Names{"a.swf"});
  Advance(1s);
  EXPECT_GT(Output().FlashSideAd.CurrentFrame(), 0);
}

TEST_F(LeftSideAdTest, WithTheAdSwitchedOffTheTickLeavesTheColumnAlone) {
  Movie("Sweets", "a.swf");
  RunWith("Sweets");
  Advance(1s);
  Store("Show", "False");
  station.forms.Unload<frmPlayer>();
  Advance(1s);
  EXPECT_EQ(Output().FlashSideAd.Movie.Get(), "");
}

TEST_F(LeftSideAdTest, WithTheAdSwitchedOffAtTheStartWidthAndCategoryAreNotLoaded) {
  Movie("Sweets", "a.swf");
  Store("Show", "False");
  Store("Width", "4500");
  Store("LastPath", Category("Sweets"));
  const double width = Output().PicSide.Width;
  frmLeftSideAdSett& form = Desk();
  EXPECT_EQ(form.SlidWidth.Value.Get(), width);
  EXPECT_EQ(Output().PicSide.Width.Get(), width);
  EXPECT_EQ(form.File.Path.Get(), "");
  EXPECT_FALSE(Output().PicSide.Visible);
}

TEST_F(LeftSideAdTest, WithTheAdSwitchedOnAtTheStartTheColumnHasItsWidth) {
  Store("Width", "4500");
  RunWith("Sweets");
  EXPECT_EQ(Output().PicSide.Width.Get(), 4500);
  EXPECT_EQ(Output().FlashSideAd.Width.Get(), 4500);
  EXPECT_TRUE(Output().PicSide.Visible);
}

TEST_F(LeftSideAdTest, AWidthThatIsNoNumberLeavesTheColumnAsItIs) {
  Store("Width", "");
  RunWith("Sweets");
  EXPECT_EQ(Output().PicSide.Width.Get(), 3000);
}

TEST_F(LeftSideAdTest, TheSliderSetsTheWidthOfTheColumnAndLaysItOut) {
  frmLeftSideAdSett& form = RunWith("Sweets");
  form.SlidWidth.Move(6000);
  EXPECT_EQ(Output().PicSide.Width.Get(), 6000);
  EXPECT_EQ(Output().FlashSideAd.Width.Get(), 6000);
  EXPECT_EQ(Output().PicSide.Height.Get(), Output().Height - Output().PicAd.Height);
}

TEST_F(LeftSideAdTest, TheColumnHasTheVeryWidthThatIsStoredAndTheSliderAWholeOne) {
  Store("Width", "4507.5");
  RunWith("Sweets");
  EXPECT_EQ(Output().PicSide.Width.Get(), 4507.5);
  EXPECT_EQ(Desk().SlidWidth.Value.Get(), 4508);
}

// Meant so.
TEST_F(LeftSideAdTest, AMovedSliderBringsTheColumnIntoSightThoughTheAdIsSwitchedOff) {
  Desk().SlidWidth.Move(6000);
  EXPECT_TRUE(Output().PicSide.Visible);
  EXPECT_EQ(Output().PicSide.Width.Get(), 6000);
  EXPECT_EQ(Stored("Show"), "(none)");
}

TEST_F(LeftSideAdTest, TheListBeginsOneLevelTooHighUntilACategoryIsAddedOrDeleted) {
  Movie("Sweets", "a.swf");
  EXPECT_EQ(Categories(), (Names{"Clock", "FlashAd", "LeftSideAd", "Logo", "Stiker"}));
  sim.dialogs.inputs = {"Toys"};
  Desk().vkCommand3.Press();
  EXPECT_EQ(Categories(), (Names{"Sweets", "Toys"}));
  Desk().FolderList.Path = "/station/Media";
  Answers(Answer::kYes);
  Desk().vkCommand2.Press();
  EXPECT_EQ(Categories(), (Names{"Sweets", "Toys"}));
}

TEST_F(LeftSideAdTest, ACancelledCategoryShowsThoseThatThereAre) {
  Movie("Sweets", "a.swf");
  Desk().vkCommand3.Press();
  EXPECT_EQ(Categories(), Names{"Sweets"});
}

TEST_F(LeftSideAdTest, ADeletedMovieLeavesTheRotationRunning) {
  for (const char* name : {"a.swf", "b.swf"}) Movie("Sweets", name);
  frmLeftSideAdSett& form = RunWith("Sweets");
  Advance(1s);
  Answers(Answer::kYes);
  form.btnDelete.Press();
  EXPECT_TRUE(form.TimerFlash.Enabled);
}

TEST_F(LeftSideAdTest, AfterADeleteTheListIsAtTheRightLevelWhileTheFoldersAboveAreListed) {
  sim.files.Put("/station/Media/Old/a.swf", "");
  sim.files.Put("/station/Media/Old/b.swf", "");
  frmLeftSideAdSett& form = Desk();
  PickCategory("Old");
  form.File.Pick(0);
  Answers(Answer::kYes);
  form.btnDelete.Press();
  EXPECT_EQ(Listed(), Names{"b.swf"});
  EXPECT_EQ(form.File.Path.Get(), "/station/media/Old");
}

TEST_F(LeftSideAdTest, AfterADeleteInTheLibraryTheListStaysInItsCategory) {
  for (const char* name : {"a.swf", "b.swf"}) Movie("Sweets", name);
  frmLeftSideAdSett& form = Desk();
  ListLibrary();
  PickCategory("Sweets");
  form.File.Pick(0);
  Answers(Answer::kYes);
  form.btnDelete.Press();
  EXPECT_EQ(form.File.Path.Get(), Category("Sweets"));
  EXPECT_EQ(Listed(), Names{"b.swf"});
}

TEST_F(LeftSideAdTest, TheTransparentBoxDoesNothing) {
  frmLeftSideAdSett& form = RunWith("Sweets");
  const auto settings = sim.files.Read("/station/Settings.ini");
  sim.trace.Take();
  form.chkTransparent.Toggle();
  EXPECT_EQ(sim.trace.Take(), Names{});
  EXPECT_EQ(sim.files.Read("/station/Settings.ini"), settings);
}

TEST_F(LeftSideAdTest, TheFormHasOneSliderAndNoLeftoverButton) {
  int sliders = 0;
  for (const Control* control : Desk().Controls()) {
    sliders += control->Kind() == "Slider";
    EXPECT_NE(control->Name(), "Command1");
  }
  EXPECT_EQ(sliders, 1);
}

TEST_F(LeftSideAdTest, SwitchedOffByTheMenuTheColumnGoesAndTheProgrammeHasTheFullWidth) {
  for (const char* name : {"a.swf", "b.swf"}) Movie("Sweets", name);
  Store("Show", "True");
  Store("LastPath", Category("Sweets"));
  ControlWindow();
  Advance(1s);
  ASSERT_EQ(Aired(), Names{"a.swf"});
  Output().Player.Left = 300;
  Output().Player.Width = 1000;
  ControlWindow().mnuLeftsideAd.Choose();
  EXPECT_FALSE(Output().PicSide.Visible);
  EXPECT_EQ(Output().Player.Left.Get(), 0);
  EXPECT_EQ(Output().Player.Width.Get(), Output().Width.Get());
  EXPECT_EQ(Stored("Show"), "False");
  EXPECT_EQ(Output().FlashSideAd.Movie.Get(), Category("Sweets") + "/a.swf") << "what it showed stays in it";
  Advance(4s);
  EXPECT_EQ(Aired(), Names{"b.swf"}) << "the rotation goes on in the hidden column";
}

TEST_F(LeftSideAdTest, SwitchedOnByTheMenuTheColumnStandsOverTheProgrammeAndChangesNothingAboutIt) {
  ControlWindow();
  const double left = Output().Player.Left = 300;
  const double width = Output().Player.Width = 1000;
  ControlWindow().mnuLeftsideAd.Choose();
  EXPECT_TRUE(Output().PicSide.Visible);
  EXPECT_EQ(Output().PicSide.Left.Get(), 0);
  EXPECT_EQ(Output().Player.Left.Get(), left);
  EXPECT_EQ(Output().Player.Width.Get(), width);
  EXPECT_EQ(Stored("Show"), "True");
  EXPECT_TRUE(Desk().TimerFlash.Enabled);
  EXPECT_FALSE(Desk().Visible);
}

TEST_F(LeftSideAdTest, SwitchedOnForTheFirstTimeItWaitsForAClickOnACategory) {
  for (const char* name : {"a.swf", "b.swf"}) Movie("Sweets", name);
  Store("LastPath", Category("Sweets"));
  ControlWindow().mnuLeftsideAd.Choose();
  Advance(5s);
  EXPECT_EQ(Aired(), Names{});
  ListLibrary();
  PickCategory("Sweets");
  Advance(20ms);
  EXPECT_EQ(Aired(), Names{"a.swf"});
}

TEST_F(LeftSideAdTest, ItsEntryOpensTheForm) {
  ControlWindow().mnuLeftsideAdsettings.Choose();
  EXPECT_TRUE(Desk().Visible);
  EXPECT_EQ(Desk().Caption.Get(), "Left side Ad settings");
}

TEST_F(LeftSideAdTest, AStartWithTheAdOnBringsTheColumnBackWithItsFormHidden) {
  Movie("Sweets", "a.swf");
  Store("Show", "True");
  Store("Width", "4500");
  Store("LastPath", Category("Sweets"));
  ControlWindow();
  EXPECT_TRUE(Output().PicSide.Visible);
  EXPECT_TRUE(ControlWindow().mnuLeftsideAd.Checked);
  EXPECT_FALSE(Desk().Visible);
  Advance(1s);
  EXPECT_EQ(Output().FlashSideAd.Movie.Get(), Category("Sweets") + "/a.swf");
}

TEST_F(LeftSideAdTest, AStartWithTheAdOffLeavesItsFormUnloaded) {
  ControlWindow();
  EXPECT_FALSE(station.forms.Loaded<frmLeftSideAdSett>());
  EXPECT_FALSE(Output().PicSide.Visible);
}

}  // namespace
