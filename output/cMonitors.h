#pragma once

#include <optional>
#include <vector>

#include "output/cMonitor.h"
#include "platform/Monitors.h"

// The displays as they stood at the last refresh; one that is plugged in later is not seen before the next.
class cMonitors {
 public:
  explicit cMonitors(const Monitors& display) : display_(display) { Refresh(); }

  // Whether all displays show the same colours; one screen always does.
  bool AllMonitorsSame() const { return true; }
  // The display that shows the point, or most of the window's rectangle, as the displays stand now; nothing outside all
  // of them.
  std::optional<cMonitor> MonitorForPoint(int x, int y) const { return MonitorForWindow({x, y, x + 1, y + 1}); }
  std::optional<cMonitor> MonitorForWindow(const PixelRect& window) const;
  int VirtualScreenLeft() const;
  int VirtualScreenTop() const;
  int VirtualScreenWidth() const;
  int VirtualScreenHeight() const;
  int DisplayMonitorCount() const { return static_cast<int>(display_.List().size()); }
  int MonitorCount() const { return static_cast<int>(monitors_.size()); }
  // From 1. Fails outside the list.
  const cMonitor& Monitor(int index) const;
  void Refresh();

 private:
  const Monitors& display_;
  std::vector<cMonitor> monitors_;
};
