#pragma once

#include <QTimer>

// The panels of the desktop. Those that are hidden are listed on the screen's root window, so that the next run of the
// program can bring back what one that was killed has hidden.
class Taskbar {
 public:
  Taskbar();

  // Hides every panel, also one that comes up later, or brings back those that were hidden by this.
  void SetVisible(bool visible);

 private:
  void HideAll() const;
  void ShowHidden() const;

  QTimer later_;
};
