#pragma once

#include <QCborArray>
#include <map>
#include <memory>
#include <string>

#include "platform/qt/programs/SharedFrames.h"
#include "platform/qt/programs/SideProgram.h"
#include "platform/qt/programs/Wire.h"

// What the engines have in common whose surfaces are shown by a program beside the station's: that program, and the
// surfaces by the numbers of their slots. A `Surface` is told that a `PictureWaits`, and to `TellAll` that a program
// must know that knows nothing.
template <typename Surface>
class SideEngine {
 public:
  // `program`: its path.
  explicit SideEngine(std::string program)
      : program_(
            std::move(program), [this](const QCborArray& message) { HearAny(message); }, [this] { TellAll(); }) {}
  virtual ~SideEngine() = default;

  // For the surfaces.
  SideProgram& Program() { return program_; }
  qint64 NewSerial() { return ++lastSerial_; }
  int Add(Surface& surface) {
    surfaces_[++lastSlot_] = &surface;
    return lastSlot_;
  }
  void Remove(int slot) {
    surfaces_.erase(slot);
    program_.Send({wire::kEnd, slot});
    if (surfaces_.empty()) Emptied();
  }
  // The memory for a slot's pictures of that size, which the program is told of. Null, and none for the program either,
  // when the size is empty or there is none to be had.
  std::shared_ptr<SharedFrames> GiveFrames(int slot, QSize pixels) {
    auto frames = SharedFrames::Make(pixels);
    const QSize size = frames ? pixels : QSize(0, 0);
    program_.Send({wire::kSlot, slot, size.width(), size.height()}, frames ? frames->Memory() : nullptr);
    return frames;
  }

 protected:
  // What only this kind of program says.
  virtual void Hear(const QCborArray& message) = 0;
  // The program has begun, and is told of the surfaces next.
  virtual void ProgramBegun() {}
  // The last surface is gone.
  virtual void Emptied() {}

  const std::map<int, Surface*>& Surfaces() const { return surfaces_; }
  // Null when it is gone.
  Surface* SurfaceAt(const QCborValue& slot) const {
    const auto found = surfaces_.find(static_cast<int>(slot.toInteger()));
    return found == surfaces_.end() ? nullptr : found->second;
  }

 private:
  void HearAny(const QCborArray& message) {
    if (message[0].toString() != wire::kPictures) return Hear(message);
    for (qsizetype i = 1; i < message.size(); ++i) {
      if (Surface* surface = SurfaceAt(message[i])) surface->PictureWaits();
    }
  }
  void TellAll() {
    ProgramBegun();
    for (const auto& [slot, surface] : surfaces_) surface->TellAll();
  }

  std::map<int, Surface*> surfaces_;
  SideProgram program_;
  int lastSlot_ = 0;
  qint64 lastSerial_ = 0;
};
