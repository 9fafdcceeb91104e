#include "platform/qt/desktop/QtDesktop.h"

#include <unistd.h>

#include <QCursor>
#include <QGuiApplication>
#include <filesystem>

#include "platform/qt/desktop/AutoStart.h"
#include "platform/qt/desktop/Panels.h"
#include "platform/qt/desktop/Tools.h"
#include "platform/qt/desktop/Xlib.h"

std::string QtDesktop::ProgramName() const {
  return std::filesystem::read_symlink("/proc/self/exe").filename().string();
}

void QtDesktop::RunAtLogOn(const std::string& name, const std::string& command) { WriteAutoStart(name, command); }

void QtDesktop::RegisterHotKey(int id, char letter, std::function<void()> pressed) {
  hotKeys_.Register(id, letter, std::move(pressed));
}

void QtDesktop::SetScreenSaverActive(int value) {
  if (value == 0) {
    screenAwake_.Keep();
  } else {
    screenAwake_.Release();
  }
}

void QtDesktop::SetTaskbarVisible(bool show) { taskbar_.SetVisible(show); }

void QtDesktop::ShowCursor(bool show) {
  const bool blankBefore = cursorCount_ < 0;
  cursorCount_ += show ? 1 : -1;
  const bool blank = cursorCount_ < 0;
  if (blank && !blankBefore) QGuiApplication::setOverrideCursor(QCursor(Qt::BlankCursor));
  if (!blank && blankBefore) QGuiApplication::restoreOverrideCursor();
}

void QtDesktop::TurnOffMonitor() { screenAwake_.Darken(); }

void QtDesktop::StartTool(const std::string& path) { StartDetached(path); }

void QtDesktop::OpenVolumePanel() { OpenPanel(PanelOf::kVolume); }

void QtDesktop::OpenDatePanel() { OpenPanel(PanelOf::kDate); }

void QtDesktop::ShowGuide() { guide_.Show(); }

void QtDesktop::EndProcess() {
  // What the store has written has taken its place on the disk already; the kernel keeps it past this process.
  if (Display* display = XDisplay()) XFlush(display);  // the panels that have just been brought back
  _exit(0);
}
