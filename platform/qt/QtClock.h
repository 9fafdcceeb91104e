#pragma once

#include "platform/Clock.h"

// The machine's own clocks.
class QtClock : public Clock {
 public:
  std::chrono::nanoseconds Steady() const override;
  DateTime Now() const override;
};
