#include "platform/qt/media/FrameSource.h"

FrameSource::FrameSource() {
  exchange_->NotifyReady([this] {
    if (told_.exchange(true)) return;
    QMetaObject::invokeMethod(this, &FrameSource::Changed, Qt::QueuedConnection);
  });
}

FrameSource::~FrameSource() { exchange_->NotifyReady(nullptr); }

void FrameSource::SetTarget(QSize pixels) { exchange_->SetTarget(pixels); }

std::optional<QImage> FrameSource::Take() {
  told_ = false;
  if (std::exchange(blackIsDue_, false) && !live_) return QImage();
  return exchange_->Take();
}

void FrameSource::SetLive(bool live) {
  if (live == live_) return;
  live_ = live;
  exchange_->SetLive(live);
  if (live) return;
  blackIsDue_ = true;
  emit Changed();
}
