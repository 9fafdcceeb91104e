#include "platform/qt/flash/host/Shelves.h"

#include <algorithm>
#include <vector>

QRect Shelves::Put(int number, QSize size) {
  places_.erase(number);
  return places_[number] = FreePlace(size);
}

qint64 Shelves::GrowthWith(int number, QSize size) const {
  const auto area = [](QSize extent) { return extent.isEmpty() ? 0 : qint64{extent.width()} * extent.height(); };
  Shelves others = *this;
  others.Remove(number);
  const qint64 before = area(others.Extent());
  others.Put(number, size);
  return area(others.Extent()) - before;
}

QSize Shelves::Extent() const {
  QRect all;
  for (const auto& [number, place] : places_) all |= place;
  return all.isEmpty() ? QSize() : QSize(all.right() + 1, all.bottom() + 1);
}

// Of all places that touch the edge of another rectangle, or of the page, the one that leaves the page smallest.
QRect Shelves::FreePlace(QSize size) const {
  std::vector<int> lefts{0};
  std::vector<int> tops{0};
  for (const auto& [number, place] : places_) {
    lefts.push_back(place.right() + 1);
    tops.push_back(place.bottom() + 1);
  }
  const QSize extent = Extent();
  QRect best;
  qint64 bestArea = 0;
  for (const int top : tops) {
    for (const int left : lefts) {
      const QRect place({left, top}, size);
      const bool taken =
          std::ranges::any_of(places_, [&place](const auto& other) { return place.intersects(other.second); });
      if (taken) continue;
      const QSize grown = extent.expandedTo(QSize(place.right() + 1, place.bottom() + 1));
      const qint64 area = qint64{grown.width()} * grown.height();
      if (best.isNull() || area < bestArea) {
        best = place;
        bestArea = area;
      }
    }
  }
  return best;
}
