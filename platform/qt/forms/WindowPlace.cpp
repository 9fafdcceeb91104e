#include "platform/qt/forms/WindowPlace.h"

#include <algorithm>
#include <limits>

namespace {

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
  int nearest = std::numeric_limits<int>::max();
  QRect home;
  for (const QRect& screen : screens) {
    if (InReach(wanted, screen)) return wanted;
    const int distance = Distance(wanted, screen);
    if (distance < nearest) {
      nearest = distance;
      home = screen;
    }
  }
  if (home.isNull()) return wanted;
  QRect window = wanted;
  window.moveTo(Within(wanted.left(), home.left(), home.right() + 1 - wanted.width()),
                Within(wanted.top(), home.top(), home.bottom() + 1 - wanted.height()));
  return window;
}
