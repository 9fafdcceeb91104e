#include "platform/posix/Flusher.h"

#include <fcntl.h>
#include <pthread.h>
#include <signal.h>
#include <sys/stat.h>

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <utility>

#include "platform/posix/FileHandle.h"
#include "platform/posix/RemoveTree.h"
#include "platform/posix/ResolvePath.h"
#include "platform/posix/SafeNames.h"

namespace {

// Writes within this time share one flush.
constexpr std::chrono::milliseconds kGather{300};

std::string NameOf(const std::string& path) { return path.substr(path.rfind('/') + 1); }

bool FlushPath(const std::string& path, int flags) {
  const FileHandle handle(open(path.c_str(), O_RDONLY | O_CLOEXEC | flags));
  return handle.IsOpen() && fsync(handle.Get()) == 0;
}

// Exchanges the two names and drops the old version. A plain rename does the same, but there some file systems write
// the new content out before they return, and others do not even order it: the kept name makes that wait needless.
bool Exchange(const std::string& unfinished, const std::string& target) {
  if (renameat2(AT_FDCWD, unfinished.c_str(), AT_FDCWD, target.c_str(), RENAME_EXCHANGE) == 0) {
    unlink(unfinished.c_str());
    return true;
  }
  return rename(unfinished.c_str(), target.c_str()) == 0;
}

}  // namespace

PosixFiles::Flusher::~Flusher() {
  if (!thread_.joinable()) return;
  {
    const std::lock_guard lock(mutex_);
    ending_ = true;
  }
  wake_.notify_one();
  thread_.join();
}

bool PosixFiles::Flusher::Swap(const std::string& target, const std::string& unfinished, std::uint64_t digest) {
  const std::lock_guard lock(mutex_);
  const auto [entry, isNew] = pending_.try_emplace(target);
  if (isNew) entry->second.id = ++lastId_;
  const bool isKept = KeepDurable(target, entry->second, isNew, digest);
  // Where no second name can be made, the medium is waited for instead.
  const bool isSafe = isKept || FlushPath(unfinished, 0);
  if (!isSafe || !Exchange(unfinished, target)) {
    if (isNew) {
      if (!entry->second.kept.empty()) unlink(entry->second.kept.c_str());
      pending_.erase(entry);
    }
    return false;
  }
  entry->second.digest = digest;
  Start();
  if (isNew) wake_.notify_one();
  return true;
}

void PosixFiles::Flusher::Start() {
  if (thread_.joinable()) return;
  thread_ = std::thread([this] { Run(); });
  pthread_setname_np(thread_.native_handle(), "flush");
}

void PosixFiles::Flusher::RemoveTree(const std::string& folder) {
  const std::lock_guard lock(mutex_);
  trees_.push_back(folder);
  Start();
  wake_.notify_one();
}

// Sees to it that the newest version on the medium has a second name that tells what the file is about to hold. False
// when that cannot be.
bool PosixFiles::Flusher::KeepDurable(const std::string& target, Pending& pending, bool isNew, std::uint64_t digest) {
  const std::string folder = FolderOfPath(target);
  if (pending.isFlushing && pending.next.empty()) {
    const std::string next = folder + "/" + NextName(NameOf(target));
    if (link(target.c_str(), next.c_str()) == 0) pending.next = next;
  }
  const std::string kept = folder + "/" + KeptName{NameOf(target), pending.digest, digest}.Text();
  if (isNew) {
    // A file that does not exist yet has nothing to lose.
    if (link(target.c_str(), kept.c_str()) != 0) return errno == ENOENT;
    pending.kept = kept;
  } else if (!pending.kept.empty()) {
    const bool isMoved = rename(pending.kept.c_str(), kept.c_str()) == 0;
    pending.kept = isMoved ? kept : "";
    return isMoved;
  }
  return true;
}

void PosixFiles::Flusher::Forget(const std::string& path) {
  const std::lock_guard lock(mutex_);
  std::erase_if(pending_, [&path](const auto& entry) {
    const auto& [target, pending] = entry;
    if (target != path && !target.starts_with(path + "/")) return false;
    if (!pending.kept.empty()) unlink(pending.kept.c_str());
    if (!pending.next.empty()) unlink(pending.next.c_str());
    return true;
  });
}

void PosixFiles::Flusher::Run() {
  sigset_t all;
  sigfillset(&all);
  pthread_sigmask(SIG_BLOCK, &all, nullptr);
  std::unique_lock lock(mutex_);
  for (;;) {
    wake_.wait(lock, [this] { return ending_ || !pending_.empty() || !trees_.empty(); });
    wake_.wait_for(lock, kGather, [this] { return ending_; });
    if (pending_.empty() && trees_.empty()) return;
    RemoveTrees(lock);
    std::vector<std::string> targets;
    for (const auto& [target, pending] : pending_) targets.push_back(target);
    for (const std::string& target : targets) Flush(target, lock);
  }
}

// What cannot be removed now is tried again when the folder above is first touched by another run.
void PosixFiles::Flusher::RemoveTrees(std::unique_lock<std::mutex>& lock) {
  const std::vector<std::string> trees = std::exchange(trees_, {});
  lock.unlock();
  for (const std::string& tree : trees) RemoveTreeAt(AT_FDCWD, tree.c_str());
  lock.lock();
}

void PosixFiles::Flusher::Flush(const std::string& target, std::unique_lock<std::mutex>& lock) {
  const auto begun = pending_.find(target);
  if (begun == pending_.end()) return;
  begun->second.isFlushing = true;
  const std::uint64_t id = begun->second.id;
  const FileHandle file(open(target.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
  lock.unlock();
  // A file that somebody took away needs no flush.
  const bool isDurable = !file.IsOpen() || (fsync(file.Get()) == 0 && FlushPath(FolderOfPath(target), O_DIRECTORY));
  lock.lock();
  const auto ended = pending_.find(target);
  if (ended == pending_.end() || ended->second.id != id) return;
  ended->second.isFlushing = false;
  if (isDurable) {
    Settle(target, ended->second);
    return;
  }
  // Tried again, unless the program ends: then what is kept stays for the next start.
  if (!ended->second.next.empty()) unlink(ended->second.next.c_str());
  ended->second.next.clear();
  if (ending_) pending_.erase(ended);
}

// The version whose flush began is on the medium. When it is no more the newest it takes the place of the kept one;
// else nothing needs to be kept.
void PosixFiles::Flusher::Settle(const std::string& target, Pending& pending) {
  if (!pending.next.empty()) {
    const std::string kept = pending.kept.empty()
                                 ? FolderOfPath(target) + "/" + KeptName{NameOf(target), 0, pending.digest}.Text()
                                 : pending.kept;
    if (rename(pending.next.c_str(), kept.c_str()) == 0) pending.kept = kept;
    pending.next.clear();
    return;
  }
  if (!pending.kept.empty()) unlink(pending.kept.c_str());
  pending_.erase(target);
}
