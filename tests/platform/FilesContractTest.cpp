#include <gtest/gtest.h>

#include <algorithm>

#include "platform/posix/PosixFiles.h"
#include "platform/sim/SimFiles.h"
#include "tests/platform/TemporaryFolder.h"

// What every disk promises, on the virtual and the real one alike.

namespace {

class RealDisk {
 public:
  RealDisk() : root(folder.Path()) {}
  TemporaryFolder folder;
  std::string root;
  PosixFiles files;
};

class VirtualDisk {
 public:
  VirtualDisk() { files.CreateFolder(root); }
  std::string root = "/Station";
  SimFiles files;
};

// Somebody else writes a file of exactly that name.
void WriteExact(RealDisk& disk, const std::string& name, const std::string& content) {
  WriteByOther(disk.root + "/" + name, content);
}

void WriteExact(VirtualDisk& disk, const std::string& name, const std::string& content) {
  disk.files.Put(disk.root + "/" + name, content);
}

template <typename Disk>
class FilesContractTest : public testing::Test {
 protected:
  std::string At(const std::string& name) const { return disk.root + "/" + name; }

  Disk disk;
  Files& files = disk.files;
};

using Disks = testing::Types<VirtualDisk, RealDisk>;
TYPED_TEST_SUITE(FilesContractTest, Disks);

TYPED_TEST(FilesContractTest, WhatIsWrittenIsReadWhole) {
  const std::string content("two\r\nlines\0and a zero", 21);
  EXPECT_TRUE(this->files.Replace(this->At("a.ini"), content));
  EXPECT_EQ(this->files.Read(this->At("a.ini")), content);
  EXPECT_TRUE(this->files.Replace(this->At("a.ini"), ""));
  EXPECT_EQ(this->files.Read(this->At("a.ini")), "");
}

TYPED_TEST(FilesContractTest, TheStartOfAFileIsReadAsFarAsTheFileGoes) {
  EXPECT_TRUE(this->files.Replace(this->At("Movie.swf"), std::string("FWS\0behind", 10)));
  EXPECT_EQ(this->files.ReadStart(this->At("Movie.swf"), 5).bytes, std::string("FWS\0b", 5));
  EXPECT_EQ(this->files.ReadStart(this->At("movie.SWF"), 100).bytes.size(), 10U);
  EXPECT_TRUE(this->files.Replace(this->At("empty.swf"), ""));
  const FileStart empty = this->files.ReadStart(this->At("empty.swf"), 5);
  EXPECT_EQ(empty.result, FileStart::kRead);
  EXPECT_EQ(empty.bytes, "");
}

TYPED_TEST(FilesContractTest, OnlyARegularFileThatIsThereHasAStart) {
  this->files.CreateFolder(this->At("folder"));
  for (const std::string& path : {std::string(), this->At("absent.swf"), this->At("folder"), this->At("a/b.swf")}) {
    EXPECT_EQ(this->files.ReadStart(path, 5).result, FileStart::kNotOpened) << path;
  }
}

TYPED_TEST(FilesContractTest, NamesWithDotsBlanksPercentSignsAndAnyScriptWork) {
  const std::string name = "..a b%20c 100% ünï новости 新闻.v1.ini";
  EXPECT_TRUE(this->files.Replace(this->At(name), "x"));
  EXPECT_EQ(this->files.Read(this->At(name)), "x");
  EXPECT_EQ(this->files.List(this->disk.root, FileKind::kRegular), std::vector<std::string>{name});
}

TYPED_TEST(FilesContractTest, AFileIsFoundWithoutRegardToCaseWhereTheExactNameIsMissing) {
  ASSERT_TRUE(this->files.CreateFolder(this->At("Media/Stiker")));
  ASSERT_TRUE(this->files.Replace(this->At("Media/Stiker/One.swf"), "1"));
  EXPECT_EQ(this->files.Read(this->At("media/STIKER/one.SWF")), "1");
  EXPECT_EQ(this->files.Kind(this->At("MEDIA/stiker/ONE.swf")), FileKind::kRegular);
  EXPECT_EQ(this->files.Kind(this->At("MEDIA/stiker")), FileKind::kFolder);
  EXPECT_TRUE(this->files.Replace(this->At("media/stiker/one.swf"), "2"));
  EXPECT_EQ(this->files.List(this->At("Media/Stiker"), FileKind::kRegular), std::vector<std::string>{"One.swf"});
  EXPECT_TRUE(this->files.Replace(this->At("media/stiker/Two.swf"), "2"));
  EXPECT_EQ(this->files.List(this->At("MEDIA/Stiker"), FileKind::kRegular).size(), 2u);
  EXPECT_TRUE(this->files.Remove(this->At("media/stiker/ONE.SWF")));
  EXPECT_EQ(this->files.Kind(this->At("Media/Stiker/One.swf")), FileKind::kAbsent);
  EXPECT_TRUE(this->files.RemoveTree(this->At("MEDIA")));
  EXPECT_EQ(this->files.Kind(this->At("Media")), FileKind::kAbsent);
}

TYPED_TEST(FilesContractTest, TheExactNameComesBeforeOneThatDiffersInCase) {
  WriteExact(this->disk, "A.ini", "upper");
  EXPECT_EQ(this->files.Read(this->At("a.ini")), "upper");
  WriteExact(this->disk, "a.ini", "lower");
  EXPECT_EQ(this->files.Read(this->At("a.ini")), "lower");
  EXPECT_EQ(this->files.Read(this->At("A.ini")), "upper");
}

TYPED_TEST(FilesContractTest, APathResolvesToTheNameUnderWhichAFileStands) {
  ASSERT_TRUE(this->files.CreateFolder(this->At("Media/Stiker")));
  WriteExact(this->disk, "Media/Stiker/One.swf", "1");
  const std::string exact = this->At("Media/Stiker/One.swf");
  for (const char* spelling :
       {"Media/Stiker/One.swf", "media/STIKER/one.SWF", "Media\\Stiker\\One.swf", "MEDIA\\stiker/ONE.swf"}) {
    EXPECT_EQ(this->files.Resolve(this->At(spelling)), exact) << spelling;
    EXPECT_EQ(this->files.Kind(this->At(spelling)), FileKind::kRegular) << spelling;
    EXPECT_EQ(this->files.Read(this->At(spelling)), "1") << spelling;
  }
  EXPECT_EQ(this->files.Resolve(""), "");
}

TYPED_TEST(FilesContractTest, OfAPathThatLeadsNowhereWhatStandsIsResolvedAndTheRestStaysAsGiven) {
  ASSERT_TRUE(this->files.CreateFolder(this->At("Media")));
  EXPECT_EQ(this->files.Resolve(this->At("MEDIA/None/Here.swf")), this->At("Media/None/Here.swf"));
  EXPECT_EQ(this->files.Resolve(this->At("none")), this->At("none"));
  EXPECT_TRUE(this->files.Replace(this->At("media\\New.swf"), "x"));
  EXPECT_EQ(this->files.List(this->At("Media"), FileKind::kRegular), std::vector<std::string>{"New.swf"});
}

TYPED_TEST(FilesContractTest, ANameMayHoldABackslashOfItsOwn) {
  ASSERT_TRUE(this->files.CreateFolder(this->At("a")));
  WriteExact(this->disk, "a\\b.ini", "one name");
  EXPECT_EQ(this->files.Read(this->At("a\\b.ini")), "one name");
  EXPECT_EQ(this->files.Resolve(this->At("A\\B.ini")), this->At("a\\b.ini"));
  WriteExact(this->disk, "a/c.ini", "two parts");
  EXPECT_EQ(this->files.Read(this->At("a\\c.ini")), "two parts");
}

TYPED_TEST(FilesContractTest, ASeparatorAtTheEndAsksForAFolder) {
  ASSERT_TRUE(this->files.CreateFolder(this->At("folder")));
  WriteExact(this->disk, "file", "x");
  EXPECT_EQ(this->files.Kind(this->At("folder/")), FileKind::kFolder);
  EXPECT_EQ(this->files.Kind(this->At("FOLDER\\")), FileKind::kFolder);
  EXPECT_EQ(this->files.Kind(this->At("file/")), FileKind::kAbsent);
  EXPECT_EQ(this->files.Kind(this->At("FILE\\")), FileKind::kAbsent);
}

TYPED_TEST(FilesContractTest, AFolderIsNoFileAndAFileIsNoFolder) {
  ASSERT_TRUE(this->files.CreateFolder(this->At("folder")));
  ASSERT_TRUE(this->files.Replace(this->At("file"), "x"));
  EXPECT_EQ(this->files.ReadWatched(this->At("folder"), Files::kNoLimit).result, ReadResult::kRefused);
  EXPECT_FALSE(this->files.Replace(this->At("folder"), "x"));
  EXPECT_FALSE(this->files.Remove(this->At("folder")));
  EXPECT_FALSE(this->files.RemoveTree(this->At("file")));
  EXPECT_FALSE(this->files.CreateFolder(this->At("file")));
  EXPECT_FALSE(this->files.CreateFolder(this->At("file/below")));
  EXPECT_FALSE(this->files.Replace(this->At("file/below"), "x"));
  EXPECT_EQ(this->files.Read(this->At("file")), "x");
}

TYPED_TEST(FilesContractTest, WhatIsAbsentReadsAsAbsentAndCountsAsRemoved) {
  const FileReading reading = this->files.ReadWatched(this->At("none"), Files::kNoLimit);
  EXPECT_EQ(reading.result, ReadResult::kAbsent);
  EXPECT_EQ(reading.watch, nullptr);
  EXPECT_EQ(this->files.ReadWatched(this->At("no/ne"), Files::kNoLimit).result, ReadResult::kAbsent);
  EXPECT_EQ(this->files.Kind(this->At("none")), FileKind::kAbsent);
  EXPECT_TRUE(this->files.Remove(this->At("none")));
  EXPECT_TRUE(this->files.RemoveTree(this->At("none")));
  EXPECT_TRUE(this->files.List(this->At("none"), FileKind::kRegular).empty());
}

TYPED_TEST(FilesContractTest, TheEmptyPathIsNothing) {
  EXPECT_EQ(this->files.Kind(""), FileKind::kAbsent);
  EXPECT_EQ(this->files.ReadWatched("", Files::kNoLimit).result, ReadResult::kAbsent);
  EXPECT_FALSE(this->files.Replace("", "x"));
}

TYPED_TEST(FilesContractTest, AWriteIntoAMissingFolderIsRefused) {
  EXPECT_FALSE(this->files.Replace(this->At("none/a.ini"), "x"));
  EXPECT_EQ(this->files.Kind(this->At("none")), FileKind::kAbsent);
}

TYPED_TEST(FilesContractTest, AFileLargerThanTheLimitIsRefused) {
  ASSERT_TRUE(this->files.Replace(this->At("a"), "12345"));
  EXPECT_EQ(this->files.ReadWatched(this->At("a"), 4).result, ReadResult::kRefused);
  EXPECT_EQ(this->files.ReadWatched(this->At("a"), 5).content, "12345");
}

TYPED_TEST(FilesContractTest, AListIsSortedWithoutRegardToCaseAndHoldsOneKind) {
  for (const char* name : {"b", "C", "a", "B"}) WriteExact(this->disk, name, "x");
  ASSERT_TRUE(this->files.CreateFolder(this->At("folder")));
  EXPECT_EQ(this->files.List(this->disk.root, FileKind::kRegular), (std::vector<std::string>{"a", "B", "b", "C"}));
  EXPECT_EQ(this->files.List(this->disk.root + "/", FileKind::kFolder), std::vector<std::string>{"folder"});
}

TYPED_TEST(FilesContractTest, AFolderIsMadeWithThoseAboveItAndRemovedWithAllInIt) {
  EXPECT_TRUE(this->files.CreateFolder(this->At("a/b/c")));
  EXPECT_TRUE(this->files.CreateFolder(this->At("a/b/c")));
  ASSERT_TRUE(this->files.Replace(this->At("a/b/c/file"), "x"));
  EXPECT_TRUE(this->files.RemoveTree(this->At("a")));
  EXPECT_EQ(this->files.Kind(this->At("a")), FileKind::kAbsent);
}

TYPED_TEST(FilesContractTest, AWatchTellsOfEveryWayInWhichAFileCanChange) {
  const std::string path = this->At("a.ini");
  const auto isSeen = [&](auto change) {
    this->files.Replace(path, "old");
    const FileReading reading = this->files.ReadWatched(path, Files::kNoLimit);
    change();
    return reading.watch == nullptr || !reading.watch->Unchanged();
  };
  EXPECT_TRUE(isSeen([&] { this->files.Replace(path, "new"); }));
  EXPECT_TRUE(isSeen([&] { this->files.Replace(path, "old"); }));
  EXPECT_TRUE(isSeen([&] { WriteExact(this->disk, "a.ini", "new"); }));
  EXPECT_TRUE(isSeen([&] { this->files.Remove(path); }));
  EXPECT_TRUE(isSeen([&] {
    this->files.Remove(path);
    this->files.Replace(path, "new");
  }));
}

TYPED_TEST(FilesContractTest, TheDrivesBeginWithTheRootAndAreFoldersSortedAndEachOnce) {
  std::vector<std::string> drives = this->files.Drives();
  ASSERT_FALSE(drives.empty());
  EXPECT_EQ(drives.front(), "/");
  for (const std::string& drive : drives) EXPECT_EQ(this->files.Kind(drive), FileKind::kFolder) << drive;
  EXPECT_TRUE(std::ranges::is_sorted(drives));
  EXPECT_EQ(std::ranges::adjacent_find(drives), drives.end());
}

}  // namespace
