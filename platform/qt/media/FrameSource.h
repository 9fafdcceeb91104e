#pragma once

#include <QObject>
#include <atomic>
#include <memory>

#include "platform/qt/media/FrameExchange.h"

// The pictures of one player, for the one surface that shows them. All of it on the GUI thread.
class FrameSource : public QObject {
  Q_OBJECT
 public:
  FrameSource();
  ~FrameSource() override;

  // The size in which frames are wanted, in pixels; an empty one while the surface is not seen, which spares the work.
  void SetTarget(QSize pixels);
  // The newest frame, once, as a lease; see FrameExchange::Take. A null image: show black.
  std::optional<QImage> Take();

  // The player's side.
  void SetLive(bool live);
  const std::shared_ptr<FrameExchange>& Exchange() const { return exchange_; }

 signals:
  // Take would give something.
  void Changed();

 private:
  std::shared_ptr<FrameExchange> exchange_ = std::make_shared<FrameExchange>();
  std::atomic<bool> told_ = false;  // a call of Changed is on its way
  bool live_ = false;
  bool blackIsDue_ = false;
};

// What a player is asked for its pictures by.
class ShowsFrames {
 public:
  virtual ~ShowsFrames() = default;
  virtual FrameSource& Frames() = 0;
};
