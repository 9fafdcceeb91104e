#pragma once

#include <deque>
#include <functional>
#include <map>
#include <string>

#include "platform/Desktop.h"
#include "platform/Dialogs.h"
#include "platform/Files.h"
#include "platform/Pictures.h"
#include "platform/sim/SimTrace.h"

// An operator who answers as the test has told; one who was told nothing presses OK or No, or cancels.
class SimDialogs : public Dialogs {
 public:
  explicit SimDialogs(SimTrace& trace) : trace_(trace) {}

  Answer MsgBox(const std::string& text, const std::string& title, Buttons buttons) override;
  std::string InputBox(const std::string& prompt, const std::string& title) override;
  std::string BrowseFolder(const std::string& title, const std::string& start) override;

  // What the next boxes of each kind are answered.
  std::deque<Answer> answers;
  std::deque<std::string> inputs;
  std::deque<std::string> folders;
  // Runs while a box stands, before it is answered: the place to let time pass.
  std::function<void()> whileStanding;

 private:
  SimTrace& trace_;
};

class SimDesktop : public Desktop {
 public:
  explicit SimDesktop(SimTrace& trace) : trace_(trace) {}

  void RunAtLogOn(const std::string& name, const std::string& command) override;
  void RegisterHotKey(int id, char letter, std::function<void()> pressed) override;
  void SetScreenSaverActive(int value) override;
  void SetTaskbarVisible(bool show) override;
  void ShowCursor(bool show) override;
  void EndProcess() override;

  void PressCtrl(char letter);

  bool taskbarVisible = true;
  int cursorCount = 0;
  bool ended = false;

 private:
  SimTrace& trace_;
  std::map<char, std::function<void()>> hotKeys_;
};

class SimPictures : public Pictures {
 public:
  explicit SimPictures(const Files& files) : files_(files) {}

  std::optional<PixelSize> Size(const std::string& path) const override;

  // The pictures among the files of the virtual disk; every other file is none.
  std::map<std::string, PixelSize> sizes;

 private:
  const Files& files_;
};
