#pragma once

#include <unistd.h>

#include <utility>

// Owns a file descriptor; below 0 it holds none.
class FileHandle {
 public:
  FileHandle() = default;
  explicit FileHandle(int descriptor) : descriptor_(descriptor) {}
  FileHandle(FileHandle&& other) noexcept : descriptor_(std::exchange(other.descriptor_, -1)) {}
  FileHandle& operator=(FileHandle&& other) noexcept {
    std::swap(descriptor_, other.descriptor_);
    return *this;
  }
  ~FileHandle() {
    if (descriptor_ >= 0) close(descriptor_);
  }

  bool IsOpen() const { return descriptor_ >= 0; }
  int Get() const { return descriptor_; }
  // Closes at once; false when the system reports that something written is lost.
  bool Close() { return close(std::exchange(descriptor_, -1)) == 0; }

 private:
  int descriptor_ = -1;
};
