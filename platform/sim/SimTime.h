#pragma once

#include <chrono>
#include <cstdint>
#include <deque>
#include <map>
#include <memory>
#include <utility>

#include "platform/Clock.h"
#include "platform/Scheduler.h"

// The virtual clock and its timers. Time stands still until it is advanced; then every tick that falls due runs, in
// order, at exactly its time.
class SimTime : public Clock, public Scheduler {
 public:
  explicit SimTime(const DateTime& start = {.year = 2026, .month = 11, .day = 15, .hour = 7});
  SimTime(const SimTime&) = delete;
  SimTime& operator=(const SimTime&) = delete;

  std::chrono::nanoseconds Steady() const override { return now_; }
  DateTime Now() const override;

  Id Start(std::chrono::milliseconds interval, TickPhase phase, Tick tick) override;
  void Cancel(Id id) override;
  void Yield() override;
  void Post(Tick work) override;

  // Lets time pass. May be called from inside a tick: that is how ticks run while a dialog stands.
  void Advance(std::chrono::nanoseconds duration);
  // Runs what has been posted, without letting time pass.
  void Settle() { Advance(std::chrono::nanoseconds(0)); }
  // The wall clock steps; the steady clock does not.
  void StepWall(std::chrono::nanoseconds step) { wall_ += step; }
  // Lets time pass until the wall clock shows the moment, which must not lie behind it.
  void AdvanceTo(const DateTime& moment);

  // How long the handler that yields has taken since its last yield.
  std::chrono::nanoseconds yieldTakes{0};

 private:
  struct Armed {
    Id id;
    std::chrono::nanoseconds interval;
    TickPhase phase;
    std::shared_ptr<Tick> tick;
  };
  using Due = std::pair<std::chrono::nanoseconds, std::uint64_t>;  // when, and the order of arming

  void Arm(Armed armed);
  enum class Between { kNothing, kPosted };
  void RunUntil(std::chrono::nanoseconds target, Between ticks);
  void RunPosted();

  std::chrono::nanoseconds now_{0};
  std::chrono::nanoseconds wall_;  // the wall clock when the steady one was 0, since 1970, in local time
  std::map<Due, Armed> due_;
  std::map<Id, Due> byId_;
  std::deque<Tick> posted_;
  Id lastId_ = 0;
  std::uint64_t order_ = 0;
};
