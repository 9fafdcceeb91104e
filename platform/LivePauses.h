#pragma once

#include <algorithm>
#include <chrono>

// How long a live stream may stand still, or take to come up, before it counts as broken.
inline constexpr std::chrono::seconds kLivePatience{25};

// The pauses before a broken live stream is taken up again: 1, 2, 4, 8 and 16 seconds, then 30 each time.
class LivePauses {
 public:
  std::chrono::seconds Next() {
    const std::chrono::seconds pause = next_;
    next_ = std::min(next_ * 2, kLongest);
    return pause;
  }
  // It plays: what breaks next is a fault of its own.
  void Reset() { next_ = kFirst; }

 private:
  static constexpr std::chrono::seconds kFirst{1};
  static constexpr std::chrono::seconds kLongest{30};
  std::chrono::seconds next_ = kFirst;
};
