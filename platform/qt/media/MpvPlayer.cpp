#include "platform/qt/media/MpvPlayer.h"

#include <QUrl>
#include <array>
#include <charconv>
#include <exception>
#include <filesystem>
#include <string_view>

#include "platform/Faults.h"
#include "platform/qt/media/MpvNames.h"

namespace {

std::string PathOf(const std::string& url) {
  if (SourceOf(url) == MediaSource::kPath) return url;
  return QUrl(QString::fromStdString(url)).toLocalFile().toStdString();
}

// Opening a pipe or a device would wait for somebody to write to it, perhaps for ever.
bool MayBeOpened(const std::string& url) {
  const MediaSource source = SourceOf(url);
  if (source == MediaSource::kStream || source == MediaSource::kRefused) return source == MediaSource::kStream;
  std::error_code failed;
  return std::filesystem::is_regular_file(PathOf(url), failed);
}

// mpv reads some names as addresses of its own; a name that begins with the root never is one. Schemes it knows in
// small letters.
std::string ForMpv(const std::string& url) {
  if (SourceOf(url) == MediaSource::kStream) {
    const std::size_t end = url.find("://");
    return QString::fromStdString(url.substr(0, end)).toLower().toStdString() + url.substr(end);
  }
  std::error_code failed;
  return std::filesystem::absolute(PathOf(url), failed).string();
}

// With a decimal point, whatever the language of the desktop. Further than any item is long is far enough.
std::string Decimal(double seconds) {
  std::array<char, 32> text;
  const double within = std::min(seconds, 1e9);
  const auto end = std::to_chars(text.begin(), text.end(), within, std::chars_format::fixed, 6).ptr;
  return {text.begin(), end};
}

std::optional<std::int64_t> EntryOf(const mpv_node& result) {
  if (result.format != MPV_FORMAT_NODE_MAP) return std::nullopt;
  const mpv_node_list& list = *result.u.list;
  for (int i = 0; i < list.num; ++i) {
    if (std::string_view(list.keys[i]) == "playlist_entry_id") return list.values[i].u.int64;
  }
  return std::nullopt;
}

}  // namespace

MpvPlayer::MpvPlayer(MediaListener& listener) : listener_(listener) {
  pause_.setSingleShot(true);
  still_.setSingleShot(true);
  connect(&pause_, &QTimer::timeout, this, &MpvPlayer::Load);
  connect(&still_, &QTimer::timeout, this, &MpvPlayer::Break);
}

MpvPlayer::~MpvPlayer() = default;

// Makes the instance at the first item. Where that fails, the item is one that does not load, and the next one tries
// again.
bool MpvPlayer::HasInstance() {
  if (mpv_) return true;
  const std::string name = objectName().toStdString();
  const auto wakeUp = [this] {
    if (eventsWait_.exchange(true)) return;
    QMetaObject::invokeMethod(this, &MpvPlayer::FetchEvents, Qt::QueuedConnection);
  };
  try {
    mpv_ = std::make_unique<MpvInstance>(name, frames_.Exchange(), wakeUp);
  } catch (const std::exception& fault) {
    TellFault(name, fault.what());
    return false;
  }
  if (takesUp_) mpv_->HoldOpened();
  mpv_->Observe(mpv_names::kTimePos, MPV_FORMAT_DOUBLE);
  mpv_->Observe(mpv_names::kDuration, MPV_FORMAT_DOUBLE);
  mpv_->Observe(mpv_names::kPausedForCache, MPV_FORMAT_FLAG);
  SetMute(mute_);
  SetVolume(volume_);
  SetStretchToFit(stretch_);
  return true;
}

void MpvPlayer::Open(const std::string& url) {
  Forget();
  ++item_;
  url_ = url;
  wish_.reset();
  opened_ = finite_ = false;
  duration_ = 0;
  pauses_.Reset();
  if (MayBeOpened(url)) {
    Load();
    return;
  }
  Close();
  Enter(url.empty() ? PlayState::kUndefined : PlayState::kReady);
}

