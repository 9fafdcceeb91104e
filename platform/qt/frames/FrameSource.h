#pragma once

#include <QImage>
#include <QObject>
#include <QSize>
#include <optional>

// The pictures of one player, movie or page, for the one surface that shows them. All of it on the GUI thread.
class FrameSource : public QObject {
  Q_OBJECT
 public:
  // The size in which pictures are wanted, in pixels; an empty one while the surface is not seen, which spares the
  // work.
  virtual void SetTarget(QSize pixels) = 0;
  // A pixel of exactly this colour is see-through in a still picture; movies have an alpha of their own.
  virtual void SetKey(std::optional<QRgb>) {}
  // The newest picture, once; it stays valid until the next one is taken. A null image: show nothing.
  virtual std::optional<QImage> Take() = 0;

 signals:
  // Take would give something.
  void Changed();
  // The next picture is the first one of another file.
  void Renewed();
};

// What a player, a movie or a page is asked for its pictures by.
class ShowsFrames {
 public:
  virtual ~ShowsFrames() = default;
  virtual FrameSource& Frames() = 0;
};
