#include "platform/qt/desktop/RunSignal.h"

#include <sys/stat.h>
#include <xcb/xcb.h>

#include <QCoreApplication>

#include "platform/qt/desktop/Xlib.h"

namespace {

Atom Told(Display* display) { return XInternAtom(display, "_CORVANTA_STARTED_AGAIN", 0); }

}  // namespace

RunSignal::RunSignal(const std::string& folder) {
  struct stat status {};
  stat(folder.c_str(), &status);
  name_ = "_CORVANTA_STATION_" + std::to_string(status.st_dev) + "_" + std::to_string(status.st_ino);
}

RunSignal::~RunSignal() {
  if (Display* display = XDisplay(); display != nullptr && window_ != 0) XDestroyWindow(display, window_);
}

void RunSignal::Listen(std::function<void()> told) {
  told_ = std::move(told);
  Display* display = XDisplay();
  if (display == nullptr || window_ != 0) return;
  window_ = XCreateSimpleWindow(display, DefaultRootWindow(display), -1, -1, 1, 1, 0, 0, 0);
  QCoreApplication::instance()->installNativeEventFilter(this);
  XSetSelectionOwner(display, XInternAtom(display, name_.c_str(), 0), window_, CurrentTime);
  XFlush(display);
}

bool RunSignal::Tell() const {
  Display* display = XDisplay();
  if (display == nullptr) return false;
  const XErrorTrap trap(display);
  const Window other = XGetSelectionOwner(display, XInternAtom(display, name_.c_str(), 0));
  if (other == 0) return false;
  XEvent event{};
  event.xclient.type = ClientMessage;
  event.xclient.window = other;
  event.xclient.message_type = Told(display);
  event.xclient.format = 32;
  return XSendEvent(display, other, 0, 0, &event) != 0;
}

bool RunSignal::nativeEventFilter(const QByteArray& type, void* message, qintptr*) {
  if (type != "xcb_generic_event_t") return false;
  const auto* event = static_cast<const xcb_generic_event_t*>(message);
  if ((event->response_type & 0x7f) != XCB_CLIENT_MESSAGE) return false;
  const auto* word = reinterpret_cast<const xcb_client_message_event_t*>(event);
  if (word->window != window_ || word->type != Told(XDisplay())) return false;
  // What follows may stand in a dialog; the loop that delivers events must not.
  QMetaObject::invokeMethod(QCoreApplication::instance(), told_, Qt::QueuedConnection);
  return true;
}
