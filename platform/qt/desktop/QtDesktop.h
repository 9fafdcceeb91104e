#pragma once

#include <functional>

#include "platform/Desktop.h"
#include "platform/qt/desktop/GuideWindow.h"
#include "platform/qt/desktop/HotKeys.h"
#include "platform/qt/desktop/RunSignal.h"
#include "platform/qt/desktop/ScreenAwake.h"
#include "platform/qt/desktop/Taskbar.h"

// The desktop through X and the services of the session. What is missing there is left out without a word, and nothing
// here waits for it.
class QtDesktop : public Desktop {
 public:
  // `folder` is the station's.
  explicit QtDesktop(const std::string& folder) : runSignal_(folder) {}

  // Tells another run of this station that it was started again; false when none listens yet.
  bool TellOtherRun() const { return runSignal_.Tell(); }

  std::string ProgramName() const override;
  void RunAtLogOn(const std::string& name, const std::string& command) override;
  void WhenStartedAgain(std::function<void()> again) override { runSignal_.Listen(std::move(again)); }
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

 private:
  RunSignal runSignal_;
  HotKeys hotKeys_;
  ScreenAwake screenAwake_;
  Taskbar taskbar_;
  GuideWindow guide_;
  int cursorCount_ = 0;
};
