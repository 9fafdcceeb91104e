#pragma once

#include "platform/toolkit/Form.h"
#include "platform/toolkit/Widgets.h"
#include "settings/Station.h"

// What the program is, for the operator who is asked for it on the telephone.
class frmAbout : public Form {
 public:
  explicit frmAbout(Station& station);

  CommandButton btnLoadScorl{*this, "btnLoadScorl"};  // closes the form

 protected:
  void Load() override;
};
