#pragma once

#include <atomic>
#include <cstdint>
#include <string>

#include "platform/Dialogs.h"

// Copies the content of one regular file, on a thread that may wait, while another thread asks how far it is. The copy
// is made beside the target under a name that no list shows, brought to the medium, and put in its place in one step;
// what was begun and not ended is removed, by RecoverFolder where the process itself was ended.
class FileCopy {
 public:
  FileCopy(std::string from, std::string to) : from_(std::move(from)), to_(std::move(to)) {}

  // See Dialogs::CopyFile for what is promised.
  CopyResult Run();

  // From any thread: has Run end soon, unless all is copied by then.
  void Cancel() { cancelled_ = true; }
  // From any thread: bytes copied so far, and bytes in all; 0 before they are known.
  std::uint64_t Done() const { return done_; }
  std::uint64_t Total() const { return total_; }

 private:
  CopyResult Pour(int source, int target);
  CopyResult Place(int source, const std::string& target, int mode);

  std::string from_;
  std::string to_;
  std::atomic<bool> cancelled_ = false;
  std::atomic<std::uint64_t> done_ = 0;
  std::atomic<std::uint64_t> total_ = 0;
};
