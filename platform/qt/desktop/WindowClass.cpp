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