void MpvPlayer::Load() {
  if (!HasInstance()) return TakesUp() ? Break() : Enter(PlayState::kReady);
  paused_ = false;
  pause_.stop();
  mpv_->Set(mpv_names::kPause, false);
  loadTicket_ = ++lastTicket_;
  mpv_->Command({"loadfile", ForMpv(url_), "replace"}, loadTicket_);
  Enter(PlayState::kTransitioning);
  WatchStandstill();  // the former item may have been at the same point
}

// From here on nothing that mpv still has to tell of the item counts.
void MpvPlayer::Forget() {
  loadTicket_ = durationTicket_ = seekTicket_ = 0;
  entries_ = {};
  current_ = open_ = running_ = buffering_ = seekQueued_ = false;
  position_ = 0;
  pause_.stop();
  still_.stop();
  frames_.SetLive(false);
}

void MpvPlayer::Close() {
  if (mpv_) mpv_->Command({"stop"});
}

bool MpvPlayer::TakesUp() const { return takesUp_ && !finite_ && SourceOf(url_) == MediaSource::kStream; }

void MpvPlayer::Break() {
  Forget();
  wish_.reset();
  Close();
  Enter(PlayState::kReady);
  pause_.start(pauses_.Next());
}

void MpvPlayer::Play() {
  if (loadTicket_ != 0) {
    paused_ = false;
    mpv_->Set(mpv_names::kPause, false);
    if (open_) EnterPlaying();
  } else if (MayBeOpened(url_)) {
    Load();
  }
}

void MpvPlayer::Pause() {
  if (loadTicket_ == 0) return;
  paused_ = true;
  mpv_->Set(mpv_names::kPause, true);
  if (open_) EnterPlaying();
}

void MpvPlayer::Stop() {
  if (loadTicket_ == 0 && state_ != PlayState::kMediaEnded && !pause_.isActive()) return;
  Forget();
  wish_.reset();
  Close();
  Enter(PlayState::kStopped);
}

double MpvPlayer::Position() const { return wish_.value_or(position_); }

void MpvPlayer::SetPosition(double seconds) {
  if (url_.empty()) return;
  wish_ = std::max(seconds, 0.0);
  if (open_) Seek();
}

void MpvPlayer::Seek() {
  seekQueued_ = false;
  seekTicket_ = ++lastTicket_;
  mpv_->Command({"seek", Decimal(*wish_), "absolute+exact"}, seekTicket_);
}

void MpvPlayer::SetMute(bool mute) {
  mute_ = mute;
  if (mpv_) mpv_->Set(mpv_names::kMute, mute);
}

void MpvPlayer::SetVolume(int percent) {
  volume_ = percent;
  if (mpv_) mpv_->Set(mpv_names::kVolume, static_cast<double>(percent));
}

void MpvPlayer::SetStretchToFit(bool stretch) {
  stretch_ = stretch;
  if (mpv_) mpv_->Set(mpv_names::kVideoUnscaled, stretch ? "no" : "downscale-big");
}

// The listener hears of it after the call or the event that brought it is over: it may well open the next item, or end
// this player.
void MpvPlayer::Enter(PlayState state) {
  if (state == state_) return;
  state_ = state;
  WatchStandstill();
  if (state == PlayState::kPlaying) pauses_.Reset();
  const auto tell = [this, state, item = item_] {
    // Another item may be open by now: the end of the former one is none of its own.
    if (item == item_ || state == state_) listener_.PlayStateChanged(state);
  };
  QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
}

void MpvPlayer::WatchStandstill() {
  if (TakesUp() && (state_ == PlayState::kTransitioning || state_ == PlayState::kBuffering)) {
    still_.start(kLivePatience);
  } else {
    still_.stop();
  }
}

void MpvPlayer::EnterPlaying() {
  if (paused_) {
    Enter(PlayState::kPaused);
  } else if (buffering_) {
    Enter(PlayState::kBuffering);
  } else {
    Enter(running_ ? PlayState::kPlaying : PlayState::kTransitioning);
  }
}

void MpvPlayer::FetchEvents() {
  eventsWait_ = false;
  for (;;) {
    const mpv_event& event = mpv_->NextEvent();
    if (event.event_id == MPV_EVENT_NONE) return;
    Handle(event);
  }
}

