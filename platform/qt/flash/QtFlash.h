#pragma once

#include <QObject>
#include <string>

#include "platform/Flash.h"
#include "platform/qt/programs/SideEngine.h"

class PictureLoader;
class QtSurface;

// The surfaces of the real world. Movies are played by a program of its own, pictures are decoded here. Movies that are
// put in the same moment with the same file are one movie with several surfaces.
class QtFlash : public QObject, public FlashEngine, public SideEngine<QtSurface> {
 public:
  // `program`: the path of the program that plays movies. The loader must outlive it, and it all surfaces.
  QtFlash(PictureLoader& pictures, std::string program);
  ~QtFlash() override;

  std::unique_ptr<FlashSurface> NewSurface(const std::string& name, FlashListener& listener) override;

  // For the surfaces.
  PictureLoader& Pictures() { return pictures_; }
  // What surfaces were asked for is begun once for all that one handler asks.
  void BeginSoon();

 private:
  void Begin();
  void Hear(const QCborArray& message) override;
  QtSurface* LeaderFor(const QtSurface& surface) const;

  PictureLoader& pictures_;
  bool beginning_ = false;
};
