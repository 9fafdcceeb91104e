#pragma once

#include <chrono>
#include <map>
#include <set>
#include <string>

#include "platform/Files.h"
#include "platform/Flash.h"
#include "platform/sim/SimTime.h"
#include "platform/sim/SimTrace.h"

class SimSurface;

// Surfaces whose movies play by the virtual clock. A file of the virtual disk whose name ends in ".swf" is a movie that
// comes up after a moment and shows its frames round and round; any other file is a picture.
class SimFlash : public FlashEngine {
 public:
  SimFlash(SimTime& time, Files& files, SimTrace& trace) : time_(time), files_(files), trace_(trace) {}

  std::unique_ptr<FlashSurface> NewSurface(const std::string& name, FlashListener& listener) override;

  // Every movie has 100 frames, 25 a second, unless told otherwise.
  void SetMovie(const std::string& path, int frames, int framesPerSecond = 25);
  // The faults. Damaged: no movie and no picture. Without a beginning: its header is right, but it is never seen, and
  // counted by the clock after `refusalTime`.
  void SetDamaged(const std::string& path) { damaged_.insert(path); }
  void SetWithoutBeginning(const std::string& path) { withoutBeginning_.insert(path); }
  // What plays the movies has died: each begins anew, after `returnTime`.
  void Die();

  // How long a movie takes to its first frame, and after a death.
  std::chrono::milliseconds loadingTime{40};
  std::chrono::milliseconds returnTime{1000};
  std::chrono::milliseconds refusalTime{2000};
  // How many frames are told in a row, as on a machine that is held up.
  int framesAtOnce = 1;

  // The surface of that name that was made last; null when it is gone.
  SimSurface* Find(const std::string& name) const;

 private:
  friend class SimSurface;

  struct Movie {
    int frames = 100;
    int framesPerSecond = 25;
  };

  bool IsMovie(const std::string& path) const;

  SimTime& time_;
  Files& files_;
  SimTrace& trace_;
  std::map<std::string, Movie> movies_;
  std::set<std::string> damaged_;
  std::set<std::string> withoutBeginning_;
  std::map<std::string, SimSurface*> surfaces_;
};

class SimSurface : public FlashSurface {
 public:
  SimSurface(SimFlash& flash, std::string name, FlashListener& listener);
  ~SimSurface() override;

  void Put(const std::string& path) override;
  int TotalFrames() const override { return totalFrames_; }
  void SetVariable(const std::string& name, const std::string& value) override;
  void SetLooks(const FlashLooks& looks) override { looks_ = looks; }

  // The file that is seen now.
  const std::string& Shown() const { return shown_; }
  // A variable of the movie that is seen, by its bare name; empty when it was not set.
  std::string Variable(const std::string& name) const;
  const FlashLooks& Looks() const { return shownLooks_; }

 private:
  friend class SimFlash;

  void Begin();
  void Wait(std::chrono::milliseconds time, void (SimSurface::*next)());
  void StopWaiting();
  void Play();
  void TellNext();
  void ShowFile();

  SimFlash& flash_;
  std::string name_;
  FlashListener& listener_;
  std::string path_;
  std::string shown_;
  FlashLooks looks_;
  FlashLooks shownLooks_;
  int totalFrames_ = 0;
  int frame_ = 0;
  std::map<std::string, std::string> variables_;  // of the movie put last
  std::map<std::string, std::string> shownVariables_;
  Scheduler::Id waiting_ = 0;
};
