#include "platform/qt/desktop/QtMonitors.h"

#include <QGuiApplication>
#include <QScreen>
#include <algorithm>

#include "platform/CaseFold.h"
#include "platform/qt/desktop/WorkArea.h"

namespace {

PixelRect ToRect(const QRect& rect) {
  return {rect.left(), rect.top(), rect.left() + rect.width(), rect.top() + rect.height()};
}

// By the name of its output: the same for the place at which a display is plugged in, however often that happens.
std::uint64_t HandleOf(const QScreen& screen) {
  return std::max<std::uint64_t>(HashIgnoringCase(screen.name().toStdString(), 0), 1);
}

}  // namespace

std::vector<MonitorInfo> QtMonitors::List() const {
  std::vector<MonitorInfo> monitors;
  for (const QScreen* screen : QGuiApplication::screens()) {
    monitors.push_back({.handle = HandleOf(*screen),
                        .name = screen->name().toStdString(),
                        .area = ToRect(screen->geometry()),
                        .workArea = ToRect(WorkArea(*screen)),
                        .primary = screen == QGuiApplication::primaryScreen()});
  }
  return monitors;
}
