#include "platform/sim/SimFlash.h"

#include <algorithm>
#include <utility>

#include "platform/CaseFold.h"

using std::chrono::milliseconds;

std::unique_ptr<FlashSurface> SimFlash::NewSurface(const std::string& name, FlashListener& listener) {
  return std::make_unique<SimSurface>(*this, name, listener);
}

void SimFlash::SetMovie(const std::string& path, int frames, int framesPerSecond) {
  movies_[path] = {frames, framesPerSecond};
}

void SimFlash::Die() {
  for (const auto& [name, surface] : surfaces_) {
    if (surface->frame_ > 0) surface->Wait(returnTime, &SimSurface::Play);
  }
}

SimSurface* SimFlash::Find(const std::string& name) const {
  const auto found = surfaces_.find(name);
  return found == surfaces_.end() ? nullptr : found->second;
}

bool SimFlash::IsMovie(const std::string& path) const {
  return path.size() >= 4 && EqualIgnoringCase(path.substr(path.size() - 4), ".swf");
}

SimSurface::SimSurface(SimFlash& flash, std::string name, FlashListener& listener)
    : flash_(flash), name_(std::move(name)), listener_(listener) {
  flash_.surfaces_[name_] = this;
}

SimSurface::~SimSurface() {
  StopWaiting();
  if (flash_.Find(name_) == this) flash_.surfaces_.erase(name_);
}

void SimSurface::Put(const std::string& path) {
  StopWaiting();
  flash_.trace_.Add(name_ + " movie " + path);
  path_ = path;
  totalFrames_ = frame_ = 0;
  variables_.clear();
  if (path.empty()) return ShowFile();
  const bool isThere = flash_.files_.Resolve(path) == path && flash_.files_.Kind(path) == FileKind::kRegular;
  if (!isThere || flash_.damaged_.contains(path)) return;
  if (flash_.IsMovie(path)) totalFrames_ = flash_.movies_[path].frames;
  if (!flash_.withoutBeginning_.contains(path)) {
    Wait(flash_.loadingTime, &SimSurface::Begin);
  } else if (totalFrames_ > 0) {
    Wait(flash_.refusalTime, &SimSurface::Play);
  }
}

void SimSurface::Begin() {
  ShowFile();
  if (totalFrames_ > 0) Play();
}

void SimSurface::ShowFile() {
  shown_ = path_;
  shownVariables_ = variables_;
  shownLooks_ = looks_;
}

void SimSurface::Play() {
  const int rate = std::max(flash_.movies_[path_].framesPerSecond, 1);
  frame_ = 0;
  Wait(milliseconds(1000 * std::max(flash_.framesAtOnce, 1) / rate), &SimSurface::TellNext);
  frame_ = 1;
  listener_.FrameShown(1);
}

// The listener may put another movie, or end this surface.
void SimSurface::TellNext() {
  const std::string name = name_;
  SimFlash& flash = flash_;
  const Scheduler::Id playing = waiting_;
  for (int left = std::max(flash.framesAtOnce, 1); left > 0; --left) {
    if (totalFrames_ == 1) return;  // it never comes to another frame
    frame_ = frame_ % totalFrames_ + 1;
    listener_.FrameShown(frame_);
    if (flash.Find(name) != this || waiting_ != playing) return;
  }
}

void SimSurface::SetVariable(const std::string& name, const std::string& value) {
  flash_.trace_.Add(name_ + " variable " + name + "=" + value);
  const std::size_t before = name.find_last_of(".:/");
  const std::string bare = before == std::string::npos ? name : name.substr(before + 1);
  variables_[bare] = value;
  if (shown_ == path_) shownVariables_[bare] = value;
}

std::string SimSurface::Variable(const std::string& name) const {
  const auto found = shownVariables_.find(name);
  return found == shownVariables_.end() ? "" : found->second;
}

void SimSurface::Wait(milliseconds time, void (SimSurface::*next)()) {
  StopWaiting();
  waiting_ = flash_.time_.Start(time, TickPhase::kFromStart, [this, next] {
    if (next != &SimSurface::TellNext) StopWaiting();
    (this->*next)();
  });
}

void SimSurface::StopWaiting() {
  if (waiting_ != 0) flash_.time_.Cancel(std::exchange(waiting_, 0));
}
