#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <thread>

#include "platform/posix/MountedMedia.h"
#include "platform/posix/PosixFiles.h"
#include "platform/posix/SafeNames.h"
#include "tests/platform/TemporaryFolder.h"

namespace {

class PosixFilesTest : public testing::Test {
 protected:
  std::string At(const std::string& name) const { return folder.Path() + "/" + name; }
  std::vector<std::string> Names() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder.Path()))
      names.push_back(entry.path().filename());
    std::sort(names.begin(), names.end());
    return names;
  }

  TemporaryFolder folder;
};

TEST_F(PosixFilesTest, NothingIsLeftBesideTheFilesOnceAllIsOnTheMedium) {
  {
    PosixFiles files;
    for (int i = 0; i < 100; ++i) {
      ASSERT_TRUE(files.Replace(At("a.ini"), std::to_string(i)));
      ASSERT_TRUE(files.Replace(At("b.ini"), std::to_string(i)));
    }
    EXPECT_TRUE(files.Remove(At("b.ini")));
    EXPECT_EQ(files.List(folder.Path(), FileKind::kRegular), std::vector<std::string>{"a.ini"});
  }
  EXPECT_EQ(Names(), std::vector<std::string>{"a.ini"});
  EXPECT_EQ(ReadByOther(At("a.ini")), "99");
}

TEST_F(PosixFilesTest, TheNewestVersionOnTheMediumIsKeptUntilANewerOneIsThere) {
  { PosixFiles().Replace(At("a.ini"), "flushed"); }
  PosixFiles files;
  files.Replace(At("a.ini"), "one");
  files.Replace(At("a.ini"), "two");
  int kept = 0;
  for (const std::string& name : Names()) {
    KeptName parsed;
    if (!parsed.Parse(name)) continue;
    ++kept;
    EXPECT_EQ(parsed.file, "a.ini");
    EXPECT_EQ(parsed.before, ContentDigest("one"));
    EXPECT_EQ(parsed.now, ContentDigest("two"));
    EXPECT_EQ(ReadByOther(At(name)), "flushed");
  }
  EXPECT_EQ(kept, 1);
}

// The memory of this process is a regular file whose first page nobody can read.
TEST_F(PosixFilesTest, AMediumThatGivesNothingIsToldFromAFileThatCannotBeOpened) {
  EXPECT_EQ(PosixFiles().ReadStart("/proc/self/mem", 5).result, FileStart::kNotRead);
}

TEST_F(PosixFilesTest, AFileIsLetGoOfOnceItsStartIsRead) {
  const PosixFiles files;
  WriteByOther(At("a.swf"), "FWS and more");
  const auto held = [] { return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {}); };
  const auto before = held();
  EXPECT_EQ(files.ReadStart(At("a.swf"), 3).bytes, "FWS");
  EXPECT_EQ(held(), before);
}

// The file as a power cut leaves it: its name already the new version's, its content not on the medium.
void LeaveTorn(const std::string& folder, const std::string& torn) {
  WriteByOther(folder + "/a.ini", torn);
  WriteByOther(folder + "/" + KeptName{"a.ini", ContentDigest("before"), ContentDigest("now")}.Text(), "flushed");
}

TEST_F(PosixFilesTest, AFileThatAPowerCutToreGetsItsNewestWholeVersionBack) {
  for (const std::string& torn : {std::string(), std::string("no\0", 3), std::string(4096, '\0')}) {
    LeaveTorn(folder.Path(), torn);
    EXPECT_EQ(PosixFiles().Read(At("a.ini")), "flushed");
    EXPECT_EQ(Names(), std::vector<std::string>{"a.ini"});
    LeaveTorn(folder.Path(), torn);
    EXPECT_TRUE(PosixFiles().Replace(At("a.ini"), "newer"));
    EXPECT_EQ(Names(), std::vector<std::string>{"a.ini"});
    EXPECT_EQ(ReadByOther(At("a.ini")), "newer");
  }
}

TEST_F(PosixFilesTest, AFileThatIsWholeAfterAnEndOfTheProcessStays) {
  for (const char* content : {"before", "now"}) {
    LeaveTorn(folder.Path(), content);
    EXPECT_EQ(PosixFiles().Read(At("a.ini")), content);
    EXPECT_EQ(Names(), std::vector<std::string>{"a.ini"});
  }
}

