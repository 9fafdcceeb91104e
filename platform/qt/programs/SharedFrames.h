#pragma once

#include <QImage>
#include <QSize>
#include <atomic>
#include <cstdint>
#include <memory>
#include <optional>

#include "platform/qt/programs/Channel.h"

// Three pictures in rotation between two programs, in memory that both see: one is shown, one waits to be shown, one is
// painted. Neither side ever waits for the other, and a picture that is shown is never written. One side paints, the
// other shows.
class SharedFrames {
 public:
  // Makes the memory for pictures of that size; null when there is none to be had.
  static std::shared_ptr<SharedFrames> Make(QSize pixels);
  // The memory that the other program has made; null when it does not fit.
  static std::shared_ptr<SharedFrames> Open(Descriptor memory, QSize pixels);
  ~SharedFrames();
  SharedFrames(const SharedFrames&) = delete;

  QSize Size() const { return size_; }
  // To be passed to the other program.
  std::shared_ptr<const Descriptor> Memory() const { return memory_; }

  // The painting side. The next picture is that part of a larger one, premultiplied, which has its corner there and
  // lies in it whole. Publish: it waits to be shown.
  void Publish(const QImage& whole, QPoint corner = {});
  // Whether it is another one than was published last.
  bool Differs(const QImage& whole, QPoint corner = {}) const;

  // The showing side. The newest picture, once; it stays untouched until the next call that gives one.
  static std::optional<QImage> Take(const std::shared_ptr<SharedFrames>& frames);

 private:
  struct Head {
    std::atomic<std::uint32_t> waiting;  // which picture, and kFresh when it was not taken yet
  };

  SharedFrames(std::shared_ptr<const Descriptor> memory, uchar* bytes, QSize size);
  static std::shared_ptr<SharedFrames> Map(std::shared_ptr<const Descriptor> memory, QSize size);
  uchar* Picture(std::uint32_t number) const;
  uchar* Row(std::uint32_t number, int row) const { return Picture(number) + row * Stride(); }
  int Stride() const { return size_.width() * 4; }

  std::shared_ptr<const Descriptor> memory_;
  uchar* bytes_;
  Head* head_;
  QSize size_;
  std::uint32_t own_ = 0;  // the picture that this side has
  std::optional<std::uint32_t> published_;
};
