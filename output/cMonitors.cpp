#include "output/cMonitors.h"

#include <algorithm>

#include "platform/toolkit/Failure.h"

namespace {

// The smallest or largest of one edge over all displays; 0 without any.
template <class Edge, class Better>
int Outermost(const std::vector<cMonitor>& monitors, Edge edge, Better better) {
  if (monitors.empty()) return 0;
  int outermost = edge(monitors.front());
  for (const cMonitor& monitor : monitors) outermost = better(outermost, edge(monitor));
  return outermost;
}

int Smaller(int one, int other) { return std::min(one, other); }
int Larger(int one, int other) { return std::max(one, other); }

int Overlap(int low, int high, int otherLow, int otherHigh) {
  return std::max(0, std::min(high, otherHigh) - std::max(low, otherLow));
}

}  // namespace

int cMonitors::VirtualScreenLeft() const {
  return Outermost(
      monitors_, [](const cMonitor& one) { return one.Left(); }, Smaller);
}

int cMonitors::VirtualScreenTop() const {
  return Outermost(
      monitors_, [](const cMonitor& one) { return one.Top(); }, Smaller);
}

int cMonitors::VirtualScreenWidth() const {
  return Outermost(
             monitors_, [](const cMonitor& one) { return one.Left() + one.Width(); }, Larger) -
         VirtualScreenLeft();
}

int cMonitors::VirtualScreenHeight() const {
  return Outermost(
             monitors_, [](const cMonitor& one) { return one.Top() + one.Height(); }, Larger) -
         VirtualScreenTop();
}

const cMonitor& cMonitors::Monitor(int index) const {
  if (index < 1 || index > MonitorCount()) throw Failure("There is no monitor " + std::to_string(index) + ".");
  return monitors_[static_cast<std::size_t>(index) - 1];
}

void cMonitors::Refresh() {
  monitors_.clear();
  for (const MonitorInfo& info : display_.List()) monitors_.emplace_back(info);
}

std::optional<cMonitor> cMonitors::MonitorForWindow(const PixelRect& window) const {
  std::optional<cMonitor> best;
  long long most = 0;
  for (const MonitorInfo& one : display_.List()) {
    const long long width = Overlap(window.left, window.right, one.area.left, one.area.right);
    const long long height = Overlap(window.top, window.bottom, one.area.top, one.area.bottom);
    if (width * height <= most) continue;
    most = width * height;
    best = cMonitor(one);
  }
  return best;
}
