#pragma once

#include <string>

#include "platform/toolkit/UserControl.h"
#include "platform/toolkit/Widgets.h"

// Four lists for a time of day of twelve hours, each of which may be typed into. The lists of minutes and seconds begin
// with "01": "00" is only what stands there at first, and comes back by typing alone.
class TimePicker : public UserControl {
 public:
  TimePicker(Form& form, std::string name);
  TimePicker(Control& container, std::string name);
  std::string_view Layout() const override { return "TimePicker"; }

  Label Label8{*this, "Label8"};
  ComboBox CmbHH{*this, "CmbHH"};
  ComboBox CmbMM{*this, "CmbMM"};
  ComboBox cmbSS{*this, "cmbSS"};
  ComboBox cmbAMPM{*this, "cmbAMPM"};

  // "12:00:00 AM": the four texts as they stand, whatever was typed there.
  std::string GetTime() const;

 private:
  void FillLists();
};
