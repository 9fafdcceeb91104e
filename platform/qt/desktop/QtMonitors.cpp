#include "platform/qt/desktop/QtMonitors.h"

#include <QGuiApplication>
#include <QScreen>

namespace {

PixelRect ToRect(const QRect& rect) {
  return {rect.left(), rect.top(), rect.left() + rect.width(), rect.top() + rect.height()};
}

}  // namespace

std::vector<MonitorInfo> QtMonitors::List() const {
  std::vector<MonitorInfo> monitors;
  for (const QScreen* screen : QGuiApplication::screens()) {
    monitors.push_back({.handle = reinterpret_cast<std::uint64_t>(screen),
                        .name = screen->name().toStdString(),
                        .area = ToRect(screen->geometry()),
                        .workArea = ToRect(screen->availableGeometry()),
                        .primary = screen == QGuiApplication::primaryScreen()});
  }
  return monitors;
}
