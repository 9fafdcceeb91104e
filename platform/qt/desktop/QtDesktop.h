#pragma once

#include <functional>

#include "platform/Desktop.h"
#include "platform/qt/desktop/GuideWindow.h"
#include "platform/qt/desktop/HotKeys.h"
#include "platform/qt/desktop/ScreenAwake.h"
#include "platform/qt/desktop/Taskbar.h"

// The desktop through X and the services of the session. What is missing there is left out without a word, and nothing
// here waits for it.
class QtDesktop : public Desktop {
 public:
  std::string ProgramName() const override;
  void RunAtLogOn(const std::string& name, const std::string& command) override;
  void RegisterHotKey(int id, char letter, std::function<void()> pressed) override;
  void SetScreenSaverActive(int value) override;
  void SetTaskbarVisible(bool show) override;
  void ShowCursor(bool show) override;
  void TurnOffMonitor() override;
  void StartTool(const std::string& path) override;
  void ShowGuide() override;
  void EndProcess() override;

 private:
  HotKeys hotKeys_;
  ScreenAwake screenAwake_;
  Taskbar taskbar_;
  GuideWindow guide_;
  int cursorCount_ = 0;
};
