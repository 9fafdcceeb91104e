#pragma once

#include <QPointer>
#include <QTextBrowser>

// The operator guide, out of the program's own resources, in a window.
class GuideWindow {
 public:
  ~GuideWindow();

  // Brings the window forward where it stands already.
  void Show();

 private:
  QPointer<QTextBrowser> window_;
};
