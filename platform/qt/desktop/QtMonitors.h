#pragma once

#include "platform/Monitors.h"

// The screens of this display, in its own order.
class QtMonitors : public Monitors {
 public:
  std::vector<MonitorInfo> List() const override;
};
