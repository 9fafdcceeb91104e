#include "platform/qt/desktop/BareDesktop.h"

#include <xcb/xcb.h>

#include <QCoreApplication>

#include "platform/qt/desktop/XWindows.h"

namespace {

constexpr char kShowing[] = "_NET_SHOWING_DESKTOP";

}  // namespace

BareDesktop::BareDesktop() {
  Display* display = XDisplay();
  if (display == nullptr) return;
  state_ = XInternAtom(display, kShowing, 0);
  // What else is heard of the root window stays so.
  XWindowAttributes root{};
  XGetWindowAttributes(display, DefaultRootWindow(display), &root);
  XSelectInput(display, DefaultRootWindow(display), root.your_event_mask | PropertyChangeMask);
  QCoreApplication::instance()->installNativeEventFilter(this);
  Look();
}

void BareDesktop::Look() {
  Display* display = XDisplay();
  const auto state = ReadList(display, DefaultRootWindow(display), kShowing, XA_CARDINAL);
  isBare_ = !state.empty() && state.front() == 1;
  if (isBare_) emit Bared();
}

void BareDesktop::Undo() const {
  Display* display = XDisplay();
  if (display == nullptr) return;
  AskManager(display, DefaultRootWindow(display), kShowing, {0});
}

bool BareDesktop::nativeEventFilter(const QByteArray& type, void* message, qintptr*) {
  if (type != "xcb_generic_event_t") return false;
  const auto* event = static_cast<const xcb_generic_event_t*>(message);
  if ((event->response_type & 0x7f) != XCB_PROPERTY_NOTIFY) return false;
  const auto* change = reinterpret_cast<const xcb_property_notify_event_t*>(event);
  if (change->atom == state_) QMetaObject::invokeMethod(this, &BareDesktop::Look, Qt::QueuedConnection);
  return false;
}
