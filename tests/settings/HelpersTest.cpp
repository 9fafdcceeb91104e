#include <gtest/gtest.h>

#include <set>

#include "platform/sim/SimFiles.h"
#include "platform/toolkit/Wildcards.h"
#include "settings/Helpers.h"

namespace {

class FixedClock : public Clock {
 public:
  std::chrono::nanoseconds Steady() const override { return steady; }
  DateTime Now() const override { return {2026, 11, 15, 7, 0, 0, 0}; }

  std::chrono::nanoseconds steady{0};
};

TEST(HelpersTest, TheFileNameIsWhatStandsBehindTheLastSeparator) {
  EXPECT_EQ(FileNameOfPath("C:\\a\\b.jpg"), "b.jpg");
  EXPECT_EQ(FileNameOfPath("b.jpg"), "b.jpg");
  EXPECT_EQ(FileNameOfPath("/a/b/c d.jpg"), "c d.jpg");
  EXPECT_EQ(FileNameOfPath("a/b\\c.jpg"), "c.jpg");
  EXPECT_EQ(FileNameOfPath("C:\\a\\"), "");
}

TEST(HelpersTest, TheExtensionIsWhatFollowsTheLastDot) {
  EXPECT_EQ(StripExtension("My clip.final.avi"), "My clip.final");
  EXPECT_EQ(StripExtension("clip"), "clip");
  EXPECT_EQ(StripExtension("  clip .avi"), "clip");
  EXPECT_EQ(StripExtension(" clip "), "clip");
  EXPECT_EQ(StripExtension(".plt"), "");
  EXPECT_EQ(StripExtension(""), "");
}

TEST(HelpersTest, APlainNameHoldsNoSeparatorAndIsNotDotsAlone) {
  for (const char* name : {"a", " ", "a.b", ".hidden", "50%", "[x]", "caf\xC3\xA9", "...a"}) {
    EXPECT_TRUE(IsPlainName(name)) << name;
  }
  for (const char* name : {"", ".", "..", "...", "a/b", "a\\b", "/", "../up"}) EXPECT_FALSE(IsPlainName(name)) << name;
}

TEST(HelpersTest, AnEmptyFileIsMadeAndAnExistingOneIsEmptied) {
  SimFiles files;
  files.CreateFolder("/Playlist");
  CreateEmptyFile(files, "/Playlist\\new.plt");
  EXPECT_EQ(files.Read("/Playlist/new.plt"), "");
  files.Put("/Playlist/new.plt", "[x]");
  CreateEmptyFile(files, "/Playlist/new.plt");
  EXPECT_EQ(files.Read("/Playlist/new.plt"), "");
}

TEST(HelpersTest, AFolderTreeIsDeletedWithOrWithoutASeparatorAtItsEnd) {
  SimFiles files;
  files.Put("/Ads/one/scorl.jpg", "x");
  files.Put("/Ads/one/deep/er.jpg", "x");
  files.Put("/Ads/two/scorl.jpg", "x");
  EXPECT_TRUE(DeleteFolderTree(files, "/Ads/one\\"));
  EXPECT_TRUE(DeleteFolderTree(files, "/Ads\\two"));
  EXPECT_EQ(files.Kind("/Ads"), FileKind::kFolder);
  EXPECT_TRUE(files.List("/Ads", FileKind::kFolder).empty());
}

TEST(HelpersTest, DeletingWhatIsNoFolderOrCannotBeRemovedIsFalse) {
  SimFiles files;
  files.Put("/Ads/one/scorl.jpg", "x");
  EXPECT_FALSE(DeleteFolderTree(files, "/Ads/none"));
  EXPECT_FALSE(DeleteFolderTree(files, "/Ads/one/scorl.jpg"));
  EXPECT_FALSE(DeleteFolderTree(files, ""));
  EXPECT_FALSE(DeleteFolderTree(files, "/"));
  files.SetFault("/Ads/one", FileFault::kWriteRefused);
  EXPECT_FALSE(DeleteFolderTree(files, "/Ads/one"));
  EXPECT_EQ(files.Read("/Ads/one/scorl.jpg"), "x");
}

TEST(HelpersTest, AFileExistsAlsoAsAFolderOrAsAWildcardThatMatches) {
  SimFiles files;
  files.Put("/Playlist/Morning.plt", "");
  EXPECT_TRUE(FileExists(files, "/Playlist\\morning.PLT"));
  EXPECT_TRUE(FileExists(files, "/Playlist"));
  EXPECT_TRUE(FileExists(files, "/Playlist/*.plt"));
  EXPECT_TRUE(FileExists(files, "/Playlist/M?rning.*"));
  EXPECT_TRUE(FileExists(files, "/play*"));
  EXPECT_FALSE(FileExists(files, "/Playlist/*.avi"));
  EXPECT_FALSE(FileExists(files, "/Playlist/Evening.plt"));
  EXPECT_FALSE(FileExists(files, "/None/*"));
}

TEST(HelpersTest, AFolderExistsButNotWithASeparatorAtItsEnd) {
  SimFiles files;
  files.Put("/Ads/one/scorl.jpg", "x");
  EXPECT_TRUE(FileExists(files, "/Ads/one"));
  EXPECT_TRUE(FileExists(files, "\\ads\\ONE"));
  EXPECT_FALSE(FileExists(files, "/Ads/one/"));
  EXPECT_FALSE(FileExists(files, "/Ads/one\\"));
  EXPECT_FALSE(FileExists(files, "/Ads/one/scorl.jpg\\"));
  EXPECT_FALSE(FileExists(files, "/"));
}

TEST(HelpersTest, AWildcardMatchesBehindABackslashToo) {
  SimFiles files;
  files.Put("/Playlist/Morning.plt", "");
  EXPECT_TRUE(FileExists(files, "\\playlist\\*.PLT"));
  EXPECT_FALSE(FileExists(files, "\\playlist\\*.avi"));
}

TEST(HelpersTest, TheEmptyPathDoesNotExist) { EXPECT_FALSE(FileExists(SimFiles(), "")); }

TEST(HelpersTest, APatternMatchesWholeNamesWithoutRegardToCase) {
  EXPECT_TRUE(MatchesPattern("news.AVI", "*.avi"));
  EXPECT_TRUE(MatchesPattern("a.b.avi", "*.avi"));
  EXPECT_TRUE(MatchesPattern("été.avi", "?t?.avi"));
  EXPECT_TRUE(MatchesPattern("", "*"));
  EXPECT_FALSE(MatchesPattern("a.avi.bak", "*.avi"));
  EXPECT_FALSE(MatchesPattern("avi", "?.avi"));
  EXPECT_FALSE(MatchesPattern("x", ""));
}

TEST(HelpersTest, ARandomNumberLiesInItsRangeAndEveryOneOfThemComes) {
  FixedClock clock;
  std::set<int> drawn;
  for (int i = 0; i < 1000; ++i) {
    clock.steady += std::chrono::seconds(1);
    const int number = RandomBetween(1, 5, clock);
    EXPECT_GE(number, 1);
    EXPECT_LE(number, 5);
    drawn.insert(number);
  }
  EXPECT_EQ(drawn.size(), 5u);
}

TEST(HelpersTest, TheGeneratorIsSeededFromTheClockOnEachCall) {
  FixedClock clock;
  EXPECT_EQ(RandomBetween(1, 1'000'000, clock), RandomBetween(1, 1'000'000, clock));
  const int first = RandomBetween(1, 1'000'000, clock);
  clock.steady += std::chrono::seconds(1);
  EXPECT_NE(RandomBetween(1, 1'000'000, clock), first);
}

TEST(HelpersTest, ARangeOfNoneOrOneGivesItsLowEnd) {
  FixedClock clock;
  EXPECT_EQ(RandomBetween(7, 1, clock), 7);
  EXPECT_EQ(RandomBetween(7, 0, clock), 7);
}

}  // namespace
