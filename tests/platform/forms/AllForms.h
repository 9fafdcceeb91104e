#pragma once

#include <span>

#include "platform/toolkit/Form.h"
#include "settings/Station.h"

// A form that has a layout file.
struct FormRow {
  const char* name;
  Form& (*get)(StationForms& forms);  // loads it where it is not
  bool (*loaded)(const StationForms& forms);
};

// All of them, as the build found them.
std::span<const FormRow> AllForms();
