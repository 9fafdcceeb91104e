#include "platform/posix/PosixFiles.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

#include "platform/CaseFold.h"
#include "platform/posix/Flusher.h"
#include "platform/posix/MountedMedia.h"
#include "platform/posix/PosixWatch.h"
#include "platform/posix/RawFile.h"
#include "platform/posix/ReadAll.h"
#include "platform/posix/RecoverFolder.h"
#include "platform/posix/ResolvePath.h"
#include "platform/posix/SafeNames.h"

namespace {

FileKind KindOf(const struct stat& status) {
  if (S_ISREG(status.st_mode)) return FileKind::kRegular;
  return S_ISDIR(status.st_mode) ? FileKind::kFolder : FileKind::kOther;
}

// Makes a file of that content; `mode` below 0 leaves the permissions to the system.
bool WriteFile(const std::string& path, const std::string& content, int mode) {
  FileHandle file(open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
  if (!file.IsOpen()) return false;
  if (mode >= 0) fchmod(file.Get(), static_cast<mode_t>(mode));
  return WriteAll(file.Get(), content) && file.Close();
}

}  // namespace

PosixFiles::PosixFiles() : flusher_(std::make_unique<Flusher>()) {}

PosixFiles::~PosixFiles() = default;

void PosixFiles::Recover(const std::string& folder) const {
  if (recovered_.insert(folder).second) RecoverFolder(folder);
}

std::string PosixFiles::Resolve(const std::string& path) const { return ResolvePath(path); }

FileKind PosixFiles::Kind(const std::string& path) const {
  struct stat status;
  const bool exists = stat(path.c_str(), &status) == 0 || stat(ResolvePath(path).c_str(), &status) == 0;
  return exists ? KindOf(status) : FileKind::kAbsent;
}

FileHandle PosixFiles::Open(const std::string& path) const {
  Recover(FolderOfPath(path));
  FileHandle file = OpenForReading(path);
  if (file.IsOpen() || errno != ENOENT) return file;
  const std::string resolved = ResolvePath(path);
  Recover(FolderOfPath(resolved));
  return OpenForReading(resolved);
}

FileStart PosixFiles::ReadStart(const std::string& path, std::size_t count) const {
  const FileHandle file = Open(path);
  struct stat status;
  if (!file.IsOpen() || fstat(file.Get(), &status) != 0 || !S_ISREG(status.st_mode)) return {};
  std::string bytes(count, '\0');
  std::size_t filled = 0;
  while (filled < count) {
    const ssize_t got = ReadSome(file.Get(), bytes.data() + filled, count - filled);
    if (got < 0) return {FileStart::kNotRead, {}};
    if (got == 0) break;
    filled += static_cast<std::size_t>(got);
  }
  bytes.resize(filled);
  return {FileStart::kRead, std::move(bytes)};
}

FileReading PosixFiles::ReadWatched(const std::string& path, std::uint64_t maxBytes) const {
  FileHandle file = Open(path);
  FileReading reading;
  if (!file.IsOpen()) {
    reading.result = errno == ENOENT || errno == ENOTDIR ? ReadResult::kAbsent : ReadResult::kRefused;
    return reading;
  }
  reading.result = ReadResult::kRefused;
  std::unique_ptr<PosixWatch> watch = PosixWatch::Start(path, file.Get());
  if (watch == nullptr || watch->Size() > maxBytes) return reading;
  if (!ReadAll(file.Get(), watch->Size(), reading.content, maxBytes)) {
    reading.content.clear();
    return reading;
  }
  reading.result = ReadResult::kRead;
  watch->Keep(std::move(file));
  reading.watch = std::move(watch);
  return reading;
}

bool PosixFiles::Replace(const std::string& path, const std::string& content) {
  const std::string target = BehindLinks(ResolvePath(path));
  const std::string folder = FolderOfPath(target);
  Recover(folder);
  struct stat status;
  const bool exists = stat(target.c_str(), &status) == 0;
  if (exists && (!S_ISREG(status.st_mode) || access(target.c_str(), W_OK) != 0)) return false;

  const std::string unfinished = UnfinishedName(folder);
  const int mode = exists ? static_cast<int>(status.st_mode & 07777) : -1;
  const bool isDone =
      WriteFile(unfinished, content, mode) && flusher_->Swap(target, unfinished, ContentDigest(content));
  if (!isDone) unlink(unfinished.c_str());
  return isDone;
}

bool PosixFiles::Remove(const std::string& path) {
  const std::string target = ResolvePath(path);
  if (unlink(target.c_str()) != 0 && errno != ENOENT) return false;
  flusher_->Forget(target);
  return true;
}

bool PosixFiles::RemoveTree(const std::string& path) {
  std::string target = ResolvePath(path);
  while (target.size() > 1 && target.ends_with('/')) target.pop_back();
  struct stat status;
  if (lstat(target.c_str(), &status) != 0) return errno == ENOENT;
  if (!S_ISDIR(status.st_mode)) return false;
  // First, so that no name appears in the folder while it is emptied.
  flusher_->Forget(target);
  // Out of every list in one step: whatever ends the station now, no half of the folder is left under its name.
  const std::string folder = FolderOfPath(target);
  Recover(folder);
  const std::string hidden = UnfinishedName(folder);
  if (rename(target.c_str(), hidden.c_str()) != 0) return false;
  flusher_->RemoveTree(hidden);
  return true;
}

bool PosixFiles::CreateFolder(const std::string& path) {
  const std::string target = ResolvePath(path);
  for (std::size_t at = target.find('/', 1); at != std::string::npos; at = target.find('/', at + 1)) {
    mkdir(target.substr(0, at).c_str(), 0777);
  }
  mkdir(target.c_str(), 0777);
  return Kind(target) == FileKind::kFolder;
}

std::vector<std::string> PosixFiles::List(const std::string& folder, FileKind kind) const {
  std::vector<std::string> names;
  const std::string resolved = ResolvePath(folder);
  if (kind == FileKind::kFolder) Recover(resolved);
  const std::unique_ptr<DIR, int (*)(DIR*)> entries(opendir(resolved.c_str()), closedir);
  if (entries == nullptr) return names;
  while (const dirent* entry = readdir(entries.get())) {
    const std::string_view name = entry->d_name;
    if (name == "." || name == ".." || IsSafeName(name)) continue;
    struct stat status;
    if (fstatat(dirfd(entries.get()), entry->d_name, &status, 0) != 0) continue;
    if (KindOf(status) == kind) names.emplace_back(name);
  }
  std::sort(names.begin(), names.end(), LessIgnoringCase);
  return names;
}

std::vector<std::string> PosixFiles::Drives() const {
  const FileHandle table = OpenForReading("/proc/self/mounts");
  std::string content;
  if (!table.IsOpen() || !ReadAll(table.Get(), 0, content)) content.clear();
  std::vector<std::string> drives = MountedMedia(content);
  drives.insert(drives.begin(), "/");
  return drives;
}
