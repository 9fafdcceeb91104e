#pragma once

#include <memory>
#include <string>

#include "platform/Flash.h"
#include "platform/Scheduler.h"
#include "platform/toolkit/Control.h"
#include "platform/toolkit/Settable.h"

// Shows a movie, or a picture as if it were a movie, over all of its rectangle. Where its surface is gone (the form is
// unloaded) every operation is without effect.
class FlashBox : public Control, private FlashListener {
 public:
  FlashBox(Form& form, std::string name);
  FlashBox(Control& container, std::string name);
  std::string_view Kind() const override { return "FlashBox"; }
  void Retire() override;

  // Loads the file and starts it from its first frame, the same one too. A file that is absent or damaged leaves what
  // was shown; the empty text shows nothing.
  Settable<std::string> Movie;
  // The very name of the file that Movie names.
  const std::string& File() const { return file_; }

  // The frame now shown, from 1; 0 before the first one of the movie put last. Of several that came since the last
  // tick, the highest before the movie began anew: a rule that looks at each tick misses no end of a movie.
  int CurrentFrame() const { return shown_; }
  // Of the movie put last; 0 for what is no movie. Right as soon as Movie is set.
  int TotalFrames() const { return totalFrames_; }
  // See FlashSurface.
  void SetVariable(const std::string& name, const std::string& value);

  // "Transparent": nothing stands behind the movie. "Window": its own background does.
  Property<std::string> WMode{"Transparent"};
  // Keeps the proportions of the movie, centred, instead of filling the rectangle.
  Property<bool> KeepProportions{false};
  Property<bool> Silent{false};

  // Each frame, once each time it is come to.
  Event<int> FrameShow;

  // The platform's surface, for the window that shows its picture; null after the form was unloaded.
  FlashSurface* Platform() const { return surface_.get(); }

 private:
  void Start();
  void Put(const std::string& path);
  void FrameShown(int frame) override;
  void AwaitTick();
  void StopWaiting();

  std::unique_ptr<FlashSurface> surface_;
  std::string file_;
  int totalFrames_ = 0;
  int shown_ = 0;           // what the next tick reads
  int latest_ = 0;          // the frame told last
  Scheduler::Id tick_ = 0;  // comes behind the ticks that have not read `shown_` yet; 0: they all have
};
