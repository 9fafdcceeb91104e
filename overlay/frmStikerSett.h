#pragma once

#include "overlay/LibraryForm.h"

// The library of the sticker.
class frmStikerSett : public LibraryForm {
 public:
  explicit frmStikerSett(Station& station);

  CommandButton BtnSetLogo{*this, "BtnSetLogo"};
};
