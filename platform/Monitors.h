#pragma once

#include <cstdint>
#include <string>
#include <vector>

// Pixels of the virtual screen; right and bottom lie just outside.
struct PixelRect {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;

  bool operator==(const PixelRect&) const = default;
};

// One display as the display layer tells it.
struct MonitorInfo {
  std::uint64_t handle = 0;  // never 0; the same again when the display was unplugged and is back at its output
  std::string name;
  PixelRect area;
  PixelRect workArea;  // without the panels and docks on this display
  bool primary = false;
};

// The displays, in the display layer's own order; monitor 1 need not be the primary one.
class Monitors {
 public:
  virtual ~Monitors() = default;

  virtual std::vector<MonitorInfo> List() const = 0;
};