TEST_F(PosixFilesTest, AFileEditedByHandAfterAnEndOfTheProcessStays) {
  LeaveTorn(folder.Path(), "edited by hand");
  EXPECT_EQ(PosixFiles().Read(At("a.ini")), "edited by hand");
  EXPECT_EQ(Names(), std::vector<std::string>{"a.ini"});
}

TEST_F(PosixFilesTest, AFileDeletedAfterAnEndOfTheProcessStaysDeleted) {
  LeaveTorn(folder.Path(), "");
  std::filesystem::remove(At("a.ini"));
  EXPECT_EQ(PosixFiles().Read(At("a.ini")), std::nullopt);
  EXPECT_TRUE(Names().empty());
}

TEST_F(PosixFilesTest, UnfinishedFilesOfProcessesThatAreGoneAreRemoved) {
  WriteByOther(At(".999999999-3.unfinished~"), "half");
  WriteByOther(At(".a.ini.next~"), "half");
  const std::string ours = UnfinishedName(folder.Path());
  WriteByOther(ours, "being written");
  PosixFiles().Read(At("a.ini"));
  EXPECT_EQ(Names(), std::vector<std::string>{ours.substr(folder.Path().size() + 1)});
}

TEST_F(PosixFilesTest, AWriteThroughALinkReplacesTheFileItLeadsTo) {
  WriteByOther(At("real.ini"), "old");
  std::filesystem::create_symlink("real.ini", At("link.ini"));
  EXPECT_TRUE(PosixFiles().Replace(At("link.ini"), "new"));
  EXPECT_TRUE(std::filesystem::is_symlink(At("link.ini")));
  EXPECT_EQ(ReadByOther(At("real.ini")), "new");
}

TEST_F(PosixFilesTest, ATreeIsRemovedWithoutFollowingLinks) {
  PosixFiles files;
  files.CreateFolder(At("kept"));
  files.Replace(At("kept/file"), "x");
  files.CreateFolder(At("gone/deep"));
  std::filesystem::create_directory_symlink(At("kept"), At("gone/deep/link"));
  EXPECT_TRUE(files.RemoveTree(At("gone")));
  EXPECT_EQ(files.Kind(At("gone")), FileKind::kAbsent);
  EXPECT_EQ(files.Read(At("kept/file")), "x");
}

TEST_F(PosixFilesTest, AllThatWasInARemovedFolderIsGoneAtTheLatestWhenTheProgramEnds) {
  {
    PosixFiles files;
    files.CreateFolder(At("ad/deep"));
    WriteByOther(At("ad/deep/large.mp4"), std::string(1 << 20, 'x'));
    EXPECT_TRUE(files.RemoveTree(At("ad")));
    EXPECT_TRUE(files.List(folder.Path(), FileKind::kFolder).empty());
  }
  EXPECT_TRUE(Names().empty());
}

TEST_F(PosixFilesTest, AFolderIsRemovedWhileItsFilesAreOnTheirWayToTheMedium) {
  for (int round = 0; round < 50; ++round) {
    {
      PosixFiles files;
      ASSERT_TRUE(files.CreateFolder(At("ad")));
      for (int i = 0; i < 10; ++i) ASSERT_TRUE(files.Replace(At("ad/adinfo.ini"), std::to_string(i)));
      std::this_thread::sleep_for(std::chrono::milliseconds(round % 7));
      ASSERT_TRUE(files.RemoveTree(At("ad")));
      ASSERT_TRUE(files.List(folder.Path(), FileKind::kFolder).empty());
    }
    ASSERT_TRUE(Names().empty());
  }
}

