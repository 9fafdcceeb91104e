#pragma once

#include "overlay/OverlayForm.h"

// The station's logo.
class FrmLogoShow : public OverlayForm {
 public:
  explicit FrmLogoShow(Station& station) : OverlayForm(station, kLogo) {}
};
