#include "platform/sim/SimFiles.h"

#include <algorithm>
#include <utility>

#include "platform/CaseFold.h"

// A file or a folder. Its version tells a watch that the content changed, moved away, or may be shadowed now.
struct SimFiles::Entry {
  bool isFolder = false;
  std::string content;
  std::shared_ptr<std::uint64_t> version = std::make_shared<std::uint64_t>(0);
  std::map<std::string, std::unique_ptr<Entry>, std::less<>> children;

  ~Entry() { ++*version; }

  // The child of that exact name, or else the first without regard to case.
  auto Find(std::string_view name) const {
    const auto exact = children.find(name);
    if (exact != children.end()) return exact;
    return std::ranges::find_if(children, [name](const auto& child) { return EqualIgnoringCase(child.first, name); });
  }

  Entry* Child(std::string_view name) const {
    const auto found = Find(name);
    return found == children.end() ? nullptr : found->second.get();
  }

  Entry& NewChild(std::string_view name) {
    // From now on the exact name hides what was found under it without regard to case.
    const Entry* hidden = Child(name);
    if (hidden != nullptr) ++*hidden->version;
    return *children.emplace(name, std::make_unique<Entry>()).first->second;
  }
};

namespace {

class SimWatch : public FileWatch {
 public:
  explicit SimWatch(std::shared_ptr<std::uint64_t> version) : version_(std::move(version)), read_(*version_) {}
  bool Unchanged() override { return *version_ == read_; }

 private:
  std::shared_ptr<std::uint64_t> version_;
  std::uint64_t read_;
};

// Takes the first part off a path; empty at its end.
std::string_view TakePart(std::string_view& path) {
  while (path.starts_with('/')) path.remove_prefix(1);
  const std::string_view part = path.substr(0, path.find('/'));
  path.remove_prefix(part.size());
  return part;
}

}  // namespace

SimFiles::SimFiles() : root_(std::make_unique<Entry>()) { root_->isFolder = true; }

SimFiles::~SimFiles() = default;

// A separator at the end asks for a folder.
SimFiles::Entry* SimFiles::FindExact(std::string_view path) const {
  if (path.empty()) return nullptr;
  const bool asksForFolder = path.ends_with('/');
  Entry* entry = root_.get();
  for (std::string_view part = TakePart(path); entry != nullptr && !part.empty(); part = TakePart(path)) {
    const auto child = entry->children.find(part);
    entry = child == entry->children.end() ? nullptr : child->second.get();
  }
  return entry != nullptr && asksForFolder && !entry->isFolder ? nullptr : entry;
}

SimFiles::Entry* SimFiles::Find(const std::string& path) const {
  Entry* exact = FindExact(path);
  return exact != nullptr ? exact : FindExact(Resolve(path));
}

std::string SimFiles::ResolveParts(std::string_view path) const {
  std::string resolved;
  const Entry* entry = root_.get();
  while (!path.empty()) {
    if (path.starts_with('/')) {
      resolved += '/';
      path.remove_prefix(1);
      continue;
    }
    const std::string_view part = path.substr(0, path.find('/'));
    const auto child = entry->Find(part);
    if (child == entry->children.end()) break;
    resolved += child->first;
    entry = child->second.get();
    path.remove_prefix(part.size());
  }
  return resolved.append(path);
}

std::string SimFiles::Resolve(const std::string& path) const {
  if (FindExact(path) != nullptr) return path;
  const std::string resolved = ResolveParts(path);
  // A name on this disk may hold a backslash of its own.
  if (path.find('\\') == std::string::npos || FindExact(resolved) != nullptr) return resolved;
  std::string mapped = path;
  std::ranges::replace(mapped, '\\', '/');
  return ResolveParts(mapped);
}

SimFiles::Entry* SimFiles::FindFolderOf(const std::string& path, std::string_view& name) const {
  const std::size_t slash = path.rfind('/');
  name = slash == std::string::npos ? path : std::string_view(path).substr(slash + 1);
  Entry* folder = slash == std::string::npos || slash == 0 ? root_.get() : Find(path.substr(0, slash));
  return folder != nullptr && folder->isFolder && !name.empty() ? folder : nullptr;
}

FileFault SimFiles::FaultOf(const std::string& path) const {
  if (faults_.empty()) return FileFault::kNone;
  const auto fault = faults_.find(FoldCase(Resolve(path)));
  return fault == faults_.end() ? FileFault::kNone : fault->second;
}

FileKind SimFiles::Kind(const std::string& path) const {
  const Entry* entry = Find(path);
  if (entry == nullptr || FaultOf(path) == FileFault::kMissing) return FileKind::kAbsent;
  return entry->isFolder ? FileKind::kFolder : FileKind::kRegular;
}

