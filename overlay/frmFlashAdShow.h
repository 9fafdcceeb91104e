#pragma once

#include "overlay/OverlayForm.h"

// The flash ad, which opens empty: its rotation brings it the first movie, and the key colour with it.
class frmFlashAdShow : public OverlayForm {
 public:
  explicit frmFlashAdShow(Station& station) : OverlayForm(station, kFlashAd) {}
};
