#include "tests/overlay/LibraryTest.h"

// What the three libraries differ in. Much of it is odd, and stays.

namespace {

using LogoLibraryTest = LibraryTest<LogoLibrary>;
using ClockLibraryTest = LibraryTest<ClockLibrary>;
using StickerLibraryTest = LibraryTest<StickerLibrary>;

template <class L>
class LibraryOfClickedFilesTest : public LibraryTest<L> {};
using OfClickedFiles = testing::Types<LogoLibrary, StickerLibrary>;
TYPED_TEST_SUITE(LibraryOfClickedFilesTest, OfClickedFiles);

TEST_F(LogoLibraryTest, AfterADeleteTheFilesAreLookedForOneFolderTooHighAndTheListIsEmptyUntilTheNextClick) {
  PickFile("news", "a.swf");
  Answered(Answer::kYes, Desk().btnDelete);
  EXPECT_EQ(Desk().FileList.Path.Get(), "/station/media/news/");
  EXPECT_TRUE(Files().empty());
  PickCategory("news");
  EXPECT_EQ(Files(), Names{"b.swf"});
}

TEST_F(ClockLibraryTest, AfterADeleteTheFilesAreLookedForOneFolderTooHighHereToo) {
  PickFile("news", "a.swf");
  Answered(Answer::kYes, Desk().btnDelete);
  EXPECT_EQ(Desk().FileList.Path.Get(), "/station/media/news/");
  EXPECT_TRUE(Files().empty());
}

TEST_F(StickerLibraryTest, AfterADeleteTheFilesOfTheCategoryAreListedAtOnce) {
  PickFile("news", "a.swf");
  Answered(Answer::kYes, Desk().btnDelete);
  EXPECT_EQ(Files(), Names{"b.swf"});
}

TEST_F(StickerLibraryTest, TheRootHasASeparatorAtItsEndWhenItIsOpenedAndIsReadAnewAllTheSame) {
  EXPECT_EQ(Desk().FolderList.Path.Get(), "/station/Media/Stiker/");
  sim.files.CreateFolder(At("art"));
  AddCategory("zoo");
  EXPECT_EQ(Categories(), (Names{"art", "news", "sport", "zoo"}));
}

TYPED_TEST(LibraryOfClickedFilesTest, SettingItBeforeAnyClickClearsThePath) {
  this->Set(TypeParam::kSection, "Path", this->At("news/a.swf"));
  this->Desk().BtnSetLogo.Press();
  EXPECT_EQ(this->Setting(TypeParam::kSection, "Path"), "");
  EXPECT_EQ(this->Overlay().Flash.Movie.Get(), "");
}

TYPED_TEST(LibraryOfClickedFilesTest, AFileThatIsOnlySelectedByKeyIsNotTheOneThatIsSet) {
  this->PickFile("news", "a.swf");
  this->Desk().FileList.PressKey(DrawnList::Key::kDown);
  this->Desk().BtnSetLogo.Press();
  EXPECT_EQ(this->Setting(TypeParam::kSection, "Path"), this->At("news/a.swf"));
}

TEST_F(ClockLibraryTest, TheClockTakesTheFileThatIsSelectedNowClickedOrNot) {
  PickFile("news", "a.swf");
  Desk().FileList.PressKey(DrawnList::Key::kDown);
  Desk().btnSetAsClock.Press();
  EXPECT_EQ(Setting("Clock", "Path"), At("news/b.swf"));
  EXPECT_EQ(Desk().SelectedPath, At("news/b.swf"));
}

TEST_F(ClockLibraryTest, WithNoFileSelectedThePathIsTheFolder) {
  PickCategory("news");
  Desk().btnSetAsClock.Press();
  EXPECT_EQ(Setting("Clock", "Path"), At("news/"));
}

TEST_F(ClockLibraryTest, TheFirstClockSetOnAnOverlayWithADeadPathBringsTheWarning) {
  Set("Clock", "Path", "/gone.swf");
  PickFile("news", "a.swf");
  sim.trace.Take();
  Desk().btnSetAsClock.Press();
  Advance(std::chrono::seconds(1));
  EXPECT_EQ(Asked(), Names{"box \"File could not be opened.\" \"Error Opening File\" warning"});
  EXPECT_EQ(Setting("Clock", "Path"), At("news/a.swf"));
  PickFile("news", "b.swf");
  Desk().btnSetAsClock.Press();
  Advance(std::chrono::seconds(1));
  EXPECT_TRUE(Asked().empty());
}

TYPED_TEST(LibraryOfClickedFilesTest, TheFirstOneIsWrittenBeforeItsOverlayIsLoadedSoThatADeadPathBringsNoWarning) {
  this->Set(TypeParam::kSection, "Path", "/gone.swf");
  this->PickFile("news", "a.swf");
  this->sim.trace.Take();
  this->Desk().BtnSetLogo.Press();
  this->Advance(std::chrono::seconds(1));
  EXPECT_TRUE(this->Asked().empty());
}

TEST_F(LogoLibraryTest, DeletingTheCategoryOfTheFileOnTheAirBringsTheWarningAtTheNextStart) {
  PickFile("news", "a.swf");
  Desk().BtnSetLogo.Press();
  Answered(Answer::kYes, Desk().vkCommand2);
  EXPECT_EQ(Setting("Logo", "Path"), At("news/a.swf"));
  station.forms.Unload<FrmLogoShow>();
  sim.trace.Take();
  Overlay();
  Advance(std::chrono::seconds(1));
  EXPECT_EQ(Asked(), Names{"box \"File could not be opened.\" \"Error Opening File\" warning"});
}

TEST_F(LogoLibraryTest, TheHeightIsWrittenUnderLogoAndComesBackUnderItWhateverItsCase) {
  Desk().sldHeight.Move(6000);
  EXPECT_EQ(Setting("Logo", "Height"), "6000");
  EXPECT_EQ(Setting("logo", "Height"), "6000");
  Desk().Close();
  EXPECT_EQ(Desk().sldHeight.Value, 6000);
}

TEST_F(ClockLibraryTest, TheBoxIsWrittenAndComesBack) {
  Desk().chkShowLogo.Toggle();
  EXPECT_EQ(Setting("Clock", "ShowLogo"), "1");
  Desk().Close();
  EXPECT_TRUE(Desk().chkShowLogo.Ticked());
  Desk().chkShowLogo.Toggle();
  EXPECT_EQ(Setting("Clock", "ShowLogo"), "0");
}

TEST_F(ClockLibraryTest, ABoxThatHoldsNeitherOneNorNoughtStaysAsItWas) {
  Set("Clock", "ShowLogo", "True");
  EXPECT_FALSE(Desk().chkShowLogo.Ticked());
}

TEST_F(LogoLibraryTest, TheBoxOfTheLogoDoesNothing) {
  Desk().chkShowLogo.Toggle();
  EXPECT_EQ(Setting("Logo", "ShowLogo"), "(none)");
  EXPECT_FALSE(OverlayLoaded());
}

TEST_F(StickerLibraryTest, TheBoxOfTheStickerDoesNothing) {
  Desk().chkShowLogo.Toggle();
  EXPECT_EQ(Setting("Stiker", "ShowLogo"), "(none)");
  EXPECT_FALSE(OverlayLoaded());
}

TEST_F(ClockLibraryTest, TheButtonThatCreatesAListHasNoAction) {
  Desk().btnCreateList.Press();
  EXPECT_FALSE(OverlayLoaded());
}

}  // namespace