FileReading SimFiles::ReadWatched(const std::string& path, std::uint64_t maxBytes) const {
  const Entry* entry = Find(path);
  const FileFault fault = FaultOf(path);
  if (entry == nullptr || fault == FileFault::kMissing) return {ReadResult::kAbsent, {}, nullptr};
  const bool isRefused = entry->isFolder || fault == FileFault::kUnreadable || fault == FileFault::kBroken ||
                         entry->content.size() > maxBytes;
  if (isRefused) return {ReadResult::kRefused, {}, nullptr};
  return {ReadResult::kRead, entry->content, std::make_unique<SimWatch>(entry->version)};
}

FileStart SimFiles::ReadStart(const std::string& path, std::size_t count) const {
  const Entry* entry = Find(path);
  const FileFault fault = FaultOf(path);
  const bool opens =
      entry != nullptr && !entry->isFolder && fault != FileFault::kMissing && fault != FileFault::kUnreadable;
  if (!opens) return {};
  if (fault == FileFault::kBroken) return {FileStart::kNotRead, {}};
  return {FileStart::kRead, entry->content.substr(0, count)};
}

bool SimFiles::Replace(const std::string& path, const std::string& content) {
  const FileFault fault = FaultOf(path);
  if (full_ || fault == FileFault::kWriteRefused || !Write(path, content)) return false;
  if (fault == FileFault::kMissing) SetFault(path, FileFault::kNone);
  return true;
}

bool SimFiles::Write(const std::string& path, const std::string& content) {
  const std::string resolved = Resolve(path);
  std::string_view name;
  Entry* folder = FindFolderOf(resolved, name);
  if (folder == nullptr) return false;
  Entry* entry = folder->Child(name);
  return Fill(entry == nullptr ? folder->NewChild(name) : *entry, content);
}

bool SimFiles::Fill(Entry& entry, const std::string& content) {
  if (entry.isFolder) return false;
  entry.content = content;
  ++*entry.version;
  return true;
}

bool SimFiles::Remove(const std::string& path) {
  if (Kind(path) == FileKind::kAbsent) return true;
  if (Kind(path) == FileKind::kFolder || FaultOf(path) == FileFault::kWriteRefused) return false;
  return Erase(Resolve(path));
}

bool SimFiles::RemoveTree(const std::string& path) {
  if (Kind(path) == FileKind::kAbsent) return true;
  if (Kind(path) != FileKind::kFolder || FaultOf(path) == FileFault::kWriteRefused) return false;
  std::string resolved = Resolve(path);
  while (resolved.ends_with('/')) resolved.pop_back();
  return Erase(resolved);
}

bool SimFiles::Erase(const std::string& path) {
  std::string_view name;
  Entry* folder = FindFolderOf(path, name);
  if (folder == nullptr) return false;
  folder->children.erase(folder->Find(name));
  return true;
}

bool SimFiles::CreateFolder(const std::string& path) {
  Entry* folder = root_.get();
  const std::string resolved = Resolve(path);
  std::string_view rest = resolved;
  for (std::string_view part = TakePart(rest); !part.empty(); part = TakePart(rest)) {
    Entry* child = folder->Child(part);
    if (child == nullptr) {
      if (full_) return false;
      child = &folder->NewChild(part);
      child->isFolder = true;
    }
    if (!child->isFolder) return false;
    folder = child;
  }
  return true;
}

std::vector<std::string> SimFiles::List(const std::string& folder, FileKind kind) const {
  std::vector<std::string> names;
  const Entry* entry = Find(folder);
  if (entry == nullptr || !entry->isFolder || FaultOf(folder) != FileFault::kNone) return names;
  for (const auto& [name, child] : entry->children) {
    const FileKind childKind = child->isFolder ? FileKind::kFolder : FileKind::kRegular;
    if (childKind == kind && FaultOf(folder + "/" + name) != FileFault::kMissing) names.push_back(name);
  }
  std::sort(names.begin(), names.end(), LessIgnoringCase);
  return names;
}

std::vector<std::string> SimFiles::Drives() const {
  std::vector<std::string> drives(mounted_.begin(), mounted_.end());
  drives.insert(drives.begin(), "/");
  return drives;
}

void SimFiles::Mount(const std::string& folder) {
  CreateFolder(folder);
  mounted_.insert(Resolve(folder));
}

void SimFiles::Unmount(const std::string& folder) {
  mounted_.erase(Resolve(folder));
  RemoveTree(folder);
}

void SimFiles::Put(const std::string& path, const std::string& content) {
  const bool wasFull = std::exchange(full_, false);
  CreateFolder(path.substr(0, path.rfind('/') + 1));
  full_ = wasFull;
  std::string_view name;
  Entry* folder = FindFolderOf(path, name);
  if (folder == nullptr) return;
  const auto exact = folder->children.find(name);
  Fill(exact == folder->children.end() ? folder->NewChild(name) : *exact->second, content);
}

void SimFiles::SetFault(const std::string& path, FileFault fault) {
  const std::string key = FoldCase(Resolve(path));
  faults_[key] = fault;
  if (fault == FileFault::kNone) faults_.erase(key);
  const Entry* entry = Find(path);
  if (entry != nullptr) ++*entry->version;
}
