#include "platform/posix/PosixWatch.h"

#include <ctime>

#include "platform/posix/ResolvePath.h"

namespace {

// Longer than the tick of the clock that a file system takes its times from: some keep whole seconds only, FAT every
// other one.
constexpr std::chrono::milliseconds kFineTick{20};
constexpr std::chrono::milliseconds kCoarseTick{3000};

std::chrono::nanoseconds Nanoseconds(const timespec& time) {
  return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}

std::chrono::nanoseconds TimeOf(clockid_t clock) {
  timespec time;
  clock_gettime(clock, &time);
  return Nanoseconds(time);
}

bool IsSame(const struct stat& left, const struct stat& right) {
  return left.st_ino == right.st_ino && left.st_dev == right.st_dev && left.st_size == right.st_size &&
         left.st_nlink == right.st_nlink && Nanoseconds(left.st_ctim) == Nanoseconds(right.st_ctim) &&
         Nanoseconds(left.st_mtim) == Nanoseconds(right.st_mtim);
}

}  // namespace

std::unique_ptr<PosixWatch> PosixWatch::Start(const std::string& path, int descriptor) {
  struct stat status;
  if (fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode)) return nullptr;
  return std::unique_ptr<PosixWatch>(new PosixWatch(path, status));
}

PosixWatch::PosixWatch(const std::string& path, const struct stat& status)
    : path_(path), status_(status), pathSeen_(TimeOf(CLOCK_MONOTONIC_COARSE)) {
  const std::chrono::nanoseconds age = TimeOf(CLOCK_REALTIME) - Nanoseconds(status.st_ctim);
  const std::chrono::nanoseconds tick = status.st_ctim.tv_nsec == 0 ? kCoarseTick : kFineTick;
  // A time that lies ahead was given before the clock was set back; what is written now gets another.
  trusted_ = age > tick || age < -tick;
}

bool PosixWatch::Unchanged() {
  struct stat now;
  if (!trusted_ || fstat(file_.Get(), &now) != 0 || !IsSame(now, status_)) return false;
  const std::chrono::nanoseconds time = TimeOf(CLOCK_MONOTONIC_COARSE);
  if (time - pathSeen_ < kPathPeriod) return true;
  pathSeen_ = time;
  return stat(ResolvePath(path_).c_str(), &now) == 0 && IsSame(now, status_);
}
