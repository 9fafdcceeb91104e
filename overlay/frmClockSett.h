#pragma once

#include "overlay/LibraryForm.h"

// The library of the clock.
class frmClockSett : public LibraryForm {
 public:
  explicit frmClockSett(Station& station);

  CommandButton btnSetAsClock{*this, "btnSetAsClock"};
  CommandButton btnCreateList{*this, "btnCreateList"};  // does nothing

  // Restores the box as well.
  void LoadSett() override;
};
