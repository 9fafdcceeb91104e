#include "platform/qt/desktop/MapWatch.h"

#include <QWindow>
#include <chrono>

#include "platform/qt/desktop/Xlib.h"

namespace {

// Far longer than a window manager takes that has heard it.
constexpr std::chrono::milliseconds kPatience{700};

}  // namespace

MapWatch::MapWatch(QWindow& window, Until until) : window_(window), until_(until) {
  due_.setSingleShot(true);
  due_.setInterval(kPatience);
  connect(&due_, &QTimer::timeout, this, &MapWatch::Look);
  window.installEventFilter(this);
  if (IsMissing()) due_.start();
}

bool MapWatch::IsMissing() const {
  const bool isMeant = until_ == Until::kHidden || !wasSeen_;
  return window_.isVisible() && !window_.isExposed() && isMeant;
}

bool MapWatch::eventFilter(QObject* object, QEvent* event) {
  if (event->type() == QEvent::Show) wasSeen_ = false;
  if (event->type() == QEvent::Expose && window_.isExposed()) wasSeen_ = true;
  if ((event->type() == QEvent::Show || event->type() == QEvent::Expose) && !due_.isActive() && IsMissing())
    due_.start();
  return QObject::eventFilter(object, event);
}

void MapWatch::Look() {
  Display* display = XDisplay();
  if (display == nullptr || !IsMissing()) return;
  XMapWindow(display, window_.winId());
  XFlush(display);
  due_.start();
}
