#pragma once

#include <cstdint>
#include <string>

#include "platform/Monitors.h"

// One display as it stood when it was asked for. All measures are pixels of the virtual screen.
class cMonitor {
 public:
  cMonitor() = default;
  explicit cMonitor(const MonitorInfo& info) : info_(info) {}

  bool IsPrimary() const { return info_.primary; }
  std::uint64_t hMonitor() const { return info_.handle; }
  const std::string& Name() const { return info_.name; }
  int Left() const { return info_.area.left; }
  int Top() const { return info_.area.top; }
  int Width() const { return info_.area.right - info_.area.left; }
  int Height() const { return info_.area.bottom - info_.area.top; }
  int WorkLeft() const { return info_.workArea.left; }
  int WorkTop() const { return info_.workArea.top; }
  // From the monitor's own edge, not from the work area's: a panel on the left or on the top is counted in, and what is
  // centred by these measures stands off the middle by half of it. Meant so.
  int WorkWidth() const { return info_.workArea.right - info_.area.left; }
  int WorkHeight() const { return info_.workArea.bottom - info_.area.top; }

 private:
  MonitorInfo info_;
};
