#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <optional>

#include "platform/posix/FolderLock.h"
#include "tests/platform/TemporaryFolder.h"

namespace {

class FolderLockTest : public ::testing::Test {
 protected:
  bool IsFree() const { return FolderLock(folder.Path()).Take(); }

  TemporaryFolder folder;
};

TEST_F(FolderLockTest, OneAtATimeHasTheFolder) {
  std::optional<FolderLock> first(folder.Path());
  EXPECT_TRUE(first->Take());
  EXPECT_TRUE(first->Take());
  EXPECT_FALSE(IsFree());
  first.reset();
  EXPECT_TRUE(IsFree());
}

TEST_F(FolderLockTest, TwoFoldersAreTwoStations) {
  const TemporaryFolder other;
  FolderLock first(folder.Path()), second(other.Path());
  EXPECT_TRUE(first.Take());
  EXPECT_TRUE(second.Take());
}

TEST_F(FolderLockTest, AKilledProcessLeavesItsFileAndNoLock) {
  int ends[2];
  ASSERT_EQ(pipe(ends), 0);
  const pid_t child = fork();
  if (child == 0) {
    FolderLock lock(folder.Path());
    const char taken = lock.Take() ? '1' : '0';
    _exit(write(ends[1], &taken, 1) == 1 ? pause() : 1);
  }
  char taken = 0;
  ASSERT_EQ(read(ends[0], &taken, 1), 1);
  EXPECT_EQ(taken, '1');
  EXPECT_FALSE(IsFree());
  kill(child, SIGKILL);
  waitpid(child, nullptr, 0);
  close(ends[0]);
  close(ends[1]);
  EXPECT_TRUE(std::filesystem::exists(std::filesystem::path(folder.Path()) / "corvanta.lock"));
  EXPECT_TRUE(IsFree());
}

TEST_F(FolderLockTest, AProgramThatWasStartedMeanwhileDoesNotGoOnHoldingIt) {
  std::optional<FolderLock> first(folder.Path());
  ASSERT_TRUE(first->Take());
  int ends[2];
  ASSERT_EQ(pipe(ends), 0);
  const pid_t child = fork();
  if (child == 0) {
    dup2(ends[1], STDOUT_FILENO);
    execl("/bin/sh", "sh", "-c", "echo; exec sleep 60", nullptr);
    _exit(127);
  }
  char line = 0;
  ASSERT_EQ(read(ends[0], &line, 1), 1);
  first.reset();
  EXPECT_TRUE(IsFree());
  kill(child, SIGKILL);
  waitpid(child, nullptr, 0);
  close(ends[0]);
  close(ends[1]);
}

TEST_F(FolderLockTest, WhereNoLockCanBeHadTheStationStarts) {
  EXPECT_TRUE(FolderLock(folder.Path() + "/none").Take());
  std::filesystem::create_directory(folder.Path() + "/corvanta.lock");
  EXPECT_TRUE(IsFree());
}

}  // namespace
