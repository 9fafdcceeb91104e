#pragma once

#include <QObject>
#include <map>
#include <string>

#include "platform/Flash.h"
#include "platform/qt/programs/SideProgram.h"

class PictureLoader;
class QtSurface;

// The surfaces of the real world. Movies are played by a program of its own, pictures are decoded here. Movies that are
// put in the same moment with the same file are one movie with several surfaces.
class QtFlash : public QObject, public FlashEngine {
 public:
  // `program`: the path of the program that plays movies. The loader must outlive it, and it all surfaces.
  QtFlash(PictureLoader& pictures, std::string program);
  ~QtFlash() override;

  std::unique_ptr<FlashSurface> NewSurface(const std::string& name, FlashListener& listener) override;

  // For the surfaces.
  PictureLoader& Pictures() { return pictures_; }
  SideProgram& Program() { return program_; }
  qint64 NewSerial() { return ++lastSerial_; }
  int Add(QtSurface& surface);
  void Remove(int slot);
  // What surfaces were asked for is begun once for all that one handler asks.
  void BeginSoon();

 private:
  void Begin();
  void Hear(const QCborArray& message);
  void ProgramBegun();
  QtSurface* Find(int slot) const;
  QtSurface* LeaderFor(const QtSurface& surface) const;

  PictureLoader& pictures_;
  std::map<int, QtSurface*> surfaces_;
  SideProgram program_;
  int lastSlot_ = 0;
  qint64 lastSerial_ = 0;
  bool beginning_ = false;
};
