#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <vector>

enum class FileKind { kAbsent, kRegular, kFolder, kOther };

// Tells whether what stands at a path is still what was read together with this watch.
class FileWatch {
 public:
  virtual ~FileWatch() = default;
  // True only when nobody, this process included, can have changed, replaced or removed the file since. May say false
  // of an unchanged file; then read it again. Costs well under a microsecond.
  virtual bool Unchanged() = 0;
};

enum class ReadResult {
  kRead,     // `content` holds the whole file
  kAbsent,   // nothing stands at the path
  kRefused,  // something does, but it is no regular file, or too large, or cannot be read
};

struct FileReading {
  ReadResult result = ReadResult::kAbsent;
  std::string content;
  std::unique_ptr<FileWatch> watch;  // null when nothing can be said: read again each time
};

// The first bytes of a file.
struct FileStart {
  enum Result {
    kRead,
    kNotOpened,  // nothing stands at the path, or it is no regular file, or may not be opened
    kNotRead,    // it was opened, but the medium gives nothing of it
  };
  Result result = kNotOpened;
  std::string bytes;
};

// The disk. Paths are UTF-8; every call takes them as Resolve does. No call throws; a failure is the return value.
class Files {
 public:
  static constexpr std::uint64_t kNoLimit = std::numeric_limits<std::uint64_t>::max();

  virtual ~Files() = default;

  // The path under which something really stands, parted by "/": the path as given where that names something; else a
  // backslash parts it too, and each part whose exact name is missing takes the name that is equal without regard to
  // case, the first in the order of lists. From the first part on that has none, the rest stays as given. Whoever opens
  // a file past this interface opens this path.
  virtual std::string Resolve(const std::string& path) const = 0;

  virtual FileKind Kind(const std::string& path) const = 0;

  // Reads the whole of a regular file of at most `maxBytes` and starts to watch it.
  virtual FileReading ReadWatched(const std::string& path, std::uint64_t maxBytes) const = 0;
  // The whole of a regular file; nothing when it is absent, unreadable, or no regular file.
  std::optional<std::string> Read(const std::string& path) const {
    FileReading reading = ReadWatched(path, kNoLimit);
    if (reading.result != ReadResult::kRead) return std::nullopt;
    return std::move(reading.content);
  }

  // Reads the first `count` bytes of a regular file, all of it where it is shorter, and lets go of it.
  virtual FileStart ReadStart(const std::string& path, std::size_t count) const = 0;

  // Puts `content` in the place of the file in one step: a reader, a crash or a full disk sees the old file or the new
  // one, whole. The step is done when the call returns; flushing to the medium follows within a second elsewhere, in an
  // order that a power cut cannot turn into an empty file. The folder must exist. False, and the old file as it was,
  // when it cannot be done.
  virtual bool Replace(const std::string& path, const std::string& content) = 0;
  // Removes a file; true when it is gone.
  virtual bool Remove(const std::string& path) = 0;
  // Removes a folder with all in it, not following links; true when it is gone. It leaves its name in one step: a crash
  // leaves the folder whole or no folder of that name. What was in it leaves the medium within a second or so,
  // elsewhere.
  virtual bool RemoveTree(const std::string& path) = 0;
  // Makes a folder and those above it; true when it is there.
  virtual bool CreateFolder(const std::string& path) = 0;
  // Names in a folder, files or folders alike as `kind` asks, sorted without regard to case, then by bytes; empty when
  // it cannot be read. What this program keeps there for its own safety is left out.
  virtual std::vector<std::string> List(const std::string& folder, FileKind kind) const = 0;
  // The root, and behind it each medium that is mounted now, sorted; each once, as the path of its folder. Nothing is
  // asked of a medium itself, which may be slow or gone.
  virtual std::vector<std::string> Drives() const = 0;
};
