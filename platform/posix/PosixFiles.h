#pragma once

#include <memory>
#include <set>

#include "platform/Files.h"
#include "platform/posix/FileHandle.h"

// The real disk, for use by one thread. A thread of its own, "flush", brings what was written to the medium; the
// destructor waits for it.
class PosixFiles : public Files {
 public:
  PosixFiles();
  ~PosixFiles() override;

  std::string Resolve(const std::string& path) const override;
  FileKind Kind(const std::string& path) const override;
  FileReading ReadWatched(const std::string& path, std::uint64_t maxBytes) const override;
  FileStart ReadStart(const std::string& path, std::size_t count) const override;
  bool Replace(const std::string& path, const std::string& content) override;
  bool Remove(const std::string& path) override;
  bool RemoveTree(const std::string& path) override;
  bool CreateFolder(const std::string& path) override;
  std::vector<std::string> List(const std::string& folder, FileKind kind) const override;
  std::vector<std::string> Drives() const override;

 private:
  class Flusher;

  // Sees to what an earlier run left behind in the folder, once.
  void Recover(const std::string& folder) const;

  // Holds none, with errno set, when it cannot be opened.
  FileHandle Open(const std::string& path) const;

  mutable std::set<std::string> recovered_;
  std::unique_ptr<Flusher> flusher_;
};
