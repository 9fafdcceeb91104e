#include "platform/toolkit/PlayerControl.h"

#include "platform/Files.h"
#include "platform/toolkit/Failure.h"
#include "platform/toolkit/Form.h"

namespace {

auto UrlSetter(PlayerControl& control) {
  return [&control](const std::string& url) {
    control.URL.Store(url);
    if (control.Platform() == nullptr) return;
    control.Platform()->Open(IsAddress(url) ? url : control.Owner().Outside().files.Resolve(url));
  };
}

}  // namespace

PlayerControl::PlayerControl(Form& form, std::string name) : Control(form, std::move(name)), URL("", UrlSetter(*this)) {
  Start();
}

PlayerControl::PlayerControl(Control& container, std::string name)
    : Control(container, std::move(name)), URL("", UrlSetter(*this)) {
  Start();
}

void PlayerControl::Start() {
  player_ = Owner().Outside().media.NewPlayer(Owner().Name() + "." + Name(), *this);
  const auto applyMute = [this] {
    if (player_) player_->SetMute(settings.mute);
  };
  const auto applyVolume = [this] {
    if (player_) player_->SetVolume(settings.volume);
  };
  const auto applyStretch = [this] {
    if (player_) player_->SetStretchToFit(stretchToFit);
  };
  const auto applyTakingUp = [this] {
    if (player_) player_->SetTakesLiveUpAgain(takesLiveUpAgain);
  };
  settings.mute.Changed.Connect(applyMute);
  settings.volume.Changed.Connect(applyVolume);
  stretchToFit.Changed.Connect(applyStretch);
  takesLiveUpAgain.Changed.Connect(applyTakingUp);
  applyMute();
  applyVolume();
  applyStretch();
}

void PlayerControl::Retire() { player_.reset(); }

int PlayerControl::playState() const { return static_cast<int>(player_ ? player_->State() : PlayState::kUndefined); }

std::string PlayerControl::status() const { return player_ ? player_->Status() : ""; }

bool PlayerControl::isOnline() const { return player_ && player_->IsOpen(); }

void PlayerControl::Controls::play() {
  if (owner_.player_) owner_.player_->Play();
}

void PlayerControl::Controls::pause() {
  if (owner_.player_) owner_.player_->Pause();
}

void PlayerControl::Controls::stop() {
  if (owner_.player_) owner_.player_->Stop();
}

double PlayerControl::Controls::currentPosition() const { return owner_.player_ ? owner_.player_->Position() : 0; }

void PlayerControl::Controls::SetCurrentPosition(double seconds) {
  if (owner_.player_) owner_.player_->SetPosition(seconds);
}

double PlayerControl::Media::duration() const {
  if (!owner_.player_ || owner_.URL.Get().empty()) throw Failure("No media is loaded in " + owner_.Name() + ".");
  return owner_.player_->Duration();
}

void PlayerControl::PlayStateChanged(PlayState) {
  Handle("PlayStateChange", [this] { PlayStateChange.Raise(); });
}

void PlayerControl::MediaChanged() {
  Handle("CurrentMediaChange", [this] { CurrentMediaChange.Raise(); });
}