TEST_F(PosixFilesTest, AFolderWhoseRemovalIsCutOffIsWholeOrGone) {
  constexpr int kFiles = 300;
  constexpr int kRounds = 40;
  for (int round = 0; round < kRounds; ++round) {
    std::filesystem::create_directories(At("ad/deep"));
    for (int i = 0; i < kFiles; ++i) WriteByOther(At("ad/deep/" + std::to_string(i)), "x");
    const pid_t remover = fork();
    if (remover == 0) {
      PosixFiles().RemoveTree(At("ad"));
      _exit(0);
    }
    usleep(static_cast<useconds_t>(round) * 100);
    if (round + 1 < kRounds) kill(remover, SIGKILL);
    waitpid(remover, nullptr, 0);
    {
      PosixFiles files;
      if (!files.List(folder.Path(), FileKind::kFolder).empty()) {
        EXPECT_LT(round + 1, kRounds);
        EXPECT_EQ(files.List(At("ad/deep"), FileKind::kRegular).size(), static_cast<std::size_t>(kFiles));
        EXPECT_TRUE(files.RemoveTree(At("ad/")));
      }
    }
    ASSERT_TRUE(Names().empty());
  }
}

TEST_F(PosixFilesTest, AHalfRemovedFolderIsInNoListAndGoesAtTheNextStart) {
  std::filesystem::create_directories(At(".999999999-3.unfinished~/deep"));
  WriteByOther(At(".999999999-3.unfinished~/deep/file"), "half");
  EXPECT_TRUE(PosixFiles().List(folder.Path(), FileKind::kFolder).empty());
  EXPECT_TRUE(Names().empty());
}

