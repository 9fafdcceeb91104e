#pragma once

#include <functional>
#include <string>

// The desktop that the station runs on. None of these report anything: what cannot be done is left undone.
class Desktop {
 public:
  virtual ~Desktop() = default;

  // The name of the file that this program runs from, without its folder.
  virtual std::string ProgramName() const = 0;
  // Has `command` started at each log-on of this user, under `name`.
  virtual void RunAtLogOn(const std::string& name, const std::string& command) = 0;
  // Calls `again` whenever the program of this station is started once more while it runs; that start ends by itself.
  virtual void WhenStartedAgain(std::function<void()> again) = 0;
  // Calls `pressed` whenever Ctrl and `letter` (A to Z) are pressed, whatever has the keyboard. Does nothing where
  // another program holds the key.
  virtual void RegisterHotKey(int id, char letter, std::function<void()> pressed) = 0;
  // 0 keeps the screen from blanking and saving.
  virtual void SetScreenSaverActive(int value) = 0;
  virtual void SetTaskbarVisible(bool show) = 0;
  // Counts up or down, from 0; the cursor is blank while the count is below 0.
  virtual void ShowCursor(bool show) = 0;
  // Darkens the screens until a key or the mouse is touched; nothing of the station stops.
  virtual void TurnOffMonitor() = 0;
  // Starts a program beside the station, in its own folder; one that is named with ".exe" may stand there without.
  virtual void StartTool(const std::string& path) = 0;
  // Open what the desktop has to set the volume, and the date and the time; nothing where it has none. The station goes
  // on beside it.
  virtual void OpenVolumePanel() = 0;
  virtual void OpenDatePanel() = 0;
  // Shows the operator guide in a window.
  virtual void ShowGuide() = 0;
  // Ends the process at once; no form is unloaded. Returns in the virtual world only.
  virtual void EndProcess() = 0;
};
