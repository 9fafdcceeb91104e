#include "platform/qt/desktop/HotKeys.h"

#include <xcb/xcb.h>

#include <QCoreApplication>

#include "platform/qt/desktop/Xlib.h"

namespace {

constexpr unsigned int kLocks = LockMask | Mod2Mask;  // Caps Lock and Num Lock
constexpr unsigned int kWanted = ControlMask;
constexpr unsigned int kInstant = 2;  // milliseconds
constexpr unsigned int kModifiers = ShiftMask | ControlMask | Mod1Mask | Mod4Mask;

}  // namespace

HotKeys::HotKeys() { QCoreApplication::instance()->installNativeEventFilter(this); }

HotKeys::~HotKeys() {
  Display* display = XDisplay();
  if (display == nullptr) return;
  const XErrorTrap trap(display);
  for (const auto& [id, key] : keys_) {
    XUngrabKey(display, static_cast<int>(key.code), AnyModifier, DefaultRootWindow(display));
  }
}

void HotKeys::Register(int id, char letter, std::function<void()> pressed) {
  Display* display = XDisplay();
  if (display == nullptr) return;
  const unsigned int code = XKeysymToKeycode(display, static_cast<KeySym>(letter));
  if (code == 0) return;
  keys_[id] = {code, std::move(pressed)};
  const XErrorTrap trap(display);
  for (const unsigned int locks :
       {0U, static_cast<unsigned int>(LockMask), static_cast<unsigned int>(Mod2Mask), kLocks}) {
    XGrabKey(display, static_cast<int>(code), kWanted | locks, DefaultRootWindow(display), 1, GrabModeAsync,
             GrabModeAsync);
  }
}

bool HotKeys::nativeEventFilter(const QByteArray& type, void* message, qintptr*) {
  if (type != "xcb_generic_event_t") return false;
  const auto* event = static_cast<const xcb_generic_event_t*>(message);
  const int kind = event->response_type & 0x7f;
  if (kind != XCB_KEY_PRESS && kind != XCB_KEY_RELEASE) return false;
  const auto* key = reinterpret_cast<const xcb_key_press_event_t*>(event);
  if (kind == XCB_KEY_RELEASE) {
    released_[key->detail] = key->time;
    return false;
  }
  if ((key->state & kModifiers) != kWanted) return false;
  for (const auto& [id, one] : keys_) {
    if (one.code != key->detail) continue;
    // A key that is held down is let go and pressed again in one instant.
    const auto released = released_.find(one.code);
    const bool repeated = released != released_.end() && key->time - released->second <= kInstant;
    // What the key does may stand in a dialog; the loop that delivers events must not.
    if (!repeated) {
      QMetaObject::invokeMethod(QCoreApplication::instance(), one.pressed, Qt::QueuedConnection);
    }
    return true;
  }
  return false;
}
