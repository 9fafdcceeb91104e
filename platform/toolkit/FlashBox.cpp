#include "platform/toolkit/FlashBox.h"

#include <algorithm>
#include <chrono>
#include <utility>

#include "platform/Files.h"
#include "platform/toolkit/Form.h"

namespace {

constexpr std::chrono::milliseconds kNextTick{1};

}  // namespace

FlashBox::FlashBox(Form& form, std::string name)
    : Control(form, std::move(name)), Movie("", [this](const std::string& path) { Put(path); }) {
  Start();
}

FlashBox::FlashBox(Control& container, std::string name)
    : Control(container, std::move(name)), Movie("", [this](const std::string& path) { Put(path); }) {
  Start();
}

void FlashBox::Start() {
  surface_ = Owner().Outside().flash.NewSurface(Owner().Name() + "." + Name(), *this);
  const auto applyLooks = [this] {
    if (!surface_) return;
    using Looks = FlashLooks;
    surface_->SetLooks({WMode.Get() == "Window" ? Looks::Back::kOpaque : Looks::Back::kSeeThrough,
                        KeepProportions ? Looks::Fit::kKeepProportions : Looks::Fit::kFill, Silent});
  };
  WMode.Changed.Connect(applyLooks);
  KeepProportions.Changed.Connect(applyLooks);
  Silent.Changed.Connect(applyLooks);
  applyLooks();
}

void FlashBox::Retire() {
  StopWaiting();
  surface_.reset();
}

void FlashBox::Put(const std::string& path) {
  StopWaiting();
  shown_ = latest_ = totalFrames_ = 0;
  file_ = Owner().Outside().files.Resolve(path);
  if (surface_) {
    surface_->Put(file_);
    totalFrames_ = surface_->TotalFrames();
  }
  Movie.Store(path);
}

void FlashBox::SetVariable(const std::string& name, const std::string& value) {
  if (surface_) surface_->SetVariable(name, value);
}

// Frames come when the movie shows them, several in a row on a busy machine; a rule that waits for the last ones looks
// at its own ticks only. So the first frame behind a tick counts as it is, and of those that follow before the next
// tick only the higher ones.
void FlashBox::FrameShown(int frame) {
  latest_ = frame;
  shown_ = tick_ == 0 ? frame : std::max(shown_, frame);
  if (tick_ == 0) AwaitTick();
  Handle("FrameShow", [this, frame] { FrameShow.Raise(frame); });
}

// A timer that is started now ticks behind those that are running already.
void FlashBox::AwaitTick() {
  tick_ = Owner().Outside().scheduler.Start(kNextTick, TickPhase::kFromStart, [this] {
    StopWaiting();
    shown_ = latest_;
  });
}

void FlashBox::StopWaiting() {
  if (tick_ != 0) Owner().Outside().scheduler.Cancel(std::exchange(tick_, 0));
}
