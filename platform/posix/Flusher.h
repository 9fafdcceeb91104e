#pragma once

#include <condition_variable>
#include <mutex>
#include <set>
#include <string>
#include <thread>

#include "platform/posix/PosixFiles.h"

// Brings replaced files to the medium on a thread of its own, "flush", within a second of the write. The destructor
// waits until all is there.
class PosixFiles::Flusher {
 public:
  Flusher() = default;
  ~Flusher();

  void Add(const std::string& path);

 private:
  void Run();

  std::mutex mutex_;
  std::condition_variable wake_;
  std::set<std::string> pending_;
  bool ending_ = false;
  std::thread thread_;  // started with the first file
};
