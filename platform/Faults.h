#pragma once

#include <chrono>
#include <functional>
#include <map>
#include <string>
#include <string_view>

class Clock;

// Says on standard error, in one line, a fault that is none of the operator's: what nobody foresaw, or a part of the
// machine that does not serve. `where` is who was at work. From any thread; never fails.
void TellFault(std::string_view where, std::string_view what) noexcept;

// The same for what may go wrong sixty times a second: each `where` is heard at most once a minute, so that a fault
// fills no disk.
class FaultTeller {
 public:
  explicit FaultTeller(const Clock& clock) : clock_(clock) {}
  void Tell(std::string_view where, std::string_view what) noexcept;

 private:
  const Clock& clock_;
  std::map<std::string, std::chrono::nanoseconds, std::less<>> told_;  // when, by the steady clock
};
