#include "platform/qt/desktop/Taskbar.h"

#include <chrono>
#include <vector>

#include "platform/qt/desktop/Xlib.h"

namespace {

using XWindows = std::vector<Window>;

constexpr char kHidden[] = "_CORVANTA_HIDDEN_PANELS";
constexpr std::chrono::seconds kLookAgain(2);  // at a log-on the panel may come up after the station

Atom Named(Display* display, const char* name) { return XInternAtom(display, name, 0); }

// The list of windows or atoms that a property holds; empty when there is none.
std::vector<unsigned long> ReadList(Display* display, Window window, const char* property, Atom type) {
  Atom actual = 0;
  int format = 0;
  unsigned long count = 0, left = 0;
  unsigned char* data = nullptr;
  std::vector<unsigned long> list;
  if (XGetWindowProperty(display, window, Named(display, property), 0, 4096, 0, type, &actual, &format, &count, &left,
                         &data) == Success &&
      actual == type && format == 32) {
    const auto* values = reinterpret_cast<const unsigned long*>(data);
    list.assign(values, values + count);
  }
  if (data != nullptr) XFree(data);
  return list;
}

XWindows Children(Display* display, Window window) {
  Window root = 0, parent = 0, *children = nullptr;
  unsigned int count = 0;
  if (XQueryTree(display, window, &root, &parent, &children, &count) == 0) return {};
  XWindows list(children, children + count);
  if (children != nullptr) XFree(children);
  return list;
}

bool IsShownPanel(Display* display, Window window) {
  const Atom dock = Named(display, "_NET_WM_WINDOW_TYPE_DOCK");
  for (const Atom type : ReadList(display, window, "_NET_WM_WINDOW_TYPE", XA_ATOM)) {
    XWindowAttributes seen{};
    if (type == dock) return XGetWindowAttributes(display, window, &seen) != 0 && seen.map_state != IsUnmapped;
  }
  return false;
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
  // Panels that a window manager looks after are in its list; those that it does not are the root's own children.
  XWindows candidates = ReadList(display, root, "_NET_CLIENT_LIST", XA_WINDOW);
  const XWindows children = Children(display, root);
  candidates.insert(candidates.end(), children.begin(), children.end());
  for (const Window window : candidates) {
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
