#include "tests/overlay/LibraryTest.h"

namespace {

using Libraries = testing::Types<LogoLibrary, ClockLibrary, StickerLibrary>;
TYPED_TEST_SUITE(LibraryTest, Libraries);

TYPED_TEST(LibraryTest, TheMenuOpensItAndItListsItsCategories) {
  TypeParam::Entry(this->ControlWindow()).Choose();
  EXPECT_TRUE(this->Desk().Visible);
  EXPECT_EQ(this->Desk().Caption.Get(), TypeParam::kCaption);
  EXPECT_EQ(this->Categories(), (Names{"news", "sport"}));
  EXPECT_TRUE(this->Files().empty());
}

TYPED_TEST(LibraryTest, OpeningItLoadsNoOverlayWhateverTheSizesThatAreKept) {
  this->Set(TypeParam::kSection, "Height", "4000");
  this->Set(TypeParam::kSection, "Width", "5000");
  this->Desk().Show();
  EXPECT_EQ(this->Desk().sldHeight.Value, 4000);
  EXPECT_EQ(this->Desk().SlidWidth.Value, 5000);
  EXPECT_FALSE(this->OverlayLoaded());
}

TYPED_TEST(LibraryTest, ClosingItForgetsTheFileThatWasClicked) {
  this->PickFile("news", "a.swf");
  this->Desk().Close();
  EXPECT_FALSE(this->station.forms.template Loaded<typename TypeParam::Form>());
  EXPECT_EQ(this->Desk().SelectedPath, "");
}

TYPED_TEST(LibraryTest, AClickOnACategoryListsItsFiles) {
  this->PickCategory("news");
  EXPECT_EQ(this->Files(), (Names{"a.swf", "b.swf"}));
  this->PickCategory("sport");
  EXPECT_TRUE(this->Files().empty());
}

TYPED_TEST(LibraryTest, AClickOnAFilePlaysItInThePreviewWithoutItsSound) {
  this->PickFile("news", "b.swf");
  EXPECT_EQ(this->Desk().SelectedPath, this->At("news/b.swf"));
  EXPECT_EQ(this->Desk().FlashPreview.Movie.Get(), this->At("news/b.swf"));
  EXPECT_TRUE(this->Desk().FlashPreview.Silent);
  EXPECT_FALSE(this->OverlayLoaded());
  EXPECT_EQ(this->Setting(TypeParam::kSection, "Path"), "(none)");
}

// What comes in is the dialog's matter; the list leaves nothing out.
TYPED_TEST(LibraryTest, FilesOfEveryKindAreListedAndSet) {
  for (const char* file : {"news/c.jpg", "news/notes.txt", "news/noending"}) this->sim.files.Put(this->At(file), "");
  this->PickFile("news", "noending");
  EXPECT_EQ(this->Files(), (Names{"a.swf", "b.swf", "c.jpg", "noending", "notes.txt"}));
  TypeParam::Set(this->Desk()).Press();
  EXPECT_EQ(this->Setting(TypeParam::kSection, "Path"), this->At("news/noending"));
}

// Meant so: SelectedPath is the file that was clicked last, whatever is listed now and whatever became of it.
TYPED_TEST(LibraryTest, TheFileThatWasClickedLastStaysWhenItIsDeletedAndWhenAnotherCategoryIsClicked) {
  this->PickFile("news", "a.swf");
  this->Answered(Answer::kYes, this->Desk().btnDelete);
  this->PickCategory("sport");
  EXPECT_EQ(this->Desk().SelectedPath, this->At("news/a.swf"));
  EXPECT_EQ(this->Desk().FlashPreview.Movie.Get(), this->At("news/a.swf"));
}

TYPED_TEST(LibraryTest, AFileIsCopiedIntoTheCategoryAndListed) {
  this->PickCategory("sport");
  this->sim.trace.Take();
  this->LoadFile("/stick/new.swf");
  EXPECT_EQ(this->Asked(), (Names{std::string("open \"Load Ad's header file\" \"") + TypeParam::kFilter + "\"",
                                  "copy /stick/new.swf to " + this->At("sport/new.swf")}));
  EXPECT_EQ(this->sim.files.Read(this->At("sport/new.swf")), "from the stick");
  EXPECT_EQ(this->Files(), Names{"new.swf"});
}

TYPED_TEST(LibraryTest, ACancelledDialogCopiesNothingAndReadsNothing) {
  this->PickCategory("news");
  this->sim.files.Put(this->At("news/c.swf"), "movie");
  this->Desk().btnLoad.Press();
  EXPECT_EQ(this->Files(), (Names{"a.swf", "b.swf"}));
}

TYPED_TEST(LibraryTest, AFileOfTheSameNameIsOverwrittenWithoutAQuestion) {
  this->sim.files.Put("/stick/a.swf", "newer");
  this->PickCategory("news");
  this->sim.trace.Take();
  this->LoadFile("/stick/a.swf");
  for (const std::string& line : this->Asked()) EXPECT_FALSE(line.starts_with("box")) << line;
  EXPECT_EQ(this->sim.files.Read(this->At("news/a.swf")), "newer");
}

TYPED_TEST(LibraryTest, WithNoCategoryPickedTheFileGoesIntoTheRootAndIsNoCategory) {
  this->LoadFile("/stick/new.swf");
  EXPECT_EQ(this->sim.files.Read(this->At("new.swf")), "from the stick");
  EXPECT_EQ(this->Categories(), (Names{"news", "sport"}));
}

// The list of files has the root's path already, and the same path reads nothing. Meant so.
TYPED_TEST(LibraryTest, AFileInTheRootIsListedWhenTheLibraryIsOpenedAnew) {
  this->LoadFile("/stick/new.swf");
  EXPECT_TRUE(this->Files().empty());
  this->Desk().Close();
  EXPECT_EQ(this->Files(), Names{"new.swf"});
}

TYPED_TEST(LibraryTest, ACopyThatFailsSaysNothingAndTheListIsReadAllTheSame) {
  this->PickCategory("news");
  this->sim.files.SetDiskFull(true);
  this->sim.trace.Take();
  this->LoadFile("/stick/new.swf");
  for (const std::string& line : this->Asked()) EXPECT_FALSE(line.starts_with("box")) << line;
  EXPECT_EQ(this->Files(), (Names{"a.swf", "b.swf"}));
}

TYPED_TEST(LibraryTest, ADeleteAsksInTheWordsOfTheLibraryAndNoDeletesNothing) {
  this->PickFile("news", "a.swf");
  this->sim.trace.Take();
  this->Answered(Answer::kNo, this->Desk().btnDelete);
  EXPECT_EQ(this->Asked(), Names{TypeParam::kDelete});
  EXPECT_EQ(this->Files(), (Names{"a.swf", "b.swf"}));
}

TYPED_TEST(LibraryTest, ADeletedFileMayStillBeTheOverlaysAndItsSettingStays) {
  this->PickFile("news", "a.swf");
  TypeParam::Set(this->Desk()).Press();
  this->Answered(Answer::kYes, this->Desk().btnDelete);
  EXPECT_EQ(this->sim.files.Kind(this->At("news/a.swf")), FileKind::kAbsent);
  EXPECT_EQ(this->Overlay().Flash.Movie.Get(), this->At("news/a.swf"));
  EXPECT_EQ(this->Setting(TypeParam::kSection, "Path"), this->At("news/a.swf"));
}

TYPED_TEST(LibraryTest, ADeleteWithNoFileSelectedDeletesNothing) {
  this->PickCategory("news");
  this->Answered(Answer::kYes, this->Desk().btnDelete);
  EXPECT_EQ(this->sim.files.List(this->At("news"), FileKind::kRegular), (Names{"a.swf", "b.swf"}));
}

// Meant so.
TYPED_TEST(LibraryTest, WithNothingPickedBothDeletesAskAllTheSame) {
  this->Desk().Show();
  this->sim.trace.Take();
  this->Answered(Answer::kYes, this->Desk().btnDelete);
  EXPECT_EQ(this->Asked(), Names{TypeParam::kDelete});
  this->Answered(Answer::kYes, this->Desk().vkCommand2);
  EXPECT_EQ(this->Asked(), Names{"box \"Are You Sure you wnat to Delete this category?\" \"DELETE\""});
  EXPECT_EQ(this->Categories(), (Names{"news", "sport"}));
}

TYPED_TEST(LibraryTest, AFileThatWasPickedWithoutACategoryCanBeDeleted) {
  this->sim.files.Put(this->At("stray.swf"), "movie");
  this->Desk().FileList.PressRow(0);
  this->Answered(Answer::kYes, this->Desk().btnDelete);
  EXPECT_EQ(this->sim.files.Kind(this->At("stray.swf")), FileKind::kAbsent);
  EXPECT_EQ(this->Categories(), (Names{"news", "sport"}));
}

TYPED_TEST(LibraryTest, ANewCategoryIsListedAtOnce) {
  this->sim.trace.Take();
  this->AddCategory("art");
  EXPECT_EQ(this->Categories(), (Names{"art", "news", "sport"}));
  EXPECT_EQ(this->sim.files.Kind(this->At("art")), FileKind::kFolder);
}

TYPED_TEST(LibraryTest, ACancelledNameMakesNothing) {
  this->Desk().vkCommand3.Press();
  EXPECT_EQ(this->Categories(), (Names{"news", "sport"}));
}

TYPED_TEST(LibraryTest, ANameWithASeparatorOrOfDotsAloneMakesNothingAnywhere) {
  this->Desk().Show();
  this->sim.trace.Take();
  for (const char* name : {"a/b", "a\\b", "../up", "..", ".", "...", "/", "/etc"}) this->AddCategory(name);
  EXPECT_EQ(this->Asked(), Names{}) << "and nobody is told";
  EXPECT_EQ(this->Categories(), (Names{"news", "sport"}));
  EXPECT_EQ(this->sim.files.List(TypeParam::kFolder, FileKind::kFolder), (Names{"news", "sport"}));
  EXPECT_EQ(this->sim.files.Kind("/station/Media/up"), FileKind::kAbsent);
}

TYPED_TEST(LibraryTest, CategoriesOfEveryLegalSignAreMadeFilledAndDeleted) {
  for (const char* name : {"a<%S%>3<%S%>True", "100% \"new\"", "[x]=;&'", "новости", "  blanks  ", "?*|:", "x.swf"}) {
    this->AddCategory(name);
    this->PickCategory(name);
    this->LoadFile("/stick/new.swf");
    EXPECT_EQ(this->Files(), Names{"new.swf"}) << name;
    this->Answered(Answer::kYes, this->Desk().vkCommand2);
    EXPECT_EQ(this->Categories(), (Names{"news", "sport"})) << name;
  }
}

TYPED_TEST(LibraryTest, ACategoryThatIsThereAlreadyStaysAsItIs) {
  this->AddCategory("NEWS");
  EXPECT_EQ(this->Categories(), (Names{"news", "sport"}));
  this->PickCategory("news");
  EXPECT_EQ(this->Files(), (Names{"a.swf", "b.swf"}));
}

TYPED_TEST(LibraryTest, ADeletedCategoryGoesWithItsFilesAndTheFilesStayOnShow) {
  this->PickCategory("news");
  this->sim.trace.Take();
  this->Answered(Answer::kYes, this->Desk().vkCommand2);
  EXPECT_EQ(this->Asked(), Names{"box \"Are You Sure you wnat to Delete this category?\" \"DELETE\""});
  EXPECT_EQ(this->sim.files.Kind(this->At("news")), FileKind::kAbsent);
  EXPECT_EQ(this->Categories(), Names{"sport"});
  EXPECT_EQ(this->Files(), (Names{"a.swf", "b.swf"}));
}

TYPED_TEST(LibraryTest, ACategoryStaysWhereTheQuestionIsAnsweredNo) {
  this->PickCategory("news");
  this->Answered(Answer::kNo, this->Desk().vkCommand2);
  EXPECT_EQ(this->sim.files.Kind(this->At("news")), FileKind::kFolder);
}

TYPED_TEST(LibraryTest, WithNoCategoryPickedNoFolderIsDeletedAndNeverTheLibrary) {
  this->Answered(Answer::kYes, this->Desk().vkCommand2);
  EXPECT_EQ(this->Categories(), (Names{"news", "sport"}));
  this->PickCategory("sport");
  this->Answered(Answer::kYes, this->Desk().vkCommand2);
  this->Answered(Answer::kYes, this->Desk().vkCommand2);  // nothing is selected after the first
  EXPECT_EQ(this->Categories(), Names{"news"});
}

TYPED_TEST(LibraryTest, TheFileThatWasClickedLastGoesOnTheOverlayAndIntoTheSettings) {
  this->Overlay().Show();
  this->PickFile("news", "b.swf");
  TypeParam::Set(this->Desk()).Press();
  EXPECT_EQ(this->Setting(TypeParam::kSection, "Path"), this->At("news/b.swf"));
  EXPECT_EQ(this->Overlay().Flash.Movie.Get(), this->At("news/b.swf"));
}

TYPED_TEST(LibraryTest, SettingAFileLoadsAnOverlayThatIsNotOpenHidden) {
  this->PickFile("news", "b.swf");
  TypeParam::Set(this->Desk()).Press();
  ASSERT_TRUE(this->OverlayLoaded());
  EXPECT_FALSE(this->Overlay().Visible);
}

TYPED_TEST(LibraryTest, AnotherFileChangesTheMovieAndNothingElseOfTheOverlay) {
  this->PickFile("news", "a.swf");
  TypeParam::Set(this->Desk()).Press();
  this->Overlay().SetSize(2000, 5000);
  this->Overlay().Flash.Left = 30;
  this->PickFile("news", "b.swf");
  TypeParam::Set(this->Desk()).Press();
  EXPECT_EQ(this->Overlay().Flash.Left, 30);
  EXPECT_EQ(this->Overlay().Flash.Width, 5000);
}

TYPED_TEST(LibraryTest, AMovedSliderIsWrittenAndResizesTheOverlayAtOnceThoughItIsNotOpen) {
  const std::string sizes = TypeParam::kSection;
  EXPECT_EQ(this->Setting(sizes, "Height"), "(none)");
  const int design = this->Desk().sldHeight.Value;
  this->Desk().sldHeight.Move(6000);
  EXPECT_EQ(this->Setting(sizes, "Height"), "6000");
  ASSERT_TRUE(this->OverlayLoaded());
  EXPECT_FALSE(this->Overlay().Visible);
  EXPECT_EQ(this->Overlay().Height, 6000);
  EXPECT_EQ(this->Overlay().Width, design);
  this->Desk().SlidWidth.Move(7000);
  EXPECT_EQ(this->Setting(sizes, "Width"), "7000");
  EXPECT_EQ(this->Overlay().Width, 7000);
  EXPECT_EQ(this->Overlay().Flash.Width, 7000);
  EXPECT_EQ(this->Overlay().Flash.Height, 6000);
}

TYPED_TEST(LibraryTest, AnEmptySizeLeavesItsSliderAtTheDesignsValue) {
  this->Set(TypeParam::kSection, "Height", "");
  this->Set(TypeParam::kSection, "Width", "4500 wide");
  EXPECT_EQ(this->Desk().sldHeight.Value, 3000);
  EXPECT_EQ(this->Desk().SlidWidth.Value, 3000);
}

TYPED_TEST(LibraryTest, ASliderTakesItsRangeFromTheScreenWhenItIsMovedAndTheOtherKeepsItsOwn) {
  this->sim.windows.screenSize = {1280, 720};
  const int design = this->Desk().SlidWidth.Max;
  this->Desk().sldHeight.Move(5000);
  EXPECT_EQ(this->Desk().sldHeight.Min, 1000);
  EXPECT_EQ(this->Desk().sldHeight.Max, 10800);
  EXPECT_EQ(this->Desk().SlidWidth.Max, design);
  this->Desk().SlidWidth.Move(5000);
  EXPECT_EQ(this->Desk().SlidWidth.Max, 19200);
}

TYPED_TEST(LibraryTest, UntilItsFirstMoveASliderHasTheRangeOfTheDesignWhateverTheScreen) {
  this->sim.windows.screenSize = {1280, 720};
  this->Desk().Show();
  for (const Slider* slider : {&this->Desk().sldHeight, &this->Desk().SlidWidth}) {
    EXPECT_EQ(slider->Min, 1000);
    EXPECT_EQ(slider->Max, 28800);
  }
}

TYPED_TEST(LibraryTest, ASizeBeyondSixteenBitsIsWrittenAndLeavesTheOverlayAsItIs) {
  this->sim.windows.screenSize = {3840, 2160};
  this->Desk().SlidWidth.Move(5000);
  this->Desk().SlidWidth.Move(40000);
  EXPECT_EQ(this->Setting(TypeParam::kSection, "Width"), "40000");
  EXPECT_EQ(this->Overlay().Width, 5000);
  this->Desk().sldHeight.Move(4000);  // the other one goes with it
  EXPECT_EQ(this->Setting(TypeParam::kSection, "Height"), "4000");
  EXPECT_NE(this->Overlay().Height, 4000);
}

TYPED_TEST(LibraryTest, TheBoxSwitchesTheKeyColourOfTheOverlayAndIsNotKept) {
  EXPECT_TRUE(this->Desk().chkTransparent.Ticked());
  EXPECT_FALSE(this->OverlayLoaded());
  const auto settings = this->sim.files.Read("/station/Settings.ini");
  this->Desk().chkTransparent.Toggle();
  ASSERT_TRUE(this->OverlayLoaded());
  EXPECT_FALSE(this->Overlay().KeyInForce());
  this->Desk().chkTransparent.Toggle();
  EXPECT_TRUE(this->Overlay().KeyInForce());
  this->Desk().chkTransparent.Toggle();
  EXPECT_EQ(this->sim.files.Read("/station/Settings.ini"), settings);
  this->Desk().Close();
  EXPECT_TRUE(this->Desk().chkTransparent.Ticked());
}

TYPED_TEST(LibraryTest, ALibraryThatVanishesEmptiesTheListsAndStopsNobody) {
  this->PickFile("news", "a.swf");
  this->sim.files.RemoveTree("/station/Media");
  this->sim.trace.Take();
  this->PickCategory("sport");
  EXPECT_TRUE(this->Files().empty());
  this->LoadFile("/stick/new.swf");
  this->Answered(Answer::kYes, this->Desk().btnDelete);
  this->Answered(Answer::kYes, this->Desk().vkCommand2);
  EXPECT_TRUE(this->Categories().empty());
  this->AddCategory("anew");
  EXPECT_EQ(this->Categories(), Names{"anew"});
  for (const std::string& line : this->Asked()) EXPECT_EQ(line.find("Corvanta"), std::string::npos) << line;
}

}  // namespace
