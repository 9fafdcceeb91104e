#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>

#include "platform/Files.h"

// What is wrong with one path of the virtual disk.
enum class FileFault {
  kNone,
  kMissing,       // as if nothing stood there; a write brings it back
  kUnreadable,    // it is there, but may not be opened
  kBroken,        // it can be opened, but nothing of it can be read
  kWriteRefused,  // it can be neither replaced nor removed
};

// A disk in memory, with faults on demand. It begins with the root folder alone.
class SimFiles : public Files {
 public:
  SimFiles();
  ~SimFiles() override;

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

  // Puts a file of exactly that name on the disk past all faults, with the folders above it, as somebody else would.
  void Put(const std::string& path, const std::string& content);
  // Sets the fault of a path, which need not exist; it stays until it is set to kNone.
  void SetFault(const std::string& path, FileFault fault);
  // Mounts a medium at a folder, which is made where it is missing; takes it off again, with all that is on it.
  void Mount(const std::string& folder);
  void Unmount(const std::string& folder);
  // While the disk is full no file can be replaced and no folder made; all else works.
  void SetDiskFull(bool full) { full_ = full; }

 private:
  struct Entry;

  Entry* FindExact(std::string_view path) const;
  Entry* Find(const std::string& path) const;
  std::string ResolveParts(std::string_view path) const;
  // The folder of a resolved path, and the name in it.
  Entry* FindFolderOf(const std::string& path, std::string_view& name) const;
  bool Erase(const std::string& path);
  FileFault FaultOf(const std::string& path) const;
  bool Write(const std::string& path, const std::string& content);
  static bool Fill(Entry& entry, const std::string& content);

  std::unique_ptr<Entry> root_;
  std::map<std::string, FileFault> faults_;  // by folded path
  std::set<std::string> mounted_;
  bool full_ = false;
};
