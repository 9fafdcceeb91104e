#include "tests/platform/forms/TextFinder.h"

#include <QHash>
#include <QPaintDevice>
#include <QPaintEngine>
#include <algorithm>
#include <cmath>

namespace {

// Draws nothing and notes where texts are drawn.
class TextEngine : public QPaintEngine {
 public:
  TextEngine() : QPaintEngine(AllFeatures) {}
  bool begin(QPaintDevice*) override { return true; }
  bool end() override { return true; }
  void updateState(const QPaintEngineState& state) override {
    if (state.state() & DirtyTransform) transform_ = state.transform();
  }
  void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}
  void drawPath(const QPainterPath&) override {}
  void drawPolygon(const QPointF*, int, PolygonDrawMode) override {}
  void drawTextItem(const QPointF& start, const QTextItem& item) override {
    const QRectF box(start.x(), start.y() - item.ascent(), item.width(), item.ascent() + item.descent());
    found.push_back({item.text(), transform_.mapRect(box).toAlignedRect()});
  }
  Type type() const override { return User; }

  std::vector<FoundText> found;

 private:
  QTransform transform_;
};

class TextDevice : public QPaintDevice {
 public:
  explicit TextDevice(const QWidget& widget) : widget_(widget) {}
  QPaintEngine* paintEngine() const override { return &engine; }

  mutable TextEngine engine;

 protected:
  int metric(PaintDeviceMetric metric) const override {
    switch (metric) {
      case PdmWidth:
        return widget_.width();
      case PdmHeight:
        return widget_.height();
      case PdmDpiX:
      case PdmPhysicalDpiX:
        return widget_.logicalDpiX();
      case PdmDpiY:
      case PdmPhysicalDpiY:
        return widget_.logicalDpiY();
      case PdmDevicePixelRatio:
        return 1;
      default:
        return QPaintDevice::metric(metric);
    }
  }

 private:
  const QWidget& widget_;
};

double Luminance(QRgb colour) {
  const auto linear = [](int part) {
    const double value = part / 255.0;
    return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(qRed(colour)) + 0.7152 * linear(qGreen(colour)) + 0.0722 * linear(qBlue(colour));
}

}  // namespace

std::vector<FoundText> TextsOn(QWidget& widget) {
  TextDevice device(widget);
  widget.render(&device);
  return device.engine.found;
}

QImage PictureOf(QWidget& widget) {
  QImage picture(widget.size(), QImage::Format_RGB32);
  widget.render(&picture);
  return picture;
}

double Contrast(QRgb one, QRgb other) {
  const auto [dark, light] = std::minmax({Luminance(one), Luminance(other)});
  return (light + 0.05) / (dark + 0.05);
}

double ContrastIn(const QImage& picture, const QRect& place) {
  QHash<QRgb, int> colours;
  const QRect seen = place & picture.rect();
  for (int y = seen.top(); y <= seen.bottom(); ++y) {
    for (int x = seen.left(); x <= seen.right(); ++x) ++colours[picture.pixel(x, y)];
  }
  QRgb ground = 0;
  for (const QRgb colour : colours.keys()) {
    if (colours[colour] > colours.value(ground)) ground = colour;
  }
  double best = 1;
  for (const QRgb colour : colours.keys()) best = std::max(best, Contrast(colour, ground));
  return best;
}
