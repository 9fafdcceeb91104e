#include <gtest/gtest.h>
#include <sched.h>
#include <signal.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "platform/posix/PosixFiles.h"
#include "settings/IniFile.h"
#include "tests/platform/TemporaryFolder.h"

namespace {

constexpr int kCannotMount = 77;

class IniFileOnDiskTest : public testing::Test {
 protected:
  IniFileOnDiskTest() { ini.SetPath(path); }

  std::string Read() { return ini.ReadValue("One", "A", "default"); }

  TemporaryFolder folder;
  std::string path = folder.Path() + "/Settings.ini";
  PosixFiles files;
  IniFile ini{files};
};

TEST_F(IniFileOnDiskTest, AChangeByAnotherProgramIsSeenAtTheNextReadHoweverSoonItComes) {
  for (int i = 1000; i < 1500; ++i) {
    WriteByOther(path, "[One]\nA=" + std::to_string(i) + "\n");
    ASSERT_EQ(Read(), std::to_string(i));
    const std::string beside = folder.Path() + "/new";
    WriteByOther(beside, "[One]\nA=" + std::to_string(i + 1000) + "\n");
    std::filesystem::rename(beside, path);
    ASSERT_EQ(Read(), std::to_string(i + 1000));
    std::filesystem::remove(path);
    ASSERT_EQ(Read(), "default");
  }
}

TEST_F(IniFileOnDiskTest, TwoInstancesOfOneFileSeeEachOthersWritesAtOnce) {
  IniFile other(files);
  other.SetPath(path);
  for (int i = 0; i < 500; ++i) {
    ini.WriteValue("One", "A", std::to_string(i));
    ASSERT_EQ(other.ReadValue("one", "a", ""), std::to_string(i));
    other.WriteValue("One", "B", std::to_string(i));
    ASSERT_EQ(ini.ReadValue("One", "B", ""), std::to_string(i));
    ASSERT_EQ(Read(), std::to_string(i));
  }
}

TEST_F(IniFileOnDiskTest, EveryWriteIsOnDiskForOthersWhenTheCallReturns) {
  for (int i = 0; i < 200; ++i) {
    ini.WriteValue("One", "A", std::to_string(i));
    ASSERT_EQ(ReadByOther(path), "[One]\r\nA=" + std::to_string(i) + "\r\n");
  }
}

TEST_F(IniFileOnDiskTest, AFileDeletedBetweenTwoWritesIsMadeAnew) {
  ini.WriteValue("One", "A", "1");
  std::filesystem::remove(path);
  ini.WriteValue("One", "A", "1");
  EXPECT_EQ(ReadByOther(path), "[One]\r\nA=1\r\n");
}

TEST_F(IniFileOnDiskTest, AFileOfAHundredMegabytesIsNotEvenRead) {
  WriteByOther(path, "[One]\nA=1\n");
  std::filesystem::resize_file(path, 100u << 20);
  EXPECT_EQ(Read(), "default");
  ini.WriteValue("One", "A", "2");
  EXPECT_EQ(std::filesystem::file_size(path), 100u << 20);
}

TEST_F(IniFileOnDiskTest, AFolderOrAPipeInTheFilesPlaceReadsAsDefaults) {
  std::filesystem::create_directory(path);
  EXPECT_EQ(Read(), "default");
  ini.WriteValue("One", "A", "1");
  EXPECT_TRUE(std::filesystem::is_directory(path));
  std::filesystem::remove(path);
  ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
  EXPECT_EQ(Read(), "default");
  ini.WriteValue("One", "A", "1");
  EXPECT_TRUE(std::filesystem::is_fifo(path));
}

// On a disk of 256 KB: a value written while there was room must be there all the time that there is none, and the
// first value written when there is room again must be kept.
int WorkOnASmallDisk(const std::string& folder) {
  if (unshare(CLONE_NEWNS) != 0 || mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
      mount("small", folder.c_str(), "tmpfs", 0, "size=256k") != 0) {
    return kCannotMount;
  }
  PosixFiles files;
  IniFile ini(files);
  ini.SetPath(folder + "/Settings.ini");
  for (int round = 0; round < 20; ++round) {
    const std::string value = std::to_string(round);
    ini.WriteValue("One", "A", value);
    if (ini.ReadValue("One", "A", "") != value) return 1;
    WriteByOther(folder + "/film.avi", std::string(1 << 20, 'x'));
    for (int i = 0; i < 10; ++i) ini.WriteValue("One", "A", "lost");
    const bool isKept =
        ini.ReadValue("One", "A", "") == value && ReadByOther(ini.Path()) == "[One]\r\nA=" + value + "\r\n";
    if (!isKept) return 2;
    std::filesystem::remove(folder + "/film.avi");
  }
  return 0;
}

TEST_F(IniFileOnDiskTest, AFullDiskLosesNewValuesButNeverTheFile) {
  const pid_t child = fork();
  if (child == 0) _exit(WorkOnASmallDisk(folder.Path()));
  int status = 0;
  waitpid(child, &status, 0);
  ASSERT_TRUE(WIFEXITED(status));
  if (WEXITSTATUS(status) == kCannotMount) GTEST_SKIP() << "may not mount a small disk";
  EXPECT_EQ(WEXITSTATUS(status), 0);
}

}  // namespace
