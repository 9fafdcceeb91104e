#include "platform/qt/media/PlayerFrames.h"

PlayerFrames::PlayerFrames() {
  exchange_->NotifyReady([this] {
    if (told_.exchange(true)) return;
    QMetaObject::invokeMethod(this, &PlayerFrames::Changed, Qt::QueuedConnection);
  });
}

PlayerFrames::~PlayerFrames() { exchange_->NotifyReady(nullptr); }

void PlayerFrames::SetTarget(QSize pixels) { exchange_->SetTarget(pixels); }

std::optional<QImage> PlayerFrames::Take() {
  told_ = false;
  if (std::exchange(blackIsDue_, false) && !live_) return QImage();
  return exchange_->Take();
}

void PlayerFrames::SetLive(bool live) {
  if (live == live_) return;
  live_ = live;
  exchange_->SetLive(live);
  if (live) return;
  blackIsDue_ = true;
  emit Changed();
}
