#include "tests/controls/McListBoxTest.h"

namespace {

// A list that fills itself: the folder /lib holds the folders b and A and some files.
class McListBoxFoldersTest : public McListBoxTest {
 protected:
  McListBoxFoldersTest() {
    for (const char* folder : {"/lib/b", "/lib/A", "/lib/.hidden"}) sim.files.CreateFolder(folder);
    for (const char* file : {"/lib/x.swf", "/lib/Y.JPG", "/lib/z", "/lib/.secret.swf", "/lib/A/inner.swf"}) {
      sim.files.Put(file, "");
    }
  }

  void Show(int mode, const std::string& path = "/lib") {
    list.Mode = mode;
    list.Path = path;
    redraws = 0;
  }
};

TEST_F(McListBoxFoldersTest, TheFoldersOfAPathAreListedInTheOrderInWhichTheyAreGiven) {
  list.SortOrder = McListBox::kDescending;  // of no effect here, be it set before or after
  Show(McListBox::kFolders);
  EXPECT_EQ(Shown(), (Names{"A", "b"}));
  list.SortOrder = McListBox::kUnsorted;
  list.SortOrder = McListBox::kDescending;
  EXPECT_EQ(Shown(), (Names{"A", "b"}));
  EXPECT_EQ(list.ListIcon(0), -1);
  EXPECT_FALSE(list.ListBold(0));
}

TEST_F(McListBoxFoldersTest, FoldersAreListedWhateverTheFilter) {
  Show(McListBox::kFolders);
  list.Filter = "*.swf";
  EXPECT_EQ(Shown(), (Names{"A", "b"}));
}

TEST_F(McListBoxFoldersTest, TheFilesOfAPathThatFitTheFilterAreListed) {
  Show(McListBox::kFiles);
  EXPECT_EQ(Shown(), (Names{"x.swf", "Y.JPG", "z"}));
  list.Filter = "*.jpg";
  EXPECT_EQ(Shown(), Names{"Y.JPG"});
}

TEST_F(McListBoxFoldersTest, TheFilterIsOnePattern) {
  Show(McListBox::kFiles);
  list.Filter = "*.swf;*.jpg";
  EXPECT_TRUE(Shown().empty());
  sim.files.Put("/lib/odd.swf;more.jpg", "");
  list.Refresh();
  EXPECT_EQ(Shown(), Names{"odd.swf;more.jpg"});
}

TEST_F(McListBoxFoldersTest, HiddenNamesBeginWithADotAndAreListedOnlyWhereTheyAreAskedFor) {
  list.ShowHiddenFiles = true;
  Show(McListBox::kFiles);
  EXPECT_EQ(Shown(), (Names{".secret.swf", "x.swf", "Y.JPG", "z"}));
  Show(McListBox::kFolders);
  EXPECT_EQ(Shown(), (Names{".hidden", "A", "b"}));
}

TEST_F(McListBoxFoldersTest, APathGetsASeparatorAtItsEndUnlessItHasOneOrIsEmpty) {
  for (const auto& [path, kept] : {std::pair{"/lib", "/lib/"}, {"/lib/A/", "/lib/A/"}, {"\\x\\", "\\x\\"}, {"", ""}}) {
    list.Path = path;
    EXPECT_EQ(list.Path.Get(), kept);
  }
}

TEST_F(McListBoxFoldersTest, TheSameTextAsPathNeitherReadsNorDraws) {
  Show(McListBox::kFolders);
  sim.files.CreateFolder("/lib/new");
  list.Path = "/lib/";
  EXPECT_EQ(Shown(), (Names{"A", "b"}));
  EXPECT_EQ(redraws, 0);
}

TEST_F(McListBoxFoldersTest, TheSamePathWithoutItsSeparatorIsAnotherTextAndReadsAnew) {
  Show(McListBox::kFolders);
  sim.files.CreateFolder("/lib/new");
  list.Path = "/lib";
  EXPECT_EQ(Shown(), (Names{"A", "b", "new"}));
  EXPECT_EQ(redraws, 1);
}

TEST_F(McListBoxFoldersTest, AnotherSpellingOfThePathOrTheFilterIsAnotherTextAndReadsAnew) {
  Show(McListBox::kFiles);
  list.Path = "/LIB/";
  EXPECT_EQ(list.Path.Get(), "/LIB/");
  EXPECT_EQ(redraws, 1);
  list.Filter = "*.SWF";
  list.Filter = "*.swf";
  EXPECT_EQ(redraws, 3);
}

TEST_F(McListBoxFoldersTest, FillingAnewBringsTheFirstRowIntoView) {
  Show(McListBox::kFolders);
  wanted.clear();
  list.Path = "/lib";
  EXPECT_EQ(wanted, std::vector<int>{0});
  list.Path = "/lib/";  // the text that it has
  EXPECT_EQ(wanted, std::vector<int>{0});
}

TEST_F(McListBoxFoldersTest, WithoutAutoRefreshTheListIsFilledAndDrawnByTheNextRefresh) {
  list.AutoRefresh = false;
  list.Mode = McListBox::kFolders;
  list.Path = "/lib";
  EXPECT_EQ(Shown(), (Names{"A", "b"}));
  EXPECT_EQ(redraws, 0);
  list.Refresh();
  EXPECT_EQ(redraws, 1);
}

TEST_F(McListBoxFoldersTest, AFolderThatHasChangedShowsOnlyWhenSomethingFillsTheList) {
  Show(McListBox::kFiles);
  int told = 0;
  list.Filter.Changed.Connect([&] { ++told; });
  sim.files.Put("/lib/new.swf", "");
  list.Filter = "*.*";
  EXPECT_EQ(Shown(), (Names{"x.swf", "Y.JPG", "z"}));
  EXPECT_EQ(told, 1);  // the setting is told all the same
  EXPECT_EQ(redraws, 0);
  list.Refresh();
  EXPECT_EQ(Shown(), (Names{"new.swf", "x.swf", "Y.JPG", "z"}));
}

TEST_F(McListBoxFoldersTest, FillingAnewLeavesNothingSelected) {
  Show(McListBox::kFolders);
  list.ListIndex = 1;
  list.Refresh();
  EXPECT_EQ(list.ListIndex, -1);
  EXPECT_EQ(list.Text(), "");
}

TEST_F(McListBoxFoldersTest, InTheModesThatFillThemselvesTheProgramNeitherAddsNorRemoves) {
  for (const int mode : {1, 2, 3, 4, 5}) {
    Show(mode);
    list.ListIndex = 0;
    const Names before = Shown();
    list.AddItem("x");
    list.Remove();
    list.Remove(0);
    list.Clear();
    EXPECT_EQ(Shown(), before) << mode;
  }
}

TEST_F(McListBoxFoldersTest, TheDrivesAreTheRootAndEachMediumThatIsMounted) {
  sim.files.Mount("/media/op/STICK");
  for (const int mode : {1, 4, 5}) {
    list.Mode = mode;
    EXPECT_EQ(Shown(), (Names{"/", "/media/op/STICK"})) << mode;
  }
  sim.files.Unmount("/media/op/STICK");
  list.Refresh();
  EXPECT_EQ(Shown(), Names{"/"});
}

TEST_F(McListBoxFoldersTest, InModeFiveThePathStaysAsItIs) {
  list.Mode = 5;
  list.Path = "/lib";
  EXPECT_EQ(list.Path.Get(), "/station/");
  list.Mode = 4;
  list.Path = "/lib";
  EXPECT_EQ(list.Path.Get(), "/lib/");
}

TEST_F(McListBoxFoldersTest, SettingTheModeFillsTheListAndModeZeroEmptiesIt) {
  int told = 0;
  list.Mode.Changed.Connect([&] { ++told; });
  Show(McListBox::kFolders);
  list.Mode = McListBox::kFolders;
  EXPECT_EQ(told, 1);
  EXPECT_EQ(redraws, 0);
  list.Mode = McListBox::kItems;
  EXPECT_EQ(list.ListCount(), 0);
  list.Mode = 9;  // of nothing
  list.AddItem("x");
  EXPECT_EQ(list.ListCount(), 0);
}

TEST_F(McListBoxFoldersTest, ANewPathOrFilterEmptiesAListOfItems) {
  Add({"a"});
  list.Filter = "*.swf";
  EXPECT_EQ(list.ListCount(), 0);
  Add({"a"});
  list.Path = "/lib";
  EXPECT_EQ(list.ListCount(), 0);
}

TEST_F(McListBoxFoldersTest, APathThatIsBadListsNothingAndFailsNowhere) {
  for (const char* path : {"/no/such", "", "/lib/x.swf", "\\", "relative"}) {
    Show(McListBox::kFiles, path);
    EXPECT_TRUE(Shown().empty()) << path;
  }
}

TEST_F(McListBoxFoldersTest, AFileGoesByTheIconOfItsEndingAndAProgramByItsOwn) {
  for (const char* file : {"/i/a.SWF", "/i/b.exe", "/i/c.LNK", "/i/d.ico", "/i/e.ani", "/i/f.Cur", "/i/g", "/i/h."}) {
    sim.files.Put(file, "");
  }
  Show(McListBox::kFiles, "/i");
  Names keys;
  for (const DrawnRow& row : list.Rows()) keys.push_back(row.iconOf);
  EXPECT_EQ(keys, (Names{".swf", "/i/b.exe", "/i/c.LNK", "/i/d.ico", "/i/e.ani", ".cur", "default", "default"}));
}

TEST_F(McListBoxFoldersTest, PointersShareOneIconThoughTheirEndingIsAmongThoseWithTheirOwn) {
  for (const char* file : {"/i/a.Cur", "/i/b.cur"}) sim.files.Put(file, "");
  Show(McListBox::kFiles, "/i");
  EXPECT_EQ(list.Rows()[0].iconOf, list.Rows()[1].iconOf);
}

}  // namespace
