#include "platform/qt/scene/AlphaShape.h"

#include <algorithm>
#include <span>
#include <vector>

namespace {

struct Span {
  int left;
  int right;  // behind its last pixel
  bool operator==(const Span&) const = default;
};

using Spans = std::vector<Span>;

template <class Pixel>
std::span<const Pixel> Row(const QImage& picture, int y) {
  return {reinterpret_cast<const Pixel*>(picture.constScanLine(y)), static_cast<std::size_t>(picture.width())};
}

int AlphaOf(QRgb pixel) { return qAlpha(pixel); }
int AlphaOf(uchar alpha) { return alpha; }

template <class Pixel>
void SpansOf(std::span<const Pixel> row, int least, Spans& spans) {
  spans.clear();
  const auto isIn = [least](Pixel pixel) { return AlphaOf(pixel) >= least; };
  const auto begin = row.begin();
  for (auto from = std::ranges::find_if(row, isIn); from != row.end();) {
    const auto to = std::find_if_not(from, row.end(), isIn);
    spans.push_back({static_cast<int>(from - begin), static_cast<int>(to - begin)});
    from = std::find_if(to, row.end(), isIn);
  }
}

template <class Pixel>
QRegion ShapeOf(const QImage& picture, int least) {
  std::vector<QRect> bands;
  Spans spans, above;
  std::size_t bandAbove = 0;  // where the rectangles of the rows above begin
  for (int y = 0; y < picture.height(); ++y) {
    SpansOf(Row<Pixel>(picture, y), least, spans);
    if (y > 0 && spans == above) {
      for (std::size_t i = bandAbove; i < bands.size(); ++i) bands[i].setBottom(y);
      continue;
    }
    bandAbove = bands.size();
    for (const Span& span : spans) bands.emplace_back(span.left, y, span.right - span.left, 1);
    above.swap(spans);
  }
  QRegion shape;
  shape.setRects(bands.data(), static_cast<int>(bands.size()));
  return shape;
}

// `least` = the lesser of itself and the picture's alpha, pixel by pixel.
void Lessen(QImage& least, const QImage& picture) {
  for (int y = 0; y < picture.height(); ++y) {
    const auto from = Row<QRgb>(picture, y);
    uchar* to = least.scanLine(y);
    for (std::size_t x = 0; x < from.size(); ++x) to[x] = std::min(to[x], static_cast<uchar>(from[x] >> 24));
  }
}

}  // namespace

QRegion AlphaShape(const QImage& picture, int least) {
  if (picture.isNull()) return {};
  if (picture.format() == QImage::Format_Alpha8) return ShapeOf<uchar>(picture, least);
  return picture.hasAlphaChannel() ? ShapeOf<QRgb>(picture, least) : QRegion(picture.rect());
}

void LastingShape::Restart() {
  Region();  // which is what can become smaller
  least_ = {};
  isSettled_ = false;
}

void LastingShape::Take(const QImage& picture) {
  if (least_.size() != picture.size()) {
    Restart();
    least_ = picture.isNull() ? QImage() : QImage(picture.size(), QImage::Format_Alpha8);
    least_.fill(255);
  }
  if (picture.isNull()) region_ = {};
  if (picture.hasAlphaChannel()) Lessen(least_, picture);
}

QRegion LastingShape::Region() {
  const bool isKnown = !least_.isNull() && (isSettled_ || !region_.isEmpty());
  if (!isKnown) return region_;
  const QRegion now = AlphaShape(least_, 255);
  region_ = isSettled_ ? now : region_ & now;
  return region_;
}
