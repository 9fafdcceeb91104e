#include "platform/qt/media/FrameExchange.h"

#include <cstdlib>
#include <new>

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
    const std::lock_guard lock(mutex_);
    if (pixels == target_) return;
    target_ = pixels;
    waiting_ = kNone;
  }
  const std::lock_guard lock(changedMutex_);
  if (changed_) changed_();
}

void FrameExchange::SetLive(bool live) {
  {
    const std::lock_guard lock(mutex_);
    if (live == live_) return;
    live_ = live;
    waiting_ = kNone;
  }
  // A still picture may have been rendered, and dropped, before anyone knew that it belongs on the screen.
  const std::lock_guard lock(changedMutex_);
  if (changed_) changed_();
}

std::optional<QImage> FrameExchange::Take() {
  const std::lock_guard lock(mutex_);
  if (waiting_ == kNone) return std::nullopt;
  shown_ = std::exchange(waiting_, kNone);
  return frames_[shown_];
}

void FrameExchange::Release() {
  const std::lock_guard lock(mutex_);
  shown_ = kNone;
}

void FrameExchange::NotifyReady(std::function<void()> ready) {
  const std::lock_guard lock(readyMutex_);
  ready_ = std::move(ready);
}

void FrameExchange::NotifyChanged(std::function<void()> changed) {
  const std::lock_guard lock(changedMutex_);
  changed_ = std::move(changed);
}

QImage* FrameExchange::Begin() {
  const std::lock_guard lock(mutex_);
  if (!live_ || target_.isEmpty()) return nullptr;
  for (rendering_ = 0; rendering_ == shown_ || rendering_ == waiting_;) ++rendering_;
  QImage& frame = frames_[rendering_];
  if (frame.size() != target_) frame = NewFrame(target_);
  return &frame;
}

void FrameExchange::Publish() {
  {
    const std::lock_guard lock(mutex_);
    if (!live_ || frames_[rendering_].size() != target_) return;
    waiting_ = rendering_;
  }
  const std::lock_guard lock(readyMutex_);
  if (ready_) ready_();
}
