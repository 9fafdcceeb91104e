#include "platform/posix/RawFile.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>

FileHandle OpenForReading(const std::string& path) {
  return FileHandle(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
}

ssize_t ReadSome(int descriptor, char* into, std::size_t most) {
  for (;;) {
    const ssize_t got = read(descriptor, into, most);
    if (got >= 0 || errno != EINTR) return got;
  }
}

bool WriteAll(int descriptor, std::string_view content) {
  while (!content.empty()) {
    const ssize_t wrote = write(descriptor, content.data(), content.size());
    if (wrote < 0 && errno == EINTR) continue;
    if (wrote <= 0) return false;
    content.remove_prefix(static_cast<std::size_t>(wrote));
  }
  return true;
}
