#pragma once

#include <vector>

#include "platform/Monitors.h"

// Displays that the test sets up: one of 1920 by 1080 with a panel along its bottom, unless told otherwise.
class SimMonitors : public Monitors {
 public:
  std::vector<MonitorInfo> List() const override { return monitors; }

  std::vector<MonitorInfo> monitors{
      {.handle = 1, .name = "PANEL", .area = {0, 0, 1920, 1080}, .workArea = {0, 0, 1920, 1040}, .primary = true}};
};
