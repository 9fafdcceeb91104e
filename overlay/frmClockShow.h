#pragma once

#include "overlay/OverlayForm.h"

// The clock.
class frmClockShow : public OverlayForm {
 public:
  explicit frmClockShow(Station& station) : OverlayForm(station, kClock) {}
};
