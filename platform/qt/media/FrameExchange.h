#pragma once

#include <QImage>
#include <QSize>
#include <array>
#include <functional>
#include <mutex>
#include <optional>

// Three frames in rotation between the thread that renders them and the one that shows them: one is shown, one waits
// to be shown, one is rendered into. Neither side ever waits for the other, and a frame that is shown is never written.
class FrameExchange {
 public:
  // The showing side. What frames are wanted: their size in pixels, empty for none at all.
  void SetTarget(QSize pixels);
  // Whether what is rendered now belongs on the screen; while it does not, frames are dropped.
  void SetLive(bool live);
  // The newest frame, once; nothing when there is none newer than the one taken last. It stays untouched until the
  // next call that gives one, or Release.
  std::optional<QImage> Take();
  // Nothing taken before is shown any more.
  void Release();
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
  static constexpr int kNone = -1;

  std::mutex mutex_;
  std::array<QImage, 3> frames_;
  int shown_ = kNone;
  int waiting_ = kNone;
  int rendering_ = kNone;
  QSize target_;
  bool live_ = false;

  std::mutex readyMutex_;
  std::function<void()> ready_;
  std::mutex changedMutex_;
  std::function<void()> changed_;
};
