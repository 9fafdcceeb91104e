#pragma once

#include <QtGui/qguiapplication_platform.h>

#include <QEvent>
#include <QGuiApplication>

// Last of all includes: X defines words that Qt uses as names.
#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <X11/extensions/Xfixes.h>
#include <X11/extensions/dpms.h>
#undef None
#undef Bool
#undef Status
#undef CursorShape
#undef KeyPress
#undef KeyRelease
#undef FocusIn
#undef FocusOut
#undef FontChange
#undef Expose

// The program's connection to the X server; null where it runs on something else.
inline Display* XDisplay() {
  const auto* x11 = qApp != nullptr ? qApp->nativeInterface<QNativeInterface::QX11Application>() : nullptr;
  return x11 != nullptr ? x11->display() : nullptr;
}

// While it stands, errors of this connection are counted and not fatal: a window of another program may go at any
// moment, and a key may be taken.
class XErrorTrap {
 public:
  explicit XErrorTrap(Display* display) : display_(display), former_(XSetErrorHandler(Swallow)) {}
  ~XErrorTrap() {
    XSync(display_, 0);
    XSetErrorHandler(former_);
  }
  XErrorTrap(const XErrorTrap&) = delete;
  XErrorTrap& operator=(const XErrorTrap&) = delete;

 private:
  static int Swallow(Display*, XErrorEvent*) { return 0; }

  Display* display_;
  XErrorHandler former_;
};
