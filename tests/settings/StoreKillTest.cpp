#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <random>

#include "settings/IniDocument.h"
#include "settings/IniText.h"
#include "tests/platform/TemporaryFolder.h"
#include "tests/settings/StoreWriter.h"

namespace {

#ifdef __SANITIZE_ADDRESS__
constexpr int kKills = 30;  // a start takes far longer there
#else
constexpr int kKills = 1000;
#endif

// The last write that a writer reported before it was killed at a random moment of its work.
class KilledWriter {
 public:
  KilledWriter(const std::string& path, std::uint64_t first) : last_(first - 1) {
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0) return;
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
    std::string number = std::to_string(first);
    std::string file = path;
    std::string program = STORE_WRITER;
    char* arguments[] = {program.data(), file.data(), number.data(), nullptr};
    posix_spawn(&process_, STORE_WRITER, &actions, nullptr, arguments, environ);
    posix_spawn_file_actions_destroy(&actions);
    close(ends[1]);
    reports_ = ends[0];
  }

  ~KilledWriter() { close(reports_); }

  // Waits for the first report, so that the kill falls into the work and not into the start.
  void AwaitWork() { TakeReport(); }

  void Kill() {
    kill(process_, SIGKILL);
    waitpid(process_, nullptr, 0);
    while (TakeReport()) {
    }
  }

  std::uint64_t Last() const { return last_; }

 private:
  bool TakeReport() { return read(reports_, &last_, sizeof last_) == sizeof last_; }

  pid_t process_ = -1;
  int reports_ = -1;
  std::uint64_t last_;
};

// What a reader of the file must see after the write `last` was reported: every value there, none older than reported,
// and at most the one write newer that was under way.
void ExpectWhole(const std::string& bytes, std::uint64_t last) {
  const IniDocument document(DecodeIni(bytes));
  ASSERT_EQ(document.SectionCount(), 2u);
  EXPECT_EQ(document.Value("Output", "Show"), "True");
  ASSERT_EQ(document.KeyCount(document.FindSection("Playlist")), kWrittenKeys);
  for (std::uint64_t number = last - kWrittenKeys + 1; number <= last; ++number) {
    const std::string value(document.Value("Playlist", WrittenKey(number)));
    const bool isUnderWay = number == last - kWrittenKeys + 1 && value == std::to_string(last + 1);
    EXPECT_TRUE(isUnderWay || value == std::to_string(number)) << WrittenKey(number) << "=" << value;
  }
}

TEST(StoreKillTest, AKilledStationLosesNoKeyNoFileAndNoReportedWrite) {
  const TemporaryFolder folder;
  const std::string path = folder.Path() + "/Settings.ini";
  std::string text = "[Output]\r\nShow=True\r\n\r\n[Playlist]\r\n";
  std::uint64_t last = 0;
  for (; last < kWrittenKeys; ++last) {
    text.append(WrittenKey(last + 1)).append("=").append(std::to_string(last + 1)).append("\r\n");
  }
  WriteByOther(path, text);

  std::mt19937 random(20261115);
  for (int round = 0; round < kKills; ++round) {
    KilledWriter writer(path, last + 1);
    writer.AwaitWork();
    const auto end = std::chrono::steady_clock::now() + std::chrono::microseconds(random() % 15'000);
    // Meanwhile no reader may find anything but a whole file.
    do {
      const IniDocument seen(DecodeIni(ReadByOther(path)));
      ASSERT_EQ(seen.SectionCount(), 2u);
      ASSERT_EQ(seen.KeyCount(1), kWrittenKeys);
    } while (std::chrono::steady_clock::now() < end);
    writer.Kill();
    last = writer.Last();
    ExpectWhole(ReadByOther(path), last);
    if (HasFailure()) FAIL() << "after kill " << round;
    // A write that was under way and is there counts from now on.
    const IniDocument document(DecodeIni(ReadByOther(path)));
    if (document.Value("Playlist", WrittenKey(last + 1)) == std::to_string(last + 1)) ++last;
  }
  RecordProperty("writes", std::to_string(last));
}

}  // namespace
