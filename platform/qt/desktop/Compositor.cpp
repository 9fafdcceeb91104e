#include "platform/qt/desktop/Compositor.h"

#include <xcb/xcb.h>

#include <QCoreApplication>
#include <string>

#include "platform/qt/desktop/Xlib.h"

Compositor::Compositor() {
  Display* display = XDisplay();
  if (display == nullptr) return;
  const std::string name = "_NET_WM_CM_S" + std::to_string(DefaultScreen(display));
  selection_ = XInternAtom(display, name.c_str(), 0);
  int errorBase = 0;
  if (XFixesQueryExtension(display, &eventBase_, &errorBase) != 0) {
    XFixesSelectSelectionInput(display, DefaultRootWindow(display), selection_,
                               XFixesSetSelectionOwnerNotifyMask | XFixesSelectionWindowDestroyNotifyMask |
                                   XFixesSelectionClientCloseNotifyMask);
    QCoreApplication::instance()->installNativeEventFilter(this);
  }
  runs_ = XGetSelectionOwner(display, selection_) != 0;
}

bool Compositor::nativeEventFilter(const QByteArray& type, void* message, qintptr*) {
  if (type != "xcb_generic_event_t") return false;
  const auto* event = static_cast<const xcb_generic_event_t*>(message);
  if ((event->response_type & 0x7f) != eventBase_ + XFixesSelectionNotify) return false;
  QMetaObject::invokeMethod(this, &Compositor::Look, Qt::QueuedConnection);
  return false;  // Qt follows selections too
}

void Compositor::Look() {
  const bool runs = XGetSelectionOwner(XDisplay(), selection_) != 0;
  if (std::exchange(runs_, runs) != runs) emit Changed();
}
