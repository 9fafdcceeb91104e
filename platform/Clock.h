#pragma once

#include <chrono>

// A moment of the wall clock, as the station's own time zone shows it.
struct DateTime {
  int year = 1970;
  int month = 1;   // 1 to 12
  int day = 1;     // 1 to 31
  int hour = 0;    // 0 to 23
  int minute = 0;  // 0 to 59
  int second = 0;  // 0 to 59
  int millisecond = 0;

  bool operator==(const DateTime&) const = default;
};

// The only source of time. The steady clock paces everything and never steps; the wall clock is read only for the time
// of day and may step either way at any moment.
class Clock {
 public:
  virtual ~Clock() = default;

  // Time since some fixed moment; never goes back and never jumps.
  virtual std::chrono::nanoseconds Steady() const = 0;

  // What the clock on the wall shows now.
  virtual DateTime Now() const = 0;
};
