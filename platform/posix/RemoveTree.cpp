#include "platform/posix/RemoveTree.h"

#include <dirent.h>
#include <fcntl.h>
#include <unistd.h>

#include <memory>
#include <string_view>

#include "platform/posix/FileHandle.h"

bool RemoveTreeAt(int parent, const char* name) {
  FileHandle folder(openat(parent, name, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
  if (!folder.IsOpen()) return unlinkat(parent, name, 0) == 0;
  const int listed = dup(folder.Get());
  const std::unique_ptr<DIR, int (*)(DIR*)> entries(fdopendir(listed), closedir);
  if (entries == nullptr) return false;
  while (const dirent* entry = readdir(entries.get())) {
    const std::string_view child = entry->d_name;
    if (child != "." && child != "..") RemoveTreeAt(folder.Get(), entry->d_name);
  }
  return unlinkat(parent, name, AT_REMOVEDIR) == 0;
}
