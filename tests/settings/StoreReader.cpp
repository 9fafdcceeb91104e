// Prints a file as the station finds it at its start, after a look at what an earlier run left behind.
// Usage: StoreReader <file>

#include <cstdio>

#include "platform/posix/PosixFiles.h"

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  const std::optional<std::string> content = PosixFiles().Read(argv[1]);
  if (!content.has_value()) return 1;
  return std::fwrite(content->data(), 1, content->size(), stdout) == content->size() ? 0 : 1;
}
