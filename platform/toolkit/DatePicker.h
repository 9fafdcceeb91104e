#pragma once

#include "platform/Clock.h"
#include "platform/toolkit/Control.h"
#include "platform/toolkit/Settable.h"

// A date or a time of day that the operator picks. Setting the value raises the change, from code too.
class DatePicker : public Control {
 public:
  DatePicker(Form& form, std::string name);
  std::string_view Kind() const override { return "DatePicker"; }

  Settable<DateTime> Value;
  Event<> Change;
};
