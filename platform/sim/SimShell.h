#pragma once

#include <chrono>
#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>

#include "platform/Desktop.h"
#include "platform/Dialogs.h"
#include "platform/Files.h"
#include "platform/Network.h"
#include "platform/Pictures.h"
#include "platform/sim/SimTrace.h"

class SimFiles;
class SimTime;

// An operator who answers as the test has told; one who was told nothing presses OK or No, or cancels.
class SimDialogs : public Dialogs {
 public:
  SimDialogs(SimTrace& trace, SimTime& time, SimFiles& files) : trace_(trace), time_(time), files_(files) {}

  Answer MsgBox(const std::string& text, const std::string& title, Buttons buttons) override;
  std::string InputBox(const std::string& prompt, const std::string& title) override;
  std::string BrowseFolder(const std::string& title, const std::string& start) override;
  std::string OpenFile(const std::string& title, const std::string& filter) override;
  CopyResult CopyFile(const std::string& from, const std::string& to) override;

  // What the next boxes of each kind are answered.
  std::deque<Answer> answers;
  std::deque<std::string> inputs;
  std::deque<std::string> folders;
  std::deque<std::string> files;
  // How long a copy takes: ticks run meanwhile.
  std::chrono::nanoseconds copyTakes = std::chrono::milliseconds(100);
  // The operator cancels the next copy so long after its start, if it still runs and its box stands.
  std::optional<std::chrono::nanoseconds> cancelsCopyAfter;
  // Runs while a box stands, before it is answered: the place to let time pass.
  std::function<void()> whileStanding;

 private:
  SimTrace& trace_;
  SimTime& time_;
  SimFiles& files_;
};

class SimDesktop : public Desktop {
 public:
  explicit SimDesktop(SimTrace& trace) : trace_(trace) {}

  std::string ProgramName() const override { return programName; }
  void RunAtLogOn(const std::string& name, const std::string& command) override;
  void WhenStartedAgain(std::function<void()> again) override { startedAgain_ = std::move(again); }
  void RegisterHotKey(int id, char letter, std::function<void()> pressed) override;
  void SetScreenSaverActive(int value) override;
  void SetTaskbarVisible(bool show) override;
  void ShowCursor(bool show) override;
  void TurnOffMonitor() override;
  void StartTool(const std::string& path) override;
  void OpenVolumePanel() override;
  void OpenDatePanel() override;
  void ShowGuide() override;
  void EndProcess() override;

  void PressCtrl(char letter);
  void StartAgain() {
    if (startedAgain_) startedAgain_();
  }

  std::string programName = "corvanta";
  bool hasPanels = true;
  bool taskbarVisible = true;
  int cursorCount = 0;
  bool ended = false;

 private:
  SimTrace& trace_;
  std::map<char, std::function<void()>> hotKeys_;
  std::function<void()> startedAgain_;
};

// A network cable that the test plugs in and out.
class SimNetwork : public Network {
 public:
  explicit SimNetwork(SimTrace& trace) : trace_(trace) {}

  NetworkState Query() const override { return state; }
  void HangUp(const std::string& name) override { trace_.Add("hang up \"" + name + "\""); }

  void SetOnline(bool online) { state = online ? NetworkState{true, NetworkState::kLan, "eth0"} : NetworkState{}; }

  NetworkState state{true, NetworkState::kLan, "eth0"};

 private:
  SimTrace& trace_;
};

class SimPictures : public Pictures {
 public:
  explicit SimPictures(const Files& files) : files_(files) {}

  std::optional<PixelSize> Size(const std::string& path) const override;

  // The pictures among the files of the virtual disk; every other file is none.
  std::map<std::string, PixelSize> sizes;
  // Of these nothing but the header can be read.
  std::set<std::string> undecodable;

 private:
  const Files& files_;
};