void MpvPlayer::Handle(const mpv_event& event) {
  switch (event.event_id) {
    case MPV_EVENT_COMMAND_REPLY:
    case MPV_EVENT_GET_PROPERTY_REPLY:
      return Replied(event);
    case MPV_EVENT_START_FILE:
      return Started(*static_cast<const mpv_event_start_file*>(event.data));
    case MPV_EVENT_HOOK:
      return Held(*static_cast<const mpv_event_hook*>(event.data));
    case MPV_EVENT_FILE_LOADED:
      return Loaded();
    case MPV_EVENT_PLAYBACK_RESTART:
      return Restarted();
    case MPV_EVENT_END_FILE:
      return Ended(*static_cast<const mpv_event_end_file*>(event.data));
    case MPV_EVENT_PROPERTY_CHANGE:
      return Tell(*static_cast<const mpv_event_property*>(event.data));
    default:
      return;
  }
}

void MpvPlayer::Replied(const mpv_event& event) {
  const std::uint64_t ticket = event.reply_userdata;
  if (ticket == 0) return;
  if (ticket == loadTicket_) {
    const auto entry = EntryOf(static_cast<const mpv_event_command*>(event.data)->result);
    if (event.error >= 0 && entry) entries_ = {*entry, *entry};
  } else if (ticket == seekTicket_) {
    if (event.error >= 0) {
      seekQueued_ = true;
    } else {
      wish_.reset();  // a stream that cannot be wound
    }
  } else if (ticket == durationTicket_) {
    if (event.error >= 0) Tell(*static_cast<const mpv_event_property*>(event.data));
    const auto tell = [this, item = item_] {
      if (item == item_) listener_.MediaChanged();
    };
    QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
  } else if (ticket == lengthTicket_) {
    finite_ = event.error >= 0 && *static_cast<double*>(static_cast<const mpv_event_property*>(event.data)->data) > 0;
    mpv_->GoOn(hook_);
  }
}

void MpvPlayer::Started(const mpv_event_start_file& start) { current_ = entries_.Hold(start.playlist_entry_id); }

// Once it reads, mpv gives a stream without an end the duration of what it has read.
void MpvPlayer::Held(const mpv_event_hook& hook) {
  hook_ = hook.id;
  lengthTicket_ = ++lastTicket_;
  mpv_->Ask(mpv_names::kDuration, MPV_FORMAT_DOUBLE, lengthTicket_);
}

void MpvPlayer::Loaded() {
  if (!current_) return;
  open_ = opened_ = true;
  frames_.SetLive(true);
  // MediaChanged promises the duration, so it waits for it.
  durationTicket_ = ++lastTicket_;
  mpv_->Ask(mpv_names::kDuration, MPV_FORMAT_DOUBLE, durationTicket_);
  if (wish_) Seek();
  EnterPlaying();
}

void MpvPlayer::Restarted() {
  if (!current_ || !open_) return;
  running_ = true;
  if (seekQueued_) {
    seekQueued_ = false;
    position_ = wish_.value_or(position_);
    wish_.reset();
  }
  EnterPlaying();
}

void MpvPlayer::Ended(const mpv_event_end_file& end) {
  if (!entries_.Hold(end.playlist_entry_id)) return;
  if (end.reason == MPV_END_FILE_REASON_REDIRECT) {
    entries_ = {end.playlist_insert_id, end.playlist_insert_id + end.playlist_insert_num_entries - 1};
    return;
  }
  const bool played = open_ && end.reason == MPV_END_FILE_REASON_EOF;
  const bool last = end.playlist_entry_id == entries_.last;
  current_ = open_ = running_ = false;
  if (!last) return;
  if (TakesUp()) return Break();
  Forget();
  wish_.reset();
  Enter(played ? PlayState::kMediaEnded : PlayState::kReady);
}

void MpvPlayer::Tell(const mpv_event_property& property) {
  if (!open_ || property.data == nullptr) return;
  const std::string_view name = property.name;
  if (name == mpv_names::kTimePos) {
    position_ = std::max(*static_cast<double*>(property.data), 0.0);
  } else if (name == mpv_names::kDuration) {
    duration_ = TakesUp() ? 0 : std::max(*static_cast<double*>(property.data), 0.0);
  } else if (name == mpv_names::kPausedForCache) {
    buffering_ = *static_cast<int*>(property.data) != 0;
    EnterPlaying();
  }
}
