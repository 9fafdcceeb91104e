#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

// What tells that a file is still the one that was read last.
struct FileStamp {
  std::uint64_t device = 0;
  std::uint64_t inode = 0;
  std::uint64_t size = 0;
  std::int64_t changedNanoseconds = 0;

  bool operator==(const FileStamp&) const = default;
};

enum class FileKind { kAbsent, kRegular, kFolder, kOther };

// The disk. Paths are UTF-8 with the platform's separator; a part of a path whose exact name is missing is looked up
// without regard to case. No call throws; a failure is the return value.
class Files {
 public:
  virtual ~Files() = default;

  virtual FileKind Kind(const std::string& path) const = 0;
  // The stamp of a regular file; nothing for all else.
  virtual std::optional<FileStamp> Stamp(const std::string& path) const = 0;
  // The whole of a regular file; nothing when it is absent, unreadable, or no regular file.
  virtual std::optional<std::string> Read(const std::string& path) const = 0;

  // Puts `content` in the place of the file in one step: a reader, a crash or a full disk sees the old file or the new
  // one, whole. The step is done when the call returns; flushing to the medium follows within a second elsewhere, in an
  // order that a power cut cannot turn into an empty file. The folder must exist. False, and the old file as it was,
  // when it cannot be done.
  virtual bool Replace(const std::string& path, const std::string& content) = 0;
  // Removes a file; true when it is gone.
  virtual bool Remove(const std::string& path) = 0;
  // Removes a folder with all in it, not following links; true when it is gone.
  virtual bool RemoveTree(const std::string& path) = 0;
  // Makes a folder and those above it; true when it is there.
  virtual bool CreateFolder(const std::string& path) = 0;
  // Names in a folder, files or folders alike as `kind` asks, sorted without regard to case, then by bytes; empty when
  // it cannot be read.
  virtual std::vector<std::string> List(const std::string& folder, FileKind kind) const = 0;
};
