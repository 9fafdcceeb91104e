#pragma once

#include <condition_variable>
#include <cstdint>
#include <map>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "platform/posix/PosixFiles.h"

// Puts new versions in the place of files and brings them to the medium on a thread of its own, "flush", within a
// second. Until a version is there, the newest one that is keeps a second name (see KeptName), so that a power cut
// leaves one of the two whole, in whatever order the file system writes. The same thread empties folders that are
// removed. The destructor waits until all is done.
class PosixFiles::Flusher {
 public:
  Flusher() = default;
  ~Flusher();

  // Moves the file `unfinished`, which holds the content of that digest, to `target`, in one step. False when it cannot
  // be done; then `target` is as it was and `unfinished` still there.
  bool Swap(const std::string& target, const std::string& unfinished, std::uint64_t digest);
  // Drops what is kept for a file, or for all files under a folder, that is removed.
  void Forget(const std::string& path);
  // Removes a folder with all in it, not following links, in its turn: a large video takes the file system a while.
  void RemoveTree(const std::string& folder);

 private:
  struct Pending {
    std::uint64_t id = 0;  // tells it from a later one of the same file
    std::string kept;      // path of the second name; empty while no version is on the medium
    std::string next;      // path of the version that is being flushed, once it is no more the newest; empty before
    std::uint64_t digest = 0;
    bool isFlushing = false;
  };

  bool KeepDurable(const std::string& target, Pending& pending, bool isNew, std::uint64_t digest);
  void Start();
  void Run();
  void RemoveTrees(std::unique_lock<std::mutex>& lock);
  void Flush(const std::string& target, std::unique_lock<std::mutex>& lock);
  void Settle(const std::string& target, Pending& pending);

  std::mutex mutex_;  // held for a few system calls at a time, never during a flush
  std::condition_variable wake_;
  std::map<std::string, Pending> pending_;
  std::vector<std::string> trees_;  // to be removed
  std::uint64_t lastId_ = 0;
  bool ending_ = false;
  std::thread thread_;  // started with the first task
};
