#include "output/Placement.h"

#include <algorithm>

#include "platform/toolkit/Form.h"

namespace {

void MoveWindow(Form& form, int left, int top) {
  form.Left = ToTwips(left);
  form.Top = ToTwips(top);
}

}  // namespace

PixelRect WindowRect(const Form& form) {
  const int left = ToPixels(form.Left), top = ToPixels(form.Top);
  return {left, top, left + ToPixels(form.Width), top + ToPixels(form.Height)};
}

void MoveToMonitor(Form& form, const cMonitors& monitors, int index) {
  const cMonitor& destination = monitors.Monitor(index);
  const PixelRect window = WindowRect(form);
  const auto now = monitors.MonitorForWindow(window);
  if (!now || destination.hMonitor() == now->hMonitor()) return;
  // The window crosses to the target first, at the offset that it has here, so that it is there when its state changes.
  constexpr int kInside = 32;
  const auto offset = [](int distance) { return distance < 0 ? kInside : distance; };
  MoveWindow(form, destination.Left() + offset(window.left - now->Left()),
             destination.Top() + offset(window.top - now->Top()));
  CentreOnMonitor(form, destination);
}

void CentreOnMonitor(Form& form, const cMonitor& monitor) {
  form.Maximised = false;
  const PixelRect window = WindowRect(form);
  const int width = std::min(window.right - window.left, monitor.WorkWidth());
  const int height = std::min(window.bottom - window.top, monitor.WorkHeight());
  MoveWindow(form, monitor.WorkLeft() + (monitor.WorkWidth() - width) / 2,
             monitor.WorkTop() + (monitor.WorkHeight() - height) / 2);
}
