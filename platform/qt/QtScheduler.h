#pragma once

#include <QObject>
#include <deque>
#include <map>
#include <memory>
#include <vector>

#include "platform/Scheduler.h"

// All timers of the station on one wake-up of the event loop, armed anew before any tick runs, so that a tick that
// stands in a dialog holds up none of the others, nor its own next one.
class QtScheduler : public QObject, public Scheduler {
  Q_OBJECT
 public:
  explicit QtScheduler(QObject* parent = nullptr);
  ~QtScheduler() override;

  Id Start(std::chrono::milliseconds interval, TickPhase phase, Tick tick) override;
  void Cancel(Id id) override;
  void Yield() override;
  void Post(Tick work) override;

  // Calls `work` once, at the next output frame, after the ticks of that frame: what it changes is painted with them.
  void OnNextFrame(Tick work);
  // Output frames a second, from 49 to 61; anything else is taken as 60.
  void SetFrameRate(double framesPerSecond);

 protected:
  void timerEvent(QTimerEvent* event) override;

 private:
  using Nanoseconds = std::chrono::nanoseconds;
  struct Entry {
    std::chrono::milliseconds interval;
    TickPhase phase;
    std::shared_ptr<Tick> tick;
    Nanoseconds due;
    bool queued = false;
  };

  Nanoseconds NextFrame(Nanoseconds now) const;
  Nanoseconds FirstDue(const Entry& entry, Nanoseconds now) const;
  Nanoseconds NextDue(const Entry& entry, Nanoseconds now) const;
  void QueueWhatIsDue(Nanoseconds now);
  void RunQueue();
  void RunFrameWork();
  void Arm();

  std::map<Id, Entry> entries_;
  Id lastId_ = 0;
  std::deque<Id> queue_;         // due, not yet run
  std::vector<Tick> frameWork_;  // waits for the next frame
  Nanoseconds frameDue_{0};      // when that is; 0 when nothing waits
  bool frameWorkIsDue_ = false;
  Nanoseconds framePeriod_;
  int wakeUp_ = 0;  // the running Qt timer, 0 for none
  Nanoseconds wakeUpDue_{0};
};
