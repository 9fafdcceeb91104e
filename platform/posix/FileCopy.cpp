#include "platform/posix/FileCopy.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>
#include <vector>

#include "platform/posix/FileHandle.h"
#include "platform/posix/RawFile.h"
#include "platform/posix/ResolvePath.h"
#include "platform/posix/SafeNames.h"

namespace {

constexpr std::size_t kSlice = 256 * 1024;
// What waits for the medium is kept small: the files that the station writes each second are not to wait behind it.
constexpr std::uint64_t kBetweenFlushes = 16 * 1024 * 1024;

bool SameFile(const struct stat& one, const struct stat& other) {
  return one.st_dev == other.st_dev && one.st_ino == other.st_ino;
}

void FlushFolder(const std::string& folder) {
  const FileHandle opened(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (opened.IsOpen()) fsync(opened.Get());
}

}  // namespace

CopyResult FileCopy::Run() {
  const FileHandle source = OpenForReading(ResolvePath(from_));
  struct stat from, to;
  if (!source.IsOpen() || fstat(source.Get(), &from) != 0 || !S_ISREG(from.st_mode)) return CopyResult::kFailed;
  const std::string target = BehindLinks(ResolvePath(to_));
  int mode = -1;
  if (stat(target.c_str(), &to) == 0) {
    if (SameFile(from, to)) return CopyResult::kCopied;
    if (!S_ISREG(to.st_mode) || access(target.c_str(), W_OK) != 0) return CopyResult::kFailed;
    mode = static_cast<int>(to.st_mode & 07777);
  }
  total_ = static_cast<std::uint64_t>(from.st_size);
  return Place(source.Get(), target, mode);
}

CopyResult FileCopy::Place(int source, const std::string& target, int mode) {
  const std::string folder = FolderOfPath(target);
  const std::string unfinished = UnfinishedName(folder);
  FileHandle copy(open(unfinished.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
  if (!copy.IsOpen()) return CopyResult::kFailed;
  if (mode >= 0) fchmod(copy.Get(), static_cast<mode_t>(mode));
  CopyResult result = Pour(source, copy.Get());
  if (result == CopyResult::kCopied &&
      (fsync(copy.Get()) != 0 || !copy.Close() || rename(unfinished.c_str(), target.c_str()) != 0)) {
    result = CopyResult::kFailed;
  }
  if (result == CopyResult::kCopied) {
    FlushFolder(folder);
  } else {
    unlink(unfinished.c_str());
  }
  return result;
}

CopyResult FileCopy::Pour(int source, int target) {
  std::vector<char> slice(kSlice);
  for (std::uint64_t flushed = 0;;) {
    if (cancelled_) return CopyResult::kCancelled;
    const ssize_t got = ReadSome(source, slice.data(), slice.size());
    if (got == 0) return CopyResult::kCopied;
    if (got < 0 || !WriteAll(target, {slice.data(), static_cast<std::size_t>(got)})) return CopyResult::kFailed;
    done_ += static_cast<std::uint64_t>(got);
    if (done_ - flushed < kBetweenFlushes) continue;
    if (fdatasync(target) != 0) return CopyResult::kFailed;
    flushed = done_;
  }
}
