#include "platform/qt/media/FrameExchange.h"

#include <cstdlib>
#include <new>
#include <utility>

namespace {

constexpr int kAlignment = 64;  // what the scaler's vector code is fastest with

// Opaque on purpose: what lies under a picture is never painted, and nothing is blended.
QImage NewFrame(QSize pixels) {
  const int stride = (pixels.width() * 4 + kAlignment - 1) / kAlignment * kAlignment;
  void* bytes = std::aligned_alloc(kAlignment, static_cast<std::size_t>(stride) * pixels.height());
  if (bytes == nullptr) throw std::bad_alloc();
  return {static_cast<uchar*>(bytes), pixels.width(), pixels.height(), stride, QImage::Format_RGB32, std::free, bytes};
}

}  // namespace

void FrameExchange::SetTarget(QSize pixels) {
  {
    const std::lock_guard lock(places_->mutex);
    if (pixels == target_) return;
    target_ = pixels;
    waiting_ = nullptr;
  }
  const std::lock_guard lock(changedMutex_);
  if (changed_) changed_();
}

void FrameExchange::SetLive(bool live) {
  {
    const std::lock_guard lock(places_->mutex);
    if (live == live_) return;
    live_ = live;
    waiting_ = nullptr;
  }
  // A still picture may have been rendered, and dropped, before anyone knew that it belongs on the screen.
  const std::lock_guard lock(changedMutex_);
  if (changed_) changed_();
}

std::optional<QImage> FrameExchange::Take() {
  const std::lock_guard lock(places_->mutex);
  if (waiting_ == nullptr) return std::nullopt;
  return Lend(places_, *std::exchange(waiting_, nullptr));
}

// Whoever writes to the image gets a copy of his own.
QImage FrameExchange::Lend(const std::shared_ptr<Places>& places, Place& place) {
  place.lent = true;
  const QImage& frame = place.frame;
  return {frame.constBits(),        frame.width(),  frame.height(),
          frame.bytesPerLine(),     frame.format(), [](void* lease) { delete static_cast<Lease*>(lease); },
          new Lease{places, &place}};
}

FrameExchange::Lease::~Lease() {
  const std::lock_guard lock(places->mutex);
  place->lent = false;
}

void FrameExchange::NotifyReady(std::function<void()> ready) {
  const std::lock_guard lock(readyMutex_);
  ready_ = std::move(ready);
}

void FrameExchange::NotifyChanged(std::function<void()> changed) {
  const std::lock_guard lock(changedMutex_);
  changed_ = std::move(changed);
}

FrameExchange::Place& FrameExchange::FreePlace() {
  for (Place& place : places_->all) {
    if (!place.lent && &place != waiting_) return place;
  }
  return places_->all.emplace_back();
}

QImage* FrameExchange::Begin() {
  const std::lock_guard lock(places_->mutex);
  if (!live_ || target_.isEmpty()) return nullptr;
  rendering_ = &FreePlace();
  QImage& frame = rendering_->frame;
  if (frame.size() != target_) frame = NewFrame(target_);
  return &frame;
}

void FrameExchange::Publish() {
  {
    const std::lock_guard lock(places_->mutex);
    if (!live_ || rendering_->frame.size() != target_) return;
    waiting_ = rendering_;
  }
  const std::lock_guard lock(readyMutex_);
  if (ready_) ready_();
}
