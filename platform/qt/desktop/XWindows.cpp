#include "platform/qt/desktop/XWindows.h"

#include <algorithm>

namespace {

XWindows Children(Display* display, Window window) {
  Window root = 0, parent = 0, *children = nullptr;
  unsigned int count = 0;
  if (XQueryTree(display, window, &root, &parent, &children, &count) == 0) return {};
  XWindows list(children, children + count);
  if (children != nullptr) XFree(children);
  return list;
}

}  // namespace

std::vector<unsigned long> ReadList(Display* display, Window window, const char* property, Atom type) {
  Atom actual = 0;
  int format = 0;
  unsigned long count = 0, left = 0;
  unsigned char* data = nullptr;
  std::vector<unsigned long> list;
  if (XGetWindowProperty(display, window, XInternAtom(display, property, 0), 0, 4096, 0, type, &actual, &format, &count,
                         &left, &data) == Success &&
      actual == type && format == 32) {
    const auto* values = reinterpret_cast<const unsigned long*>(data);
    list.assign(values, values + count);
  }
  if (data != nullptr) XFree(data);
  return list;
}

XWindows TopWindows(Display* display) {
  const Window root = DefaultRootWindow(display);
  XWindows windows = ReadList(display, root, "_NET_CLIENT_LIST", XA_WINDOW);
  const XWindows children = Children(display, root);
  windows.insert(windows.end(), children.begin(), children.end());
  return windows;
}

bool IsMapped(Display* display, Window window) {
  XWindowAttributes seen{};
  return XGetWindowAttributes(display, window, &seen) != 0 && seen.map_state != IsUnmapped;
}

void AskManager(Display* display, Window window, const char* what, std::initializer_list<long> numbers) {
  XEvent event{};
  event.xclient.type = ClientMessage;
  event.xclient.window = window;
  event.xclient.message_type = XInternAtom(display, what, 0);
  event.xclient.format = 32;
  std::ranges::copy(numbers, event.xclient.data.l);
  XSendEvent(display, DefaultRootWindow(display), 0, SubstructureRedirectMask | SubstructureNotifyMask, &event);
  XFlush(display);
}
