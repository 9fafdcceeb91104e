#include "platform/qt/desktop/Taskbar.h"

#include <algorithm>
#include <chrono>
#include <vector>

#include "platform/qt/desktop/XWindows.h"

namespace {

constexpr char kHidden[] = "_CORVANTA_HIDDEN_PANELS";
constexpr std::chrono::seconds kLookAgain(2);  // at a log-on the panel may come up after the station

Atom Named(Display* display, const char* name) { return XInternAtom(display, name, 0); }

bool IsShownPanel(Display* display, Window window) {
  const Atom dock = Named(display, "_NET_WM_WINDOW_TYPE_DOCK");
  const std::vector<unsigned long> types = ReadList(display, window, "_NET_WM_WINDOW_TYPE", XA_ATOM);
  return std::ranges::find(types, dock) != types.end() && IsMapped(display, window);
}

}  // namespace

Taskbar::Taskbar() {
  QObject::connect(&later_, &QTimer::timeout, &later_, [this] { HideAll(); });
}

void Taskbar::SetVisible(bool visible) {
  if (visible) {
    later_.stop();
    ShowHidden();
  } else {
    HideAll();
    later_.start(kLookAgain);
  }
}

void Taskbar::HideAll() const {
  Display* display = XDisplay();
  if (display == nullptr) return;
  const XErrorTrap trap(display);
  const Window root = DefaultRootWindow(display);
  for (const Window window : TopWindows(display)) {
    if (!IsShownPanel(display, window)) continue;
    XChangeProperty(display, root, Named(display, kHidden), XA_WINDOW, 32, PropModeAppend,
                    reinterpret_cast<const unsigned char*>(&window), 1);
    XWithdrawWindow(display, window, DefaultScreen(display));
  }
}

void Taskbar::ShowHidden() const {
  Display* display = XDisplay();
  if (display == nullptr) return;
  const XErrorTrap trap(display);
  const Window root = DefaultRootWindow(display);
  for (const Window window : ReadList(display, root, kHidden, XA_WINDOW)) XMapWindow(display, window);
  XDeleteProperty(display, root, Named(display, kHidden));
}
