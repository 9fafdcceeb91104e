#pragma once

#include "controls/TimePicker.h"
#include "platform/toolkit/Form.h"
#include "settings/Station.h"
#include "webfeed/Pre.h"

// A form of the tests alone: two of each of the station's own controls that are made of others, and a control that
// bears the name of one of their parts.
class frmOwn : public Form {
 public:
  explicit frmOwn(Station& station) : Form(station.forms, "frmOwn", Kind::kOperator) {}

  TimePicker First{*this, "First"};
  TimePicker Second{*this, "Second"};
  Pre Page{*this, "Page"};
  Pre Other{*this, "Other"};
  ComboBox CmbHH{*this, "CmbHH"};
};
