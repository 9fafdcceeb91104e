#pragma once

#include <sys/stat.h>

#include <chrono>
#include <memory>
#include <string>

#include "platform/Files.h"
#include "platform/posix/FileHandle.h"

// Watches a file through the handle it was read by. Any change of it shows there at once: of its content (time, size),
// and its removal or replacement by another (number of links, time). One system call, whatever the depth of the path.
//
// Two changes within one tick of the file system's clock may carry the same time. So a file that changed right before
// it was read is not trusted. That a folder above the file has been swapped for another does not show in the handle:
// the path itself is looked up again after kPathPeriod.
class PosixWatch : public FileWatch {
 public:
  static constexpr std::chrono::milliseconds kPathPeriod{100};

  // Notes the state of an open file before it is read; null when it is no regular file.
  static std::unique_ptr<PosixWatch> Start(const std::string& path, int descriptor);

  std::uint64_t Size() const { return static_cast<std::uint64_t>(status_.st_size); }
  // Takes the file over once it has been read.
  void Keep(FileHandle file) { file_ = std::move(file); }

  bool Unchanged() override;

 private:
  PosixWatch(const std::string& path, const struct stat& status);

  std::string path_;
  FileHandle file_;
  struct stat status_;
  bool trusted_;
  std::chrono::nanoseconds pathSeen_;
};
