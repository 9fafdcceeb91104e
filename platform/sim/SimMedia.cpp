#include "platform/sim/SimMedia.h"

#include <algorithm>

#include "platform/WholeNumber.h"

using std::chrono::nanoseconds;

namespace {

nanoseconds Nanoseconds(double seconds) { return nanoseconds(CutToWhole<std::int64_t>(seconds * 1e9)); }

}  // namespace

std::unique_ptr<MediaPlayer> SimMedia::NewPlayer(const std::string& name, MediaListener& listener) {
  return std::make_unique<SimPlayer>(*this, name, listener);
}

SimPlayer* SimMedia::Find(const std::string& name) const {
  const auto found = players_.find(name);
  return found == players_.end() ? nullptr : found->second;
}

void SimMedia::Break(const std::string& url) {
  WillNotLoad(url);
  EachThatPlays(url, &SimPlayer::Break);
}

void SimMedia::Stall(const std::string& url) { EachThatPlays(url, &SimPlayer::Stall); }

void SimMedia::EachThatPlays(const std::string& url, void (SimPlayer::*fault)()) {
  for (const auto& [name, player] : players_) {
    if (player->url_ == url && player->IsRunning()) (player->*fault)();
  }
}

SimPlayer::SimPlayer(SimMedia& media, std::string name, MediaListener& listener)
    : media_(media), name_(std::move(name)), listener_(listener) {
  media_.players_[name_] = this;
}

SimPlayer::~SimPlayer() {
  StopWaiting();
  if (media_.Find(name_) == this) media_.players_.erase(name_);
}

bool SimPlayer::MayBeOpened() const {
  switch (SourceOf(url_)) {
    case MediaSource::kStream:
      return true;
    case MediaSource::kRefused:
      return false;
    case MediaSource::kFileAddress:
      return media_.files_.Kind(url_.substr(url_.find("://") + 3)) == FileKind::kRegular;
    case MediaSource::kPath:
      break;
  }
  return media_.files_.Resolve(url_) == url_ && media_.files_.Kind(url_) == FileKind::kRegular;
}

bool SimPlayer::TakesUp() const { return takesUp_ && SourceOf(url_) == MediaSource::kStream && Length() == 0; }

void SimPlayer::Open(const std::string& url) {
  StopWaiting();
  media_.trace_.Add(name_ + " open " + url);
  url_ = url;
  opened_ = false;
  position_ = 0;
  pauses_.Reset();
  if (MayBeOpened()) {
    Load();
  } else {
    Enter(url.empty() ? PlayState::kUndefined : PlayState::kReady);
  }
}

void SimPlayer::Load() {
  StopWaiting();
  paused_ = false;
  Enter(PlayState::kTransitioning);
  const bool isSilent = media_.silent_.contains(url_);
  if (TakesUp() && (isSilent || media_.openingTime > kLivePatience)) {
    Wait(kLivePatience, &SimPlayer::Break);
  } else if (!isSilent) {
    Wait(media_.openingTime, &SimPlayer::Loaded);
  }
}

void SimPlayer::Break() {
  StopWaiting();
  position_ = 0;
  if (TakesUp()) {
    Enter(PlayState::kReady);
    Wait(pauses_.Next(), &SimPlayer::Load);
  } else {
    Enter(opened_ ? PlayState::kMediaEnded : PlayState::kReady);
  }
}

void SimPlayer::Stall() {
  position_ = Position();
  StopWaiting();
  Enter(PlayState::kBuffering);
  if (TakesUp()) Wait(kLivePatience, &SimPlayer::Break);
}

void SimPlayer::Loaded() {
  if (media_.broken_.contains(url_)) {
    if (TakesUp()) return Break();
    return Enter(PlayState::kReady);
  }
  opened_ = true;
  since_ = media_.time_.Steady();
  listener_.MediaChanged();
  // The listener may have opened something else.
  if (!opened_ || state_ != PlayState::kTransitioning) return;
  if (paused_) return Enter(PlayState::kPaused);
  pauses_.Reset();
  WaitForEnd();
  Enter(PlayState::kPlaying);
}

void SimPlayer::WaitForEnd() {
  StopWaiting();
  if (Length() > 0) Wait(std::max(nanoseconds(1), Nanoseconds(Length() - position_)), &SimPlayer::Ended);
}

void SimPlayer::Ended() {
  position_ = 0;
  Enter(PlayState::kMediaEnded);
}

void SimPlayer::Play() {
  paused_ = false;
  if (state_ == PlayState::kPaused) {
    since_ = media_.time_.Steady();
    WaitForEnd();
    Enter(PlayState::kPlaying);
  } else if (!IsRunning() && state_ != PlayState::kTransitioning && MayBeOpened()) {
    Load();
  }
}

void SimPlayer::Pause() {
  if (state_ == PlayState::kTransitioning) paused_ = true;
  if (!IsRunning()) return;
  position_ = Position();
  StopWaiting();
  Enter(PlayState::kPaused);
}

void SimPlayer::Stop() {
  media_.trace_.Add(name_ + " stop");
  const bool isLeft = state_ == PlayState::kReady && waiting_ == 0;  // in a pause it is not
  const bool nothingBegan = state_ == PlayState::kUndefined || isLeft || state_ == PlayState::kStopped;
  if (nothingBegan) return;
  StopWaiting();
  position_ = 0;
  Enter(PlayState::kStopped);
}

double SimPlayer::Position() const {
  if (state_ != PlayState::kPlaying) return position_;
  return position_ + std::chrono::duration<double>(media_.time_.Steady() - since_).count();
}

void SimPlayer::SetPosition(double seconds) {
  media_.trace_.Add(name_ + " seek " + std::to_string(seconds));
  if (url_.empty()) return;
  position_ = std::max(0.0, seconds);
  since_ = media_.time_.Steady();
  if (state_ == PlayState::kPlaying) WaitForEnd();
}

double SimPlayer::Duration() const {
  const double length = Length();
  const bool grows = length == 0 && opened_ && !takesUp_ && SourceOf(url_) == MediaSource::kStream;
  return grows ? Position() : length;
}

double SimPlayer::Length() const {
  if (!opened_) return 0;
  const auto known = media_.durations_.find(url_);
  return known == media_.durations_.end() ? 10 : known->second;
}

// Told as the real players tell it: from the message loop, never from inside the caller's own statement.
void SimPlayer::Enter(PlayState state) {
  if (state == state_) return;
  state_ = state;
  const std::string name = name_;
  media_.time_.Post([this, &media = media_, name, state] {
    if (media.Find(name) == this) listener_.PlayStateChanged(state);
  });
}

void SimPlayer::Wait(nanoseconds duration, void (SimPlayer::*next)()) {
  const auto rounded = std::chrono::ceil<std::chrono::milliseconds>(duration);
  waiting_ = media_.time_.Start(rounded, TickPhase::kFromStart, [this, next] {
    StopWaiting();
    (this->*next)();
  });
}

void SimPlayer::StopWaiting() {
  media_.time_.Cancel(waiting_);
  waiting_ = 0;
}
