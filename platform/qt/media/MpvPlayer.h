#pragma once

#include <QObject>
#include <QTimer>
#include <atomic>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "platform/LivePauses.h"
#include "platform/Media.h"
#include "platform/qt/media/MpvInstance.h"
#include "platform/qt/media/PlayerFrames.h"

// A player on one mpv that lasts as long as the player does, made at the first item. All on the GUI thread: mpv's
// events are fetched there, every call to mpv is queued, and every answer is given from what the events have told.
class MpvPlayer : public QObject, public MediaPlayer, public ShowsFrames {
 public:
  explicit MpvPlayer(MediaListener& listener);
  ~MpvPlayer() override;

  void Open(const std::string& url) override;
  void Play() override;
  void Pause() override;
  void Stop() override;
  double Position() const override;
  void SetPosition(double seconds) override;
  double Duration() const override { return duration_; }
  PlayState State() const override { return state_; }
  bool IsOpen() const override { return opened_; }
  void SetMute(bool mute) override;
  void SetVolume(int percent) override;
  void SetStretchToFit(bool stretch) override;
  void SetTakesLiveUpAgain(bool takes) override { takesUp_ = takes; }

  FrameSource& Frames() override { return frames_; }

 private:
  // The entries of mpv's own playlist that make up the present item: one, or those of a playlist that it turned out
  // to be. Events of any other entry are of a former item.
  struct Entries {
    std::int64_t first = 0;
    std::int64_t last = -1;
    bool Hold(std::int64_t id) const { return id >= first && id <= last; }
  };

  bool HasInstance();
  void Load();
  void Forget();
  void Close();
  // The item is a stream, without an end as far as is known, that is taken up again.
  bool TakesUp() const;
  void Break();
  void Seek();
  void Enter(PlayState state);
  void WatchStandstill();
  void EnterPlaying();
  void FetchEvents();
  void Handle(const mpv_event& event);
  void Replied(const mpv_event& event);
  void Started(const mpv_event_start_file& start);
  void Held(const mpv_event_hook& hook);
  void Loaded();
  void Ended(const mpv_event_end_file& end);
  void Restarted();
  void Tell(const mpv_event_property& property);

  MediaListener& listener_;
  PlayerFrames frames_;
  std::atomic<bool> eventsWait_ = false;
  std::unique_ptr<MpvInstance> mpv_;

  std::string url_;
  std::uint64_t item_ = 0;  // counts what was opened
  PlayState state_ = PlayState::kUndefined;
  bool paused_ = false;
  bool mute_ = false;
  int volume_ = 100;
  bool stretch_ = false;
  bool takesUp_ = false;
  LivePauses pauses_;
  QTimer pause_{this};  // until a broken stream is taken up again
  QTimer still_{this};  // while one stands still or comes up

  std::uint64_t lastTicket_ = 0;
  std::uint64_t hook_ = 0;  // at which mpv holds an item that is open; 0: none
  std::uint64_t lengthTicket_ = 0;
  std::uint64_t loadTicket_ = 0;  // of the load that makes the present item
  std::uint64_t durationTicket_ = 0;
  std::uint64_t seekTicket_ = 0;
  Entries entries_;
  bool current_ = false;  // the entry that mpv started last belongs to the present item
  bool opened_ = false;   // the present item has been open once
  bool open_ = false;     // mpv has it open now
  bool finite_ = false;   // it had a duration before anything of it was read
  bool running_ = false;  // its first picture or sound is out
  bool buffering_ = false;
  bool seekQueued_ = false;  // mpv has taken the seek; the next restart is its end
  double position_ = 0;
  double duration_ = 0;
  std::optional<double> wish_;  // where to, until playing has got there
};
