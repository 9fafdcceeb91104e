#pragma once

#include <chrono>
#include <map>
#include <set>
#include <string>

#include "platform/Files.h"
#include "platform/Media.h"
#include "platform/sim/SimTime.h"
#include "platform/sim/SimTrace.h"

class SimPlayer;

// Players that "play" by the virtual clock. A file that the virtual disk has under that very name opens after a
// moment, plays for its duration and ends; so does an address with a scheme.
class SimMedia : public MediaEngine {
 public:
  SimMedia(SimTime& time, Files& files, SimTrace& trace) : time_(time), files_(files), trace_(trace) {}

  std::unique_ptr<MediaPlayer> NewPlayer(const std::string& name, MediaListener& listener) override;

  // Every file lasts 10 seconds unless told otherwise; 0 is a stream without an end.
  void SetDuration(const std::string& path, double seconds) { durations_[path] = seconds; }

  // The fault: this one will not load.
  void WillNotLoad(const std::string& path) { broken_.insert(path); }
  // How long a file takes to open.
  std::chrono::milliseconds openingTime{20};

  // The player of that name that was made last; null when it is gone.
  SimPlayer* Find(const std::string& name) const;

 private:
  friend class SimPlayer;

  SimTime& time_;
  Files& files_;
  SimTrace& trace_;
  std::map<std::string, double> durations_;
  std::set<std::string> broken_;
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

  const std::string& Url() const { return url_; }
  bool Mute() const { return mute_; }
  int Volume() const { return volume_; }
  bool StretchToFit() const { return stretch_; }

 private:
  bool MayBeOpened() const;
  void Load();
  void Loaded();
  void Ended();
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
  double position_ = 0;  // when the clock read `since_`
  std::chrono::nanoseconds since_{0};
  Scheduler::Id waiting_ = 0;
};
