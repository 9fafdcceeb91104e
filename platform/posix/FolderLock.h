#pragma once

#include <string>

#include "platform/posix/FileHandle.h"

// The right to be the only run of the program in a folder. The kernel holds it for this process and frees it with the
// process, however that ends: the file "corvanta.lock" that is left behind means nothing by itself.
class FolderLock {
 public:
  explicit FolderLock(std::string folder) : folder_(std::move(folder)) {}

  // True when this object has the right, which it then keeps while it lives. False when another one has it. Where the
  // file cannot be made or the file system knows no locks it is true: nothing may keep a station off the air.
  bool Take();

 private:
  std::string folder_;
  FileHandle file_;
};
