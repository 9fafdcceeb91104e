#include "platform/qt/desktop/ScreenPower.h"

#include "platform/qt/desktop/Xlib.h"

namespace {

bool HasPower(Display* display) {
  int event = 0, error = 0;
  return display != nullptr && DPMSQueryExtension(display, &event, &error) != 0;
}

}  // namespace

void ScreenPower::Hold() {
  Display* display = XDisplay();
  if (display == nullptr) return;
  const XErrorTrap trap(display);
  XSetScreenSaver(display, 0, 0, DontPreferBlanking, DontAllowExposures);
  XResetScreenSaver(display);
  if (HasPower(display)) DPMSDisable(display);
}

void ScreenPower::Release() {
  Display* display = XDisplay();
  if (display == nullptr) return;
  const XErrorTrap trap(display);
  XSetScreenSaver(display, -1, -1, DefaultBlanking, DefaultExposures);
  if (HasPower(display)) DPMSEnable(display);
}

void ScreenPower::Darken() {
  Display* display = XDisplay();
  if (!HasPower(display)) return;
  const XErrorTrap trap(display);
  DPMSEnable(display);
  DPMSForceLevel(display, DPMSModeOff);
}

bool ScreenPower::Dark() const {
  Display* display = XDisplay();
  CARD16 level = DPMSModeOn;
  unsigned char enabled = 0;
  return HasPower(display) && DPMSInfo(display, &level, &enabled) != 0 && enabled != 0 && level != DPMSModeOn;
}
