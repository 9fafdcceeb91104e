#pragma once

#include <chrono>
#include <map>
#include <set>
#include <string>

#include "platform/Files.h"
#include "platform/LivePauses.h"
#include "platform/Media.h"
#include "platform/sim/SimTime.h"
#include "platform/sim/SimTrace.h"

class SimPlayer;

// Players that "play" by the virtual clock. A file that the virtual disk has under that very name opens after a
// moment, plays for its duration and ends; so does an address that is not refused.
class SimMedia : public MediaEngine {
 public:
  SimMedia(SimTime& time, Files& files, SimTrace& trace) : time_(time), files_(files), trace_(trace) {}

  std::unique_ptr<MediaPlayer> NewPlayer(const std::string& name, MediaListener& listener) override;

  // Every file lasts 10 seconds unless told otherwise; 0 is a stream without an end.
  void SetDuration(const std::string& path, double seconds) { durations_[path] = seconds; }

  // The fault: this one will not load.
  void WillNotLoad(const std::string& path) { broken_.insert(path); }
  // The fault: a stream breaks, and cannot be had until it is mended.
  void Break(const std::string& url);
  // The fault: nothing more comes of a stream, whose connection stays.
  void Stall(const std::string& url);
  void Mend(const std::string& url) { broken_.erase(url); }
  // The fault: a stream is there, and never answers.
  void NeverAnswers(const std::string& url) { silent_.insert(url); }
  // How long a file takes to open.
  std::chrono::milliseconds openingTime{20};

  // The player of that name that was made last; null when it is gone.
  SimPlayer* Find(const std::string& name) const;

 private:
  friend class SimPlayer;

  void EachThatPlays(const std::string& url, void (SimPlayer::*fault)());

  SimTime& time_;
  Files& files_;
  SimTrace& trace_;
  std::map<std::string, double> durations_;
  std::set<std::string> broken_;
  std::set<std::string> silent_;
  std::map<std::string, SimPlayer*> players_;
};

class SimPlayer : public MediaPlayer {
 public:
  SimPlayer(SimMedia& media, std::string name, MediaListener& listener);
  ~SimPlayer() override;

  void Open(const std::string& url) override;
  void Play() override;
  void Pause() override;
  void Stop() override;
  double Position() const override;
  void SetPosition(double seconds) override;
  double Duration() const override;
  PlayState State() const override { return state_; }
  bool IsOpen() const override { return opened_; }
  void SetMute(bool mute) override { mute_ = mute; }
  void SetVolume(int percent) override { volume_ = percent; }
  void SetStretchToFit(bool stretch) override { stretch_ = stretch; }
  void SetTakesLiveUpAgain(bool takes) override { takesUp_ = takes; }

  const std::string& Url() const { return url_; }
  bool Mute() const { return mute_; }
  int Volume() const { return volume_; }
  bool StretchToFit() const { return stretch_; }

 private:
  friend class SimMedia;

  bool MayBeOpened() const;
  bool IsRunning() const { return state_ == PlayState::kPlaying || state_ == PlayState::kBuffering; }
  // The item is a stream, without an end as far as is known, that is taken up again.
  bool TakesUp() const;
  // Seconds; 0 without an end.
  double Length() const;
  void Load();
  void Loaded();
  void Ended();
  void Break();
  void Stall();
  void Enter(PlayState state);
  void Wait(std::chrono::nanoseconds duration, void (SimPlayer::*next)());
  void WaitForEnd();
  void StopWaiting();

  SimMedia& media_;
  std::string name_;
  MediaListener& listener_;
  std::string url_;
  PlayState state_ = PlayState::kUndefined;
  bool opened_ = false;
  bool paused_ = false;
  bool mute_ = false;
  int volume_ = 50;
  bool stretch_ = false;
  bool takesUp_ = false;
  LivePauses pauses_;
  double position_ = 0;  // when the clock read `since_`
  std::chrono::nanoseconds since_{0};
  Scheduler::Id waiting_ = 0;
};
