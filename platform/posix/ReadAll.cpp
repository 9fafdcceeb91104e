#include "platform/posix/ReadAll.h"

#include "platform/posix/RawFile.h"

bool ReadAll(int descriptor, std::uint64_t size, std::string& content, std::uint64_t maxBytes) {
  // One byte more than told, so that a file that grows meanwhile is seen to.
  content.resize(size + 1);
  std::size_t filled = 0;
  for (;;) {
    const ssize_t got = ReadSome(descriptor, content.data() + filled, content.size() - filled);
    if (got < 0) return false;
    if (got == 0) break;
    filled += static_cast<std::size_t>(got);
    if (filled > maxBytes) return false;
    if (filled == content.size()) content.resize(content.size() * 2);
  }
  content.resize(filled);
  return true;
}
