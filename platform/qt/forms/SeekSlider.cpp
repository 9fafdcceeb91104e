#include "platform/qt/forms/SeekSlider.h"

#include <QMouseEvent>
#include <QStyleOptionSlider>

SeekSlider::SeekSlider(QWidget* parent) : QSlider(parent) {}

void SeekSlider::Show(int minimum, int maximum, int value) {
  setRange(minimum, maximum);
  if (!held_) setValue(value);
}

int SeekSlider::ValueAt(const QMouseEvent& event) const {
  QStyleOptionSlider option;
  initStyleOption(&option);
  const QRect groove = style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderGroove, this);
  const QRect handle = style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this);
  const bool flat = orientation() == Qt::Horizontal;
  const int length = flat ? handle.width() : handle.height();
  const int start = flat ? groove.left() : groove.top();
  const int room = (flat ? groove.width() : groove.height()) - length;
  const QPoint at = event.position().toPoint();
  const int distance = (flat ? at.x() : at.y()) - start - length / 2;
  return QStyle::sliderValueFromPosition(minimum(), maximum(), distance, room, option.upsideDown);
}

void SeekSlider::mousePressEvent(QMouseEvent* event) {
  event->accept();
  held_ = true;
  setSliderDown(true);
  setValue(ValueAt(*event));
  emit worked(value());
}

void SeekSlider::mouseMoveEvent(QMouseEvent* event) {
  event->accept();
  const int wanted = ValueAt(*event);
  if (!held_ || wanted == value()) return;
  setValue(wanted);
  emit worked(value());
}

void SeekSlider::mouseReleaseEvent(QMouseEvent* event) {
  event->accept();
  if (!held_ || event->buttons()) return;
  held_ = false;
  setSliderDown(false);
  setValue(ValueAt(*event));
  emit worked(value());
}

void SeekSlider::keyPressEvent(QKeyEvent* event) {
  const int before = value();
  QSlider::keyPressEvent(event);
  if (value() != before) emit worked(value());
}

void SeekSlider::wheelEvent(QWheelEvent* event) { event->ignore(); }

void SeekSlider::hideEvent(QHideEvent* event) {
  held_ = false;
  setSliderDown(false);
  QSlider::hideEvent(event);
}
