#include "platform/posix/FolderLock.h"

#include <fcntl.h>
#include <sys/file.h>

#include <cerrno>

bool FolderLock::Take() {
  if (!file_.IsOpen()) {
    // Closed in every program that this one starts: none of them may go on holding the lock.
    constexpr int kFlags = O_RDONLY | O_CREAT | O_CLOEXEC | O_NONBLOCK | O_NOCTTY;
    file_ = FileHandle(open((folder_ + "/corvanta.lock").c_str(), kFlags, 0666));
  }
  if (!file_.IsOpen()) return true;
  return flock(file_.Get(), LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}
