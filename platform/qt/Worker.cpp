#include "platform/qt/Worker.h"

#include <pthread.h>
#include <signal.h>

#include <exception>
#include <utility>

Worker::~Worker() {
  if (!thread_.joinable()) return;
  {
    const std::lock_guard lock(mutex_);
    ending_ = true;
  }
  given_.notify_one();
  thread_.join();
}

void Worker::Do(Work work) {
  {
    const std::lock_guard lock(mutex_);
    waiting_.push_back(std::move(work));
  }
  if (!thread_.joinable()) {
    thread_ = std::thread([this] { Run(); });
    pthread_setname_np(thread_.native_handle(), name_);
  }
  given_.notify_one();
}

void Worker::Run() {
  sigset_t all;
  sigfillset(&all);
  pthread_sigmask(SIG_BLOCK, &all, nullptr);
  std::unique_lock lock(mutex_);
  for (;;) {
    given_.wait(lock, [this] { return ending_ || !waiting_.empty(); });
    if (ending_) return;
    Work work = std::move(waiting_.front());
    waiting_.pop_front();
    lock.unlock();
    HandOver outcome = Outcome(work);
    work = nullptr;
    lock.lock();
    if (!outcome) continue;
    done_.push_back(std::move(outcome));
    if (done_.size() == 1) QMetaObject::invokeMethod(this, &Worker::Deliver, Qt::QueuedConnection);
  }
}

Worker::HandOver Worker::Outcome(const Work& work) const {
  try {
    return work();
  } catch (const std::exception& failure) {
    qWarning("The thread \"%s\" gave a piece of work up: %s", name_, failure.what());
    return nullptr;
  }
}

void Worker::Deliver() {
  std::deque<HandOver> done;
  {
    const std::lock_guard lock(mutex_);
    done.swap(done_);
  }
  for (const HandOver& one : done) one();
}
