#pragma once

#include <QImage>
#include <QSize>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>

// Frames in rotation between the thread that renders them and the one that shows them: some are shown, one waits to be
// shown, one is rendered into. Neither side ever waits for the other, and a frame that is shown is never written.
class FrameExchange {
 public:
  // The showing side. What frames are wanted: their size in pixels, empty for none at all.
  void SetTarget(QSize pixels);
  // Whether what is rendered now belongs on the screen; while it does not, frames are dropped.
  void SetLive(bool live);
  // The newest frame, once; nothing when there is none newer than the one taken last. The image is a lease: nothing is
  // rendered into it while a copy of it lives, be it in a texture, and with the last copy its place is free again. It
  // may outlive the exchange.
  std::optional<QImage> Take();
  // `ready` is called on the rendering thread when a frame waits; `changed` on the showing one when the target is
  // another and the rendering side should render what it has once more. Null takes a call back; it is not running any
  // more when this returns.
  void NotifyReady(std::function<void()> ready);
  void NotifyChanged(std::function<void()> changed);

  // The rendering side. A frame of the wanted size to render into; null when none is wanted. Throws std::bad_alloc.
  QImage* Begin();
  // The frame of the last Begin is whole.
  void Publish();

 private:
  struct Place {
    QImage frame;
    bool lent = false;
  };
  // As many as are lent, and two. The leases share them with the exchange.
  struct Places {
    std::mutex mutex;
    std::deque<Place> all;
  };
  struct Lease {
    std::shared_ptr<Places> places;
    Place* place;
    ~Lease();
  };

  static QImage Lend(const std::shared_ptr<Places>& places, Place& place);
  Place& FreePlace();

  std::shared_ptr<Places> places_ = std::make_shared<Places>();  // its mutex guards the next four, too
  Place* waiting_ = nullptr;
  Place* rendering_ = nullptr;
  QSize target_;
  bool live_ = false;

  std::mutex readyMutex_;
  std::function<void()> ready_;
  std::mutex changedMutex_;
  std::function<void()> changed_;
};
