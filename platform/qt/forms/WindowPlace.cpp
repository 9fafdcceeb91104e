#include "platform/qt/forms/WindowPlace.h"

#include <algorithm>
#include <limits>

namespace {

constexpr QSize kFrame(4, 32);  // room for a title bar and borders
constexpr QSize kHold(80, 16);  // pixels of the upper edge that a hand can grasp

bool InReach(const QRect& window, const QRect& screen) {
  const QRect edge(window.topLeft(), QSize(window.width(), kHold.height()));
  const QRect seen = edge & screen;
  return seen.width() >= std::min(kHold.width(), window.width()) && seen.height() >= kHold.height();
}

int Distance(const QRect& one, const QRect& other) {
  const QPoint between = one.center() - other.center();
  return between.manhattanLength();
}

int Within(int wanted, int low, int high) { return std::max(low, std::min(wanted, high)); }

}  // namespace

QRect Reachable(const QRect& wanted, const QList<QRect>& screens) {
  QRect together;
  for (const QRect& screen : screens) together |= screen;
  if (together.isNull()) return wanted;
  QRect window(wanted.topLeft(), wanted.size().boundedTo(together.size() - kFrame));
  int nearest = std::numeric_limits<int>::max();
  QRect home;
  for (const QRect& screen : screens) {
    if (window.size() == wanted.size() && InReach(window, screen)) return window;
    const int distance = Distance(window, screen);
    if (distance < nearest) {
      nearest = distance;
      home = screen;
    }
  }
  const QPoint corner = home.bottomRight() + QPoint(1, 1) - QPoint(kFrame.width(), kFrame.height());
  window.moveTo(Within(window.left(), home.left(), corner.x() - window.width()),
                Within(window.top(), home.top(), corner.y() - window.height()));
  return window;
}
