#include "platform/qt/desktop/WindowClass.h"

#include <QGuiApplication>
#include <QWindow>

#include "platform/qt/desktop/Xlib.h"

void SetWindowClass(QWindow& window, const std::string& name) {
  Display* display = XDisplay();
  if (display == nullptr || window.handle() == nullptr) return;
  std::string instance = name, group = "Corvanta";
  XClassHint hint{instance.data(), group.data()};
  XSetClassHint(display, window.winId(), &hint);
  XFlush(display);
}

// The window manager is asked, as it looks after the window from its showing on.
void HideFromTaskbar(QWindow& window) {
  Display* display = XDisplay();
  if (display == nullptr || window.handle() == nullptr) return;
  XEvent event{};
  event.xclient.type = ClientMessage;
  event.xclient.window = window.winId();
  event.xclient.message_type = XInternAtom(display, "_NET_WM_STATE", 0);
  event.xclient.format = 32;
  event.xclient.data.l[0] = 1;  // add
  event.xclient.data.l[1] = static_cast<long>(XInternAtom(display, "_NET_WM_STATE_SKIP_TASKBAR", 0));
  event.xclient.data.l[2] = static_cast<long>(XInternAtom(display, "_NET_WM_STATE_SKIP_PAGER", 0));
  event.xclient.data.l[3] = 1;  // a program asks, not a person
  XSendEvent(display, DefaultRootWindow(display), 0, SubstructureRedirectMask | SubstructureNotifyMask, &event);
  XFlush(display);
}

void StandBefore(QWindow& window, QWindow* other) {
  Display* display = XDisplay();
  if (display == nullptr || window.handle() == nullptr) return;
  if (other != nullptr && other->handle() != nullptr) {
    XSetTransientForHint(display, window.winId(), other->winId());
  } else {
    XDeleteProperty(display, window.winId(), XA_WM_TRANSIENT_FOR);
  }
  XFlush(display);
}

void SetBackground(QWindow& window, Background background) {
  Display* display = XDisplay();
  if (display == nullptr || window.handle() == nullptr) return;
  if (background == Background::kTransparent) {
    XSetWindowBackground(display, window.winId(), 0);
  } else {
    XSetWindowBackgroundPixmap(display, window.winId(), 0);
  }
}
