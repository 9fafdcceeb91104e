#include "platform/posix/ResolvePath.h"

#include <dirent.h>
#include <sys/stat.h>

#include <algorithm>
#include <cstdlib>
#include <memory>

#include "platform/CaseFold.h"

namespace {

bool Exists(const std::string& path) {
  struct stat status;
  return lstat(path.c_str(), &status) == 0;
}

// The entry of the folder that is equal to `name` without regard to case; empty when there is none.
std::string FindEntry(const std::string& folder, const std::string& name) {
  const std::unique_ptr<DIR, int (*)(DIR*)> entries(opendir(folder.c_str()), closedir);
  std::string found;
  if (entries == nullptr) return found;
  while (const dirent* entry = readdir(entries.get())) {
    if (!EqualIgnoringCase(entry->d_name, name)) continue;
    if (found.empty() || LessIgnoringCase(entry->d_name, found)) found = entry->d_name;
  }
  return found;
}

// Finds each part in its turn; only "/" parts the path.
std::string ResolveParts(const std::string& path) {
  std::string resolved = path.starts_with('/') ? "/" : "";
  for (std::size_t at = resolved.size(); at < path.size();) {
    const std::size_t end = std::min(path.find('/', at), path.size());
    std::string name = path.substr(at, end - at);
    if (!name.empty() && !Exists(resolved + name)) {
      name = FindEntry(resolved.empty() ? "." : resolved, name);
      if (name.empty()) return resolved + path.substr(at);
    }
    resolved += name;
    if (end < path.size()) resolved += '/';
    at = end + 1;
  }
  return resolved;
}

}  // namespace

std::string ResolvePath(const std::string& path) {
  if (path.empty() || Exists(path)) return path;
  std::string resolved = ResolveParts(path);
  // A name on this disk may hold a backslash of its own.
  if (path.find('\\') == std::string::npos || Exists(resolved)) return resolved;
  std::string mapped = path;
  std::ranges::replace(mapped, '\\', '/');
  return ResolveParts(mapped);
}

std::string BehindLinks(const std::string& path) {
  struct stat status;
  if (lstat(path.c_str(), &status) != 0 || !S_ISLNK(status.st_mode)) return path;
  const std::unique_ptr<char, void (*)(void*)> real(realpath(path.c_str(), nullptr), free);
  return real == nullptr ? path : real.get();
}

std::string FolderOfPath(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  if (slash == std::string::npos) return ".";
  return slash == 0 ? "/" : path.substr(0, slash);
}
