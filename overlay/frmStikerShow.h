#pragma once

#include "overlay/OverlayForm.h"

// The sticker.
class frmStikerShow : public OverlayForm {
 public:
  explicit frmStikerShow(Station& station) : OverlayForm(station, kStiker) {}
};
