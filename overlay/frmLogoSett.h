#pragma once

#include "overlay/LibraryForm.h"

// The library of the logo.
class frmLogoSett : public LibraryForm {
 public:
  explicit frmLogoSett(Station& station);

  CommandButton BtnSetLogo{*this, "BtnSetLogo"};
};
