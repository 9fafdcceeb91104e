#pragma once

#include <QObject>
#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>

// A thread that does one piece of work after the other. What a piece has found is handed over on the thread that made
// the worker, in the order given.
class Worker : public QObject {
 public:
  using HandOver = std::function<void()>;
  using Work = std::function<HandOver()>;

  // `name` is the thread's, at most 15 letters; it starts with the first piece.
  explicit Worker(const char* name) : name_(name) {}
  // Waits for the piece at hand. Those behind it are dropped, and nothing more is handed over.
  ~Worker() override;

  // Work that throws hands nothing over, and says itself on standard error.
  void Do(Work work);

 private:
  void Run();
  HandOver Outcome(const Work& work) const;
  void Deliver();

  const char* name_;
  std::mutex mutex_;
  std::condition_variable given_;
  std::deque<Work> waiting_;
  std::deque<HandOver> done_;
  bool ending_ = false;
  std::thread thread_;
};
