#include "platform/posix/RecoverFolder.h"

#include <dirent.h>
#include <fcntl.h>
#include <signal.h>
#include <sys/stat.h>

#include <cerrno>
#include <ctime>
#include <memory>
#include <vector>

#include "platform/posix/FileHandle.h"
#include "platform/posix/ReadAll.h"
#include "platform/posix/RemoveTree.h"
#include "platform/posix/SafeNames.h"

namespace {

std::vector<std::string> SafeNamesIn(const std::string& folder) {
  std::vector<std::string> names;
  const std::unique_ptr<DIR, int (*)(DIR*)> entries(opendir(folder.c_str()), closedir);
  if (entries == nullptr) return names;
  while (const dirent* entry = readdir(entries.get())) {
    if (IsSafeName(entry->d_name)) names.emplace_back(entry->d_name);
  }
  return names;
}

// Whether the file has not changed since the machine came up. Then nobody has mended it by hand.
bool IsOlderThanThisBoot(const struct stat& status) {
  timespec now;
  timespec up;
  clock_gettime(CLOCK_REALTIME, &now);
  clock_gettime(CLOCK_BOOTTIME, &up);
  return status.st_ctim.tv_sec < now.tv_sec - up.tv_sec;
}

// What a power cut leaves of a file whose content did not reach the medium in time.
bool LooksTorn(const std::string& content) { return content.empty() || content.find('\0') != std::string::npos; }

void RecoverFile(const std::string& folder, const std::string& safeName, const KeptName& kept) {
  const std::string target = folder + "/" + kept.file;
  const std::string keptPath = folder + "/" + safeName;
  struct stat status;
  struct stat keptStatus;
  std::string content;
  const FileHandle file(open(target.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
  const bool isRead = file.IsOpen() && fstat(file.Get(), &status) == 0 && S_ISREG(status.st_mode) &&
                      ReadAll(file.Get(), static_cast<std::uint64_t>(status.st_size), content);
  if (isRead && stat(keptPath.c_str(), &keptStatus) == 0 && keptStatus.st_ino != status.st_ino) {
    const std::uint64_t digest = ContentDigest(content);
    const bool isWhole = digest == kept.now || digest == kept.before;
    if (!isWhole && (IsOlderThanThisBoot(status) || LooksTorn(content))) {
      rename(keptPath.c_str(), target.c_str());
      return;
    }
    // Whole, but perhaps in memory alone: only what is on the medium makes the kept version needless.
    if (fsync(file.Get()) != 0) return;
  }
  // A file that cannot be read may get readable again; one that is gone was removed on purpose.
  if (isRead || !file.IsOpen()) unlink(keptPath.c_str());
}

}  // namespace

void RecoverFolder(const std::string& folder) {
  for (const std::string& name : SafeNamesIn(folder)) {
    KeptName kept;
    if (kept.Parse(name)) {
      RecoverFile(folder, name, kept);
      continue;
    }
    const int owner = UnfinishedOwner(name);
    const bool isOwned = owner != 0 && (kill(owner, 0) == 0 || errno != ESRCH);
    if (!isOwned) RemoveTreeAt(AT_FDCWD, (folder + "/" + name).c_str());
  }
}
