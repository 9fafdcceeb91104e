#include "platform/posix/Flusher.h"

#include <fcntl.h>
#include <pthread.h>
#include <signal.h>

#include <chrono>

#include "platform/posix/FileHandle.h"
#include "platform/posix/ResolvePath.h"

namespace {

// Writes within this time share one flush.
constexpr std::chrono::milliseconds kGather{300};

void FlushPath(const std::string& path, int flags) {
  const FileHandle file(open(path.c_str(), O_RDONLY | O_CLOEXEC | flags));
  if (file.IsOpen()) fsync(file.Get());
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

void PosixFiles::Flusher::Add(const std::string& path) {
  const std::lock_guard lock(mutex_);
  pending_.insert(path);
  if (!thread_.joinable()) {
    thread_ = std::thread([this] { Run(); });
    pthread_setname_np(thread_.native_handle(), "flush");
  }
  wake_.notify_one();
}

void PosixFiles::Flusher::Run() {
  sigset_t all;
  sigfillset(&all);
  pthread_sigmask(SIG_BLOCK, &all, nullptr);
  std::unique_lock lock(mutex_);
  for (;;) {
    wake_.wait(lock, [this] { return ending_ || !pending_.empty(); });
    wake_.wait_for(lock, kGather, [this] { return ending_; });
    if (pending_.empty()) return;
    std::set<std::string> paths;
    paths.swap(pending_);
    lock.unlock();
    std::set<std::string> folders;
    for (const std::string& path : paths) {
      FlushPath(path, O_NONBLOCK);
      folders.insert(FolderOfPath(path));
    }
    for (const std::string& folder : folders) FlushPath(folder, O_DIRECTORY);
    lock.lock();
  }
}
