#include "platform/qt/desktop/WindowClass.h"

#include <QGuiApplication>
#include <QWindow>

#include "platform/qt/desktop/XWindows.h"

namespace {

long Atomised(Display* display, const char* name) { return static_cast<long>(XInternAtom(display, name, 0)); }

constexpr long kAProgramAsks = 1;  // and not a person

}  // namespace

void SetWindowClass(QWindow& window, const std::string& name) {
  Display* display = XDisplay();
  if (display == nullptr || window.handle() == nullptr) return;
  std::string instance = name, group = "Corvanta";
  XClassHint hint{instance.data(), group.data()};
  XSetClassHint(display, window.winId(), &hint);
  XFlush(display);
}

// One that comes up later finds the property.
void StandOnEveryDesktop(QWindow& window) {
  Display* display = XDisplay();
  if (display == nullptr || window.handle() == nullptr) return;
  const unsigned long all = 0xFFFFFFFF;
  XChangeProperty(display, window.winId(), XInternAtom(display, "_NET_WM_DESKTOP", 0), XA_CARDINAL, 32, PropModeReplace,
                  reinterpret_cast<const unsigned char*>(&all), 1);
  AskManager(display, window.winId(), "_NET_WM_DESKTOP", {static_cast<long>(all), kAProgramAsks});
}

void HideFromTaskbar(QWindow& window) {
  Display* display = XDisplay();
  if (display == nullptr || window.handle() == nullptr) return;
  constexpr long kAdd = 1;
  AskManager(display, window.winId(), "_NET_WM_STATE",
             {kAdd, Atomised(display, "_NET_WM_STATE_SKIP_TASKBAR"), Atomised(display, "_NET_WM_STATE_SKIP_PAGER"),
              kAProgramAsks});
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