TEST_F(PosixFilesTest, TheRightsOfAFileOutliveAWrite) {
  WriteByOther(At("a.ini"), "old");
  chmod(At("a.ini").c_str(), 0640);
  EXPECT_TRUE(PosixFiles().Replace(At("a.ini"), "new"));
  struct stat status;
  ASSERT_EQ(stat(At("a.ini").c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 07777, 0640u);
}

TEST_F(PosixFilesTest, APipeInAFilesPlaceStopsNobody) {
  ASSERT_EQ(mkfifo(At("a.ini").c_str(), 0600), 0);
  PosixFiles files;
  EXPECT_EQ(files.ReadWatched(At("a.ini"), Files::kNoLimit).result, ReadResult::kRefused);
  EXPECT_FALSE(files.Replace(At("a.ini"), "x"));
}

TEST_F(PosixFilesTest, AWatchSettlesOnceTheFileIsOlderThanTheTickOfTheDiskClock) {
  PosixFiles files;
  files.Replace(At("a.ini"), "x");
  const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(10);
  bool settled = false;
  while (!settled && std::chrono::steady_clock::now() < deadline) {
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
    settled = files.ReadWatched(At("a.ini"), Files::kNoLimit).watch->Unchanged();
  }
  EXPECT_TRUE(settled);
}

TEST_F(PosixFilesTest, AChangeOfTheSameSizeRightAfterAReadIsSeen) {
  PosixFiles files;
  for (int i = 0; i < 200; ++i) {
    WriteByOther(At("a.ini"), std::to_string(1000 + i));
    const FileReading reading = files.ReadWatched(At("a.ini"), Files::kNoLimit);
    WriteByOther(At("a.ini"), std::to_string(2000 + i));
    ASSERT_FALSE(reading.watch->Unchanged()) << i;
  }
}

TEST_F(PosixFilesTest, AFolderSwappedForAnotherIsSeenSoonAfter) {
  PosixFiles files;
  files.CreateFolder(At("Playlist"));
  files.CreateFolder(At("Other"));
  WriteByOther(At("Playlist/a.plt"), "old");
  WriteByOther(At("Other/a.plt"), "new");
  std::this_thread::sleep_for(std::chrono::milliseconds(50));
  const FileReading reading = files.ReadWatched(At("Playlist/a.plt"), Files::kNoLimit);
  EXPECT_TRUE(reading.watch->Unchanged());
  std::filesystem::rename(At("Playlist"), At("Gone"));
  std::filesystem::rename(At("Other"), At("Playlist"));
  std::this_thread::sleep_for(std::chrono::milliseconds(200));
  EXPECT_FALSE(reading.watch->Unchanged());
}

// Runs `work` in a process of its own, which may then be limited or harmed; true when it says so.
template <typename Work>
bool InAnotherProcess(Work work) {
  const pid_t child = fork();
  if (child == 0) _exit(work() ? 0 : 1);
  int status = 1;
  waitpid(child, &status, 0);
  return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

TEST_F(PosixFilesTest, ADiskThatTakesNoMoreLeavesTheOldFile) {
  WriteByOther(At("a.ini"), "old");
  EXPECT_TRUE(InAnotherProcess([&] {
    signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{1000, 1000};
    setrlimit(RLIMIT_FSIZE, &limit);
    PosixFiles files;
    return !files.Replace(At("a.ini"), std::string(5000, 'x')) && files.Read(At("a.ini")) == "old";
  }));
  EXPECT_EQ(ReadByOther(At("a.ini")), "old");
  EXPECT_EQ(Names(), std::vector<std::string>{"a.ini"});
}

TEST_F(PosixFilesTest, RightsThatForbidAReadOrAWriteAreHeeded) {
  if (geteuid() != 0 && access(folder.Path().c_str(), W_OK) != 0) GTEST_SKIP();
  WriteByOther(At("secret.ini"), "s");
  WriteByOther(At("fixed.ini"), "f");
  chmod(folder.Path().c_str(), 0777);
  chmod(At("secret.ini").c_str(), 0);
  chmod(At("fixed.ini").c_str(), 0444);
  EXPECT_TRUE(InAnotherProcess([&] {
    constexpr uid_t kNobody = 65534;
    if (geteuid() == 0 && setuid(kNobody) != 0) return false;
    PosixFiles files;
    return files.ReadWatched(At("secret.ini"), Files::kNoLimit).result == ReadResult::kRefused &&
           !files.Replace(At("secret.ini"), "x") && !files.Replace(At("fixed.ini"), "x");
  }));
  EXPECT_EQ(ReadByOther(At("fixed.ini")), "f");
  EXPECT_EQ(ReadByOther(At("secret.ini")), "s");
}

TEST_F(PosixFilesTest, AVeryLongNameIsWrittenAllTheSame) {
  const std::string name(250, 'n');
  PosixFiles files;
  EXPECT_TRUE(files.Replace(At(name), "one"));
  EXPECT_TRUE(files.Replace(At(name), "two"));
  EXPECT_EQ(ReadByOther(At(name)), "two");
}

TEST(SafeNamesTest, AKeptNameIsReadBackWhateverTheFileIsCalled) {
  for (const char* file : {"Settings.ini", "a.b.c", ".hidden", "x.0123456789abcdef", "новости.plt"}) {
    KeptName read;
    ASSERT_TRUE(read.Parse(KeptName{file, 1, ~0ull}.Text()));
    EXPECT_EQ(read.file, file);
    EXPECT_EQ(read.before, 1u);
    EXPECT_EQ(read.now, ~0ull);
  }
  KeptName read;
  for (const char* name :
       {"", ".kept~", ".a.kept~", ".a.0123456789abcdef.kept~", "a.ini", ".a.0123456789abcdeg.0123456789abcdef.kept~"}) {
    EXPECT_FALSE(read.Parse(name)) << name;
  }
}

TEST(MountedMediaTest, MediaAreWhatIsMountedWhereDesktopsAndPeopleMountThem) {
  EXPECT_EQ(MountedMedia("/dev/sda1 / ext4 rw 0 0\n"
                         "tmpfs /run tmpfs rw 0 0\n"
                         "/dev/sdc1 /media/op/My\\040stick vfat rw 0 0\n"
                         "nas:/films /mnt/films nfs rw 0 0\n"
                         "/dev/sda2 /boot/efi vfat rw 0 0\n"
                         "/dev/sdb1 /run/media/op/a\\134b ext4 rw 0 0\n"
                         "/dev/sdb1 /run/media/op/a\\134b ext4 rw 0 0\n"
                         "/dev/sdd1 /mnt ext4 rw 0 0\n"
                         "tmpfs /mntal tmpfs rw 0 0\n"
                         "tmpfs /media/ tmpfs rw 0 0"),
            (std::vector<std::string>{"/media/op/My stick", "/mnt", "/mnt/films", "/run/media/op/a\\b"}));
}

TEST(MountedMediaTest, ATableThatIsNoneHasNoMedia) {
  for (const char* table : {"", "\n\n", "x", "x /media/\\04", "x /media/a"}) {
    EXPECT_LE(MountedMedia(table).size(), 1U) << table;
  }
  EXPECT_EQ(MountedMedia("x /media/b\\04"), std::vector<std::string>{"/media/b\\04"});
}

}  // namespace
