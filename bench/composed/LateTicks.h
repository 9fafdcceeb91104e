#pragma once

#include <algorithm>
#include <chrono>
#include <cstdio>

#include "platform/Clock.h"
#include "platform/Scheduler.h"

// Counts the ticks of the frame clock and those that come late by more than a frame, and prints the count so far every
// second.
class LateTicks {
 public:
  LateTicks(Scheduler& scheduler, const Clock& clock) : clock_(clock) {
    scheduler.Start(std::chrono::milliseconds(1), TickPhase::kFromStart, [this] { Tick(); });
    scheduler.Start(std::chrono::milliseconds(1000), TickPhase::kFromStart, [this] { Print(); });
  }

 private:
  static constexpr std::chrono::nanoseconds kFrame{16'666'667};

  void Tick() {
    const std::chrono::nanoseconds now = clock_.Steady();
    if (last_.count() != 0) {
      ++ticks_;
      if (now - last_ > 2 * kFrame) ++late_;
      worst_ = std::max(worst_, now - last_ - kFrame);
    }
    last_ = now;
  }
  void Print() const {
    std::printf("%ld %ld %.1f\n", ticks_, late_, static_cast<double>(worst_.count()) / 1e6);
    std::fflush(stdout);
  }

  const Clock& clock_;
  std::chrono::nanoseconds last_{0};
  std::chrono::nanoseconds worst_{0};
  long ticks_ = 0;
  long late_ = 0;
};
