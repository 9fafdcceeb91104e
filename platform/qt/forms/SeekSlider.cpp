#include "platform/qt/forms/SeekSlider.h"

#include <QMouseEvent>
#include <QStyleOptionSlider>
#include <utility>

SeekSlider::SeekSlider(QWidget* parent) : QSlider(parent) {
  connect(this, &QSlider::valueChanged, this, [this](int value) {
    if (largeChange_ > 0 && !following_) emit moved(value);
  });
}

void SeekSlider::Show(int minimum, int maximum, int value) {
  following_ = true;
  setRange(minimum, maximum);
  if (!held_) setValue(value);
  following_ = false;
}

void SeekSlider::SetLargeChange(int change) {
  largeChange_ = change;
  if (change > 0) setPageStep(change);
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
  if (largeChange_ > 0) {
    held_ = held_ || event->button() == Qt::LeftButton;
    if (event->button() == Qt::LeftButton) QSlider::mousePressEvent(event);
    return;
  }
  held_ = true;
  setSliderDown(true);
  setValue(ValueAt(*event));
  emit worked(value());
}

void SeekSlider::mouseMoveEvent(QMouseEvent* event) {
  event->accept();
  if (largeChange_ > 0) return QSlider::mouseMoveEvent(event);
  const int wanted = ValueAt(*event);
  if (!held_ || wanted == value()) return;
  setValue(wanted);
  emit worked(value());
}

void SeekSlider::mouseReleaseEvent(QMouseEvent* event) {
  event->accept();
  if (largeChange_ > 0) {
    if (!held_ || event->button() != Qt::LeftButton) return;
    QSlider::mouseReleaseEvent(event);
    held_ = false;
    emit letGo(value());
    return;
  }
  if (!held_ || event->buttons()) return;
  held_ = false;
  setSliderDown(false);
  setValue(ValueAt(*event));
  emit worked(value());
}

void SeekSlider::keyPressEvent(QKeyEvent* event) {
  const int before = value();
  QSlider::keyPressEvent(event);
  if (value() == before) return;
  if (largeChange_ > 0) {
    movedByKey_ = true;
  } else {
    emit worked(value());
  }
}

void SeekSlider::keyReleaseEvent(QKeyEvent* event) {
  QSlider::keyReleaseEvent(event);
  if (!event->isAutoRepeat()) EndKeys();
}

void SeekSlider::focusOutEvent(QFocusEvent* event) {
  QSlider::focusOutEvent(event);
  EndKeys();
}

void SeekSlider::EndKeys() {
  if (std::exchange(movedByKey_, false)) emit letGo(value());
}

void SeekSlider::wheelEvent(QWheelEvent* event) { event->ignore(); }

void SeekSlider::hideEvent(QHideEvent* event) {
  held_ = false;
  setSliderDown(false);
  QSlider::hideEvent(event);
}
