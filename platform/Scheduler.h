#pragma once

#include <chrono>
#include <cstdint>
#include <functional>

// Where in the second the ticks of a timer fall.
enum class TickPhase {
  kFromStart,   // an interval after the timer was started, and so on
  kWallSecond,  // just after the wall clock's second begins, and kept there
};

// The only timer. Everything runs on the one thread of the station.
class Scheduler {
 public:
  using Tick = std::function<void()>;
  using Id = std::uint64_t;  // never 0, never used twice

  virtual ~Scheduler() = default;

  // Calls `tick` once every `interval` until it is cancelled, for the first time one interval from now. Ticks come by
  // due time, equal ones in the order started. A tick that is late is left out, never caught up. A tick may come while
  // an earlier tick of the same timer stands in a dialog. Intervals of 16 ms or less come once an output frame, at the
  // display's own steady rate from 49 to 61 a second and at 60 where that is unknown: that is the floor.
  virtual Id Start(std::chrono::milliseconds interval, TickPhase phase, Tick tick) = 0;

  // Ends a timer; from inside its own tick too. An unknown id is ignored.
  virtual void Cancel(Id id) = 0;

  // Runs the ticks that are due by now, in the middle of a handler that takes long; nothing that was posted, and no
  // operator's event.
  virtual void Yield() = 0;

  // Calls `work` once, as soon as the handler that runs now has returned, in the order posted.
  virtual void Post(Tick work) = 0;
};
