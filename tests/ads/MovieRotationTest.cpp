// What both rotations do alike: the movies on the air, and the desk of their library.
#include "tests/ads/MovieRotationTest.h"

#include <malloc.h>

using namespace std::chrono_literals;

namespace {

using Sides = ::testing::Types<ColumnSide, OverlaySide>;
TYPED_TEST_SUITE(MovieRotationTest, Sides);

constexpr char kDeleteMovieBox[] = "box \"Are You Sure you wnat to Delete this Ad?\" \"Delete logo\"";
constexpr char kDeleteCategoryBox[] = "box \"Are You Sure you wnat to Delete this category?\" \"DELETE\"";
constexpr char kNewCategoryBox[] = "input \"Please enter a category name\" \"Category\"";

TYPED_TEST(MovieRotationTest, TheMoviesFollowEachOtherByNameWhateverTheirCaseRoundAndRound) {
  for (const char* name : {"b.swf", "C.SWF", "a.swf"}) this->Movie("Sweets", name);
  this->sim.files.Put(this->Category("Sweets") + "/notes.txt", "");
  this->RunWith("Sweets");
  EXPECT_EQ(this->Aired(), Names{});
  this->Advance(20ms);
  EXPECT_EQ(this->Aired(), Names{"a.swf"}) << "the first tick begins with the first movie";
  this->Advance(20s);
  EXPECT_EQ(this->Aired(), (Names{"b.swf", "C.SWF", "a.swf", "b.swf", "C.SWF"}));
}

TYPED_TEST(MovieRotationTest, EachMovieIsFollowedThreeFramesBeforeItsEndByItsOwnCount) {
  this->Movie("Sweets", "a.swf", 50);
  this->Movie("Sweets", "b.swf", 20);
  this->Movie("Sweets", "c.swf", 125);
  auto& form = this->RunWith("Sweets");
  auto& watched = this->Watched();
  std::vector<int> ends;
  int last = 0;
  watched.FrameShow.Connect([&](int frame) { last = frame; });
  watched.Movie.Changed.Connect([&] { ends.push_back(last); });
  this->Advance(20s);
  ASSERT_GE(ends.size(), 7u);
  EXPECT_EQ(std::vector<int>(ends.begin() + 1, ends.begin() + 7), (std::vector<int>{47, 17, 122, 47, 17, 122}));
  EXPECT_TRUE(form.TimerFlash.Enabled);
}

TYPED_TEST(MovieRotationTest, OneMovieAloneIsNeverLoadedAnewAndGoesOnByItsOwnLoop) {
  this->Movie("Sweets", "a.swf", 25);
  this->RunWith("Sweets");
  auto& watched = this->Watched();
  int loops = 0;
  watched.FrameShow.Connect([&](int frame) { loops += frame == 25; });
  this->Advance(60s);
  EXPECT_EQ(this->Aired(), Names{"a.swf"});
  EXPECT_GE(loops, 58);
}

TYPED_TEST(MovieRotationTest, AMovieOfThreeFramesOrFewerIsOverAtOnceAndTheRotationStepsOnAtEachTick) {
  for (const char* name : {"a.swf", "b.swf", "c.swf"}) this->Movie("Sweets", name, 3);
  this->RunWith("Sweets");
  this->Advance(101ms);
  EXPECT_EQ(this->Aired(), (Names{"a.swf", "b.swf", "c.swf", "a.swf", "b.swf", "c.swf"}));
}

TYPED_TEST(MovieRotationTest, ADamagedMovieIsPassedOverAtTheNextTick) {
  this->Movie("Sweets", "a.swf");
  this->sim.flash.SetDamaged(this->Movie("Sweets", "b.swf"));
  this->Movie("Sweets", "c.swf");
  this->RunWith("Sweets");
  this->Advance(4s);
  this->Aired();
  EXPECT_EQ(this->Desk().File.FileName(), "c.swf");
  EXPECT_EQ(this->sim.flash.Find(TypeParam::kOnAir)->Shown(), this->Category("Sweets") + "/c.swf");
}

TYPED_TEST(MovieRotationTest, NoEndIsMissedOnAMachineThatTellsManyFramesAtOnce) {
  this->sim.flash.framesAtOnce = 10;
  for (const char* name : {"a.swf", "b.swf"}) this->Movie("Sweets", name);
  this->RunWith("Sweets");
  this->Advance(40s);
  EXPECT_GE(this->Aired().size(), 9u);
}

TYPED_TEST(MovieRotationTest, AnotherCategoryInTheMiddleOfAMovieLetsItRunToItsEndAndTheNumberGoesOnInTheNewList) {
  for (const char* name : {"a.swf", "b.swf", "c.swf"}) this->Movie("Sweets", name);
  for (const char* name : {"x.swf", "y.swf", "z.swf"}) this->Movie("Toys", name);
  auto& form = this->RunWith("Sweets");
  this->ListLibrary();
  this->Advance(6s);
  ASSERT_EQ(this->Aired(), (Names{"a.swf", "b.swf"}));
  this->PickCategory("Toys");
  EXPECT_EQ(form.File.ListIndex.Get(), 1);
  this->Advance(1s);
  EXPECT_EQ(this->Aired(), Names{}) << "the movie runs to its end";
  EXPECT_EQ(form.SelectedPath, this->Category("Sweets") + "/b.swf");
  this->Advance(6s);
  EXPECT_EQ(this->Aired(), (Names{"z.swf", "x.swf"}));
}

TYPED_TEST(MovieRotationTest, WhereTheNumberLiesBeyondTheNewListItsFirstMovieFollows) {
  for (const char* name : {"a.swf", "b.swf", "c.swf"}) this->Movie("Sweets", name);
  for (const char* name : {"x.swf", "y.swf"}) this->Movie("Toys", name);
  this->RunWith("Sweets");
  this->ListLibrary();
  this->Advance(10s);
  ASSERT_EQ(this->Aired().back(), "c.swf");
  this->PickCategory("Toys");
  this->Advance(6s);
  EXPECT_EQ(this->Aired(), (Names{"x.swf", "y.swf"}));
}

TYPED_TEST(MovieRotationTest, ACategoryOfOneMovieThatTakesAnothersPlaceIsPutOnTheAirUnderTheSameNumber) {
  this->Movie("Sweets", "a.swf");
  this->Movie("Toys", "x.swf");
  this->RunWith("Sweets");
  this->ListLibrary();
  this->Advance(10s);
  ASSERT_EQ(this->Aired(), Names{"a.swf"});
  this->PickCategory("Toys");
  this->Advance(10s);
  EXPECT_EQ(this->Aired(), Names{"x.swf"});
}

TYPED_TEST(MovieRotationTest, WithNoMovieInTheCategoryNothingIsSelected) {
  this->sim.files.CreateFolder(this->Category("Sweets"));
  auto& form = this->RunWith("Sweets");
  this->Advance(5s);
  EXPECT_EQ(form.File.ListIndex.Get(), -1);
  EXPECT_EQ(this->Aired(), Names{});
}

TYPED_TEST(MovieRotationTest, AMovieThatIsClickedIsOnTheAirAtOnceAndTheRotationGoesOnFromIt) {
  for (const char* name : {"a.swf", "b.swf", "c.swf"}) this->Movie("Sweets", name);
  auto& form = this->RunWith("Sweets");
  this->Advance(1s);
  ASSERT_EQ(this->Aired(), Names{"a.swf"});
  form.File.Pick(1);
  EXPECT_EQ(this->Aired(), Names{"b.swf"});
  EXPECT_EQ(form.SelectedPath, this->Category("Sweets") + "/b.swf");
  this->Advance(5s);
  EXPECT_EQ(this->Aired(), Names{"c.swf"});
  form.File.Pick(2);
  EXPECT_EQ(this->Aired(), Names{"c.swf"}) << "the one that is on the air begins anew";
}

TYPED_TEST(MovieRotationTest, ARestartBeginsAtTheFirstMovieOfTheCategoryChosenLast) {
  for (const char* name : {"a.swf", "b.swf"}) this->Movie("Sweets", name);
  this->Movie("Toys", "x.swf");
  this->Store("Show", "True");
  this->Desk();
  this->ListLibrary();
  this->PickCategory("Sweets");
  EXPECT_EQ(this->Stored("LastPath"), this->Category("Sweets"));
  this->Advance(6s);
  ASSERT_EQ(this->Aired(), (Names{"a.swf", "b.swf"}));
  Station again{this->sim.world, "/station"};
  again.stores.SettingsFile();
  auto& form = again.forms.template Get<typename TypeParam::Desk>();
  EXPECT_EQ(form.FolderList.ListIndex.Get(), -1) << "though no category is picked";
  this->Advance(1s);
  EXPECT_EQ(form.File.FileName(), "a.swf");
}

TYPED_TEST(MovieRotationTest, ACategoryChosenLastThatIsGoneLeavesTheListAsItWas) {
  auto& form = this->RunWith("Gone");
  this->Advance(1s);
  EXPECT_EQ(form.File.Path.Get(), "");
  EXPECT_EQ(this->Aired(), Names{});
}

TYPED_TEST(MovieRotationTest, TheTextOfTheProgressChangesWhileTheFormIsHidden) {
  this->Movie("Sweets", "a.swf");
  auto& form = this->RunWith("Sweets");
  EXPECT_EQ(form.lblFlashFrm.Caption.Get(), "Preview") << "until the first tick";
  EXPECT_FALSE(form.Visible);
  this->Advance(20ms);
  EXPECT_EQ(form.lblFlashFrm.Caption.Get(), "0 Of 0");
  this->Advance(1s);
  const std::string text = form.lblFlashFrm.Caption;
  EXPECT_TRUE(text.ends_with(" Of 100")) << text;
  this->Advance(1s);
  EXPECT_NE(form.lblFlashFrm.Caption.Get(), text);
}

TYPED_TEST(MovieRotationTest, ClosingOnlyHidesItAndTheRotationGoesOn) {
  for (const char* name : {"a.swf", "b.swf"}) this->Movie("Sweets", name);
  auto& form = this->RunWith("Sweets");
  form.Show();
  form.Close();
  EXPECT_FALSE(form.Visible);
  EXPECT_FALSE(this->station.forms.template Unload<typename TypeParam::Desk>());
  this->Advance(6s);
  EXPECT_EQ(this->Aired(), (Names{"a.swf", "b.swf"}));
}

TYPED_TEST(MovieRotationTest, WithTheAdSwitchedOffNothingRotates) {
  this->Movie("Sweets", "a.swf");
  for (const char* show : {"False", "true", "1", ""}) {
    SimWorld other;
    other.files.CreateFolder("/station");
    Station elsewhere{other.world, "/station"};
    elsewhere.stores.SettingsFile();
    elsewhere.stores.SettingsIni.WriteValue(TypeParam::kSection, "Show", show);
    EXPECT_EQ(elsewhere.stores.SettingsIni.ReadValue(TypeParam::kSection, "Show", "(none)"), show);
    EXPECT_FALSE(elsewhere.forms.template Get<typename TypeParam::Desk>().TimerFlash.Enabled) << show;
  }
}

TYPED_TEST(MovieRotationTest, ALibraryThatVanishesInTheMiddleStopsNothingAndComesBackByItself) {
  for (const char* name : {"a.swf", "b.swf"}) this->Movie("Sweets", name);
  this->Output().MainPlay(this->Clip("programme.mp4", 3600));
  this->RunWith("Sweets");
  this->Advance(1s);
  this->sim.files.RemoveTree(TypeParam::kLibrary);
  this->Advance(10s);
  EXPECT_EQ(this->MainPlayer().State(), PlayState::kPlaying);
  EXPECT_EQ(this->sim.flash.Find(TypeParam::kOnAir)->Shown(), this->Category("Sweets") + "/a.swf") << "what was shown";
  for (const char* name : {"a.swf", "b.swf"}) this->Movie("Sweets", name);
  this->Advance(10s);
  EXPECT_EQ(this->Desk().lblFlashFrm.Caption.Get().substr(this->Desk().lblFlashFrm.Caption.Get().find(' ')), " Of 100");
}

TYPED_TEST(MovieRotationTest, ACategoryOfEveryLegalSignIsPickedRotatesAndIsBackAfterARestart) {
  for (const char* name :
       {"  two  blanks ", "[50%] & \"more\" *?;'|<>:#=", "a<%S%>b", "\"quoted\"", "\xD8\xAE\xD8\xA8\xD8\xB1"}) {
    SCOPED_TRACE(name);
    this->Movie(name, "a.swf");
    this->Store("Show", "True");
    this->Desk();
    this->ListLibrary();
    this->Desk().FolderList.Refresh();
    this->PickCategory(name);
    EXPECT_EQ(this->Listed(), Names{"a.swf"});
    Station again{this->sim.world, "/station"};
    again.stores.SettingsFile();
    auto& form = again.forms.template Get<typename TypeParam::Desk>();
    this->Advance(1s);
    EXPECT_EQ(form.SelectedPath, this->Category(name) + "/a.swf");
  }
}

TYPED_TEST(MovieRotationTest, FortyEightHoursOfRotationLeakNothing) {
  for (const char* name : {"a.swf", "b.swf", "c.swf"}) this->sim.flash.SetMovie(this->Movie("Sweets", name), 25, 5);
  this->RunWith("Sweets");
  const auto pass = [this](int hours) {
    for (int hour = 0; hour < hours; ++hour) {
      this->Advance(1h);
      EXPECT_GT(this->Aired().size(), 700u);
    }
    return mallinfo2().uordblks;
  };
  const std::size_t before = pass(1);
  EXPECT_LE(pass(47), before + 4096);
}

// The desk.

TYPED_TEST(MovieRotationTest, AMovieIsAddedToTheCategoryThatIsPickedAndTheListIsReadAnew) {
  this->Movie("Sweets", "b.swf");
  this->sim.files.Put("/art/a.swf", "new");
  auto& form = this->RunWith("Sweets");
  this->ListLibrary();
  this->PickCategory("Sweets");
  this->Advance(1s);
  this->Asked();
  this->sim.dialogs.files = {"/art/a.swf"};
  form.btnLoad.Press();
  const std::string target = this->Category("Sweets") + "/a.swf";
  EXPECT_EQ(this->Asked(), (Names{std::string("open \"Load flash Ad file\" \"") + TypeParam::kFilter + "\"",
                                  "copy /art/a.swf to " + target}));
  EXPECT_EQ(this->sim.files.Read(target), "new");
  EXPECT_EQ(this->Listed(), (Names{"a.swf", "b.swf"}));
  EXPECT_EQ(form.File.ListIndex.Get(), -1) << "so that the first movie follows the present one";
}

TYPED_TEST(MovieRotationTest, WithNoCategoryPickedAMovieGoesStraightIntoTheFolderThatIsListed) {
  this->sim.files.Put("/art/a.swf", "new");
  this->Desk();
  this->ListLibrary();
  this->sim.dialogs.files = {"/art/a.swf"};
  this->Desk().btnLoad.Press();
  EXPECT_EQ(this->sim.files.Read(std::string(TypeParam::kLibrary) + "/a.swf"), "new");
}

TYPED_TEST(MovieRotationTest, ADialogOrACopyThatIsCancelledLeavesTheListAsItIs) {
  this->Movie("Sweets", "b.swf");
  this->sim.files.Put("/art/a.swf", "new");
  auto& form = this->RunWith("Sweets");
  this->ListLibrary();
  this->PickCategory("Sweets");
  this->Advance(1s);
  form.btnLoad.Press();
  EXPECT_EQ(form.File.ListIndex.Get(), 0);
  this->sim.dialogs.files = {"/art/a.swf"};
  this->sim.dialogs.copyTakes = 10s;
  this->sim.dialogs.cancelsCopyAfter = 1s;
  form.btnLoad.Press();
  EXPECT_EQ(form.File.ListIndex.Get(), 0);
  EXPECT_EQ(this->Listed(), Names{"b.swf"});
}

TYPED_TEST(MovieRotationTest, AMovieThatCannotBeCopiedShowsNothing) {
  this->sim.files.Put("/art/a.swf", "new");
  this->sim.files.CreateFolder(this->Category("Sweets"));
  auto& form = this->RunWith("Sweets");
  this->ListLibrary();
  this->PickCategory("Sweets");
  this->sim.files.SetDiskFull(true);
  this->sim.dialogs.files = {"/art/a.swf"};
  form.btnLoad.Press();
  for (const std::string& line : this->Asked()) EXPECT_FALSE(line.starts_with("box")) << line;
  EXPECT_EQ(this->Listed(), Names{});
}

TYPED_TEST(MovieRotationTest, ADeleteAsksWithTheWordsOfALogoOnPurposeAndTakesTheSelectedMovie) {
  for (const char* name : {"a.swf", "b.swf"}) this->Movie("Sweets", name);
  auto& form = this->RunWith("Sweets");
  this->Advance(1s);
  this->Asked();
  this->Answers(Answer::kNo);
  form.btnDelete.Press();
  EXPECT_EQ(this->Asked(), Names{kDeleteMovieBox});
  EXPECT_EQ(this->Listed(), (Names{"a.swf", "b.swf"}));
  EXPECT_TRUE(form.TimerFlash.Enabled);
  this->Answers(Answer::kYes);
  form.btnDelete.Press();
  EXPECT_EQ(this->sim.files.List(this->Category("Sweets"), FileKind::kRegular), Names{"b.swf"});
}

TYPED_TEST(MovieRotationTest, ADeleteTakesTheMovieThatWasSelectedWhenItsQuestionOpened) {
  for (const char* name : {"a.swf", "b.swf"}) this->Movie("Sweets", name);
  auto& form = this->RunWith("Sweets");
  this->Advance(1s);
  this->sim.dialogs.whileStanding = [this] { this->Advance(4s); };
  this->Answers(Answer::kYes);
  form.btnDelete.Press();
  EXPECT_EQ(form.SelectedPath, this->Category("Sweets") + "/b.swf") << "the rotation went on meanwhile";
  EXPECT_EQ(this->sim.files.List(this->Category("Sweets"), FileKind::kRegular), Names{"b.swf"});
}

TYPED_TEST(MovieRotationTest, ADeleteWithNoMovieSelectedDeletesNothing) {
  this->Movie("Sweets", "a.swf");
  auto& form = this->RunWith("Sweets");
  this->Answers(Answer::kYes);
  form.btnDelete.Press();
  EXPECT_EQ(this->sim.files.List(this->Category("Sweets"), FileKind::kRegular), Names{"a.swf"});
}

TYPED_TEST(MovieRotationTest, AMovieThatCannotBeDeletedShowsNothing) {
  this->sim.files.SetFault(this->Movie("Sweets", "a.swf"), FileFault::kWriteRefused);
  auto& form = this->RunWith("Sweets");
  this->Advance(1s);
  this->Answers(Answer::kYes);
  this->Asked();
  form.btnDelete.Press();
  EXPECT_EQ(this->Asked(), Names{kDeleteMovieBox});
}

TYPED_TEST(MovieRotationTest, ACategoryIsAddedAndTheLibraryIsListedWithNonePicked) {
  this->Desk();
  this->Asked();
  for (const char* name : {"Sweets", "  two  blanks ", "[50%] & \"more\" *?;'|<>:", "\xD8\xAE\xD8\xA8\xD8\xB1"}) {
    this->sim.dialogs.inputs = {name};
    this->Desk().vkCommand3.Press();
    EXPECT_EQ(this->Asked(), Names{kNewCategoryBox});
    EXPECT_EQ(this->sim.files.Kind(this->Category(name)), FileKind::kFolder) << name;
  }
  EXPECT_EQ(this->Desk().FolderList.Path.Get(), std::string(TypeParam::kLibrary) + "/");
  EXPECT_EQ(this->Categories().size(), 4u);
  EXPECT_EQ(this->Desk().FolderList.Text(), "");
}

TYPED_TEST(MovieRotationTest, ACategoryOfASeparatorOrOfDotsAloneOrOfNoNameIsNotMade) {
  this->Desk();
  for (const char* name : {"a/b", "a\\b", "../up", "..", ".", ""}) {
    this->sim.dialogs.inputs = {name};
    this->Desk().vkCommand3.Press();
  }
  EXPECT_EQ(this->sim.files.List(TypeParam::kLibrary, FileKind::kFolder), Names{});
  EXPECT_EQ(this->sim.files.Kind("/station/Media/up"), FileKind::kAbsent);
}

TYPED_TEST(MovieRotationTest, ACancelledCategoryChangesNothing) {
  this->Movie("Sweets", "a.swf");
  this->Desk();
  this->ListLibrary();
  this->PickCategory("Sweets");
  this->Desk().vkCommand3.Press();
  EXPECT_EQ(this->Desk().FolderList.Text(), "Sweets");
}

TYPED_TEST(MovieRotationTest, ADeletedCategoryGoesWithItsMoviesAndTheRotationStandsUntilItIsSwitchedOnAnew) {
  this->Movie("Sweets", "a.swf");
  this->Movie("Toys", "x.swf");
  auto& form = this->RunWith("Sweets");
  this->ListLibrary();
  this->PickCategory("Toys");
  this->Asked();
  this->Answers(Answer::kNo);
  form.vkCommand2.Press();
  EXPECT_EQ(this->Asked(), Names{kDeleteCategoryBox});
  EXPECT_EQ(this->Categories(), (Names{"Sweets", "Toys"}));
  EXPECT_TRUE(form.TimerFlash.Enabled);
  this->Answers(Answer::kYes);
  form.vkCommand2.Press();
  EXPECT_EQ(this->sim.files.Kind(this->Category("Toys")), FileKind::kAbsent);
  EXPECT_EQ(this->Categories(), Names{"Sweets"});
  EXPECT_FALSE(form.TimerFlash.Enabled);
  this->Advance(10s);
  EXPECT_FALSE(form.TimerFlash.Enabled);
}

TYPED_TEST(MovieRotationTest, WithNoCategoryPickedNoneIsDeletedAndNeverTheLibrary) {
  this->Movie("Sweets", "a.swf");
  this->sim.files.Put("/station/Media/Logo/logo.swf", "");
  auto& form = this->Desk();
  for (const char* folder : {"/station/Media", TypeParam::kLibrary}) {
    form.FolderList.Path = folder;
    this->Answers(Answer::kYes);
    form.vkCommand2.Press();
  }
  EXPECT_EQ(this->sim.files.Kind(this->Category("Sweets") + "/a.swf"), FileKind::kRegular);
  EXPECT_EQ(this->sim.files.Kind("/station/Media/Logo/logo.swf"), FileKind::kRegular);
}

TYPED_TEST(MovieRotationTest, WhatIsPickedOutsideTheLibraryIsNotDeleted) {
  this->Movie("Sweets", "a.swf");
  this->sim.files.Put("/station/Media/Logo/logo.swf", "");
  auto& form = this->Desk();
  const std::string library = TypeParam::kLibrary;
  for (const std::string& name : {std::string("Logo"), library.substr(library.rfind('/') + 1)}) {
    form.FolderList.Path = "/station/Media";
    this->PickCategory(name);
    this->Answers(Answer::kYes);
    form.vkCommand2.Press();
  }
  EXPECT_EQ(this->sim.files.Kind("/station/Media/Logo/logo.swf"), FileKind::kRegular);
  EXPECT_EQ(this->sim.files.Kind(this->Category("Sweets") + "/a.swf"), FileKind::kRegular);
}

TYPED_TEST(MovieRotationTest, TheBoxOfTheLogoIsStoredAndRestoredAndNothingElse) {
  this->Store("Show", "True");
  this->Store("ShowLogo", "1");
  auto& form = this->Desk();
  EXPECT_TRUE(form.chkShowLogo.Ticked());
  form.chkShowLogo.Toggle();
  EXPECT_EQ(this->Stored("ShowLogo"), "0");
  EXPECT_EQ(this->Stored("Show"), "True");
  form.chkShowLogo.Toggle();
  EXPECT_EQ(this->Stored("ShowLogo"), "1");
  EXPECT_EQ(this->Stored("Show"), "True");
}

TYPED_TEST(MovieRotationTest, TheSliderOfTheWidthHasTheRangeOfTheDesignUntilItsFirstMoveAndThenTheScreens) {
  auto& form = this->RunWith("Sweets");
  EXPECT_EQ(form.SlidWidth.Min.Get(), 2000);
  EXPECT_EQ(form.SlidWidth.Max.Get(), 40400);
  form.SlidWidth.Move(5000);
  EXPECT_EQ(form.SlidWidth.Max.Get(), 1920 * 15);
  EXPECT_EQ(form.SlidWidth.LargeChange.Get(), 1000);
  EXPECT_EQ(this->Stored("Width"), "5000");
}

TYPED_TEST(MovieRotationTest, AFirstMoveBeyondTheScreenStopsAtItsEdge) {
  auto& form = this->RunWith("Sweets");
  form.SlidWidth.Move(40000);
  EXPECT_EQ(form.SlidWidth.Value.Get(), 1920 * 15);
  EXPECT_EQ(this->Stored("Width"), std::to_string(1920 * 15));
}

TYPED_TEST(MovieRotationTest, WhatTheSettingsHoldIsPutIntoSliderAndBoxWithoutAHandlerAndWhatIsNoNumberLeavesThem) {
  this->Store("Show", "True");
  this->Store("Width", "4321");
  auto& form = this->Desk();
  EXPECT_EQ(form.SlidWidth.Value.Get(), 4321);
  EXPECT_EQ(form.SlidWidth.Max.Get(), 40400);
  EXPECT_EQ(this->Stored("ShowLogo"), "(none)");
  this->Store("Width", "wide");
  this->Store("ShowLogo", "yes");
  form.LoadSett();
  EXPECT_EQ(form.SlidWidth.Value.Get(), 4321);
  EXPECT_FALSE(form.chkShowLogo.Ticked());
}

TYPED_TEST(MovieRotationTest, TheRotationGoesOnWhileABoxStands) {
  for (const char* name : {"a.swf", "b.swf"}) this->Movie("Sweets", name);
  auto& form = this->RunWith("Sweets");
  this->sim.dialogs.whileStanding = [this] { this->Advance(6s); };
  form.vkCommand3.Press();
  EXPECT_EQ(this->Aired(), (Names{"a.swf", "b.swf"}));
}

}  // namespace
