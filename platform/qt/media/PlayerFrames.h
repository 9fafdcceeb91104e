#pragma once

#include <atomic>
#include <memory>

#include "platform/qt/frames/FrameSource.h"
#include "platform/qt/media/FrameExchange.h"

// The pictures of a player, as its rendering thread makes them.
class PlayerFrames : public FrameSource {
 public:
  PlayerFrames();
  ~PlayerFrames() override;

  void SetTarget(QSize pixels) override;
  // A lease; see FrameExchange::Take. A null image: show black.
  std::optional<QImage> Take() override;

  // The player's side.
  void SetLive(bool live);
  const std::shared_ptr<FrameExchange>& Exchange() const { return exchange_; }

 private:
  std::shared_ptr<FrameExchange> exchange_ = std::make_shared<FrameExchange>();
  std::atomic<bool> told_ = false;  // a call of Changed is on its way
  bool live_ = false;
  bool blackIsDue_ = false;
};
