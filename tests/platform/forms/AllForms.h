#pragma once

#include <span>

#include "platform/toolkit/Form.h"

// A form that has a layout file.
struct FormRow {
  const char* name;
  Form& (*get)(Forms& forms);
};

// All of them, as the build found them.
std::span<const FormRow> AllForms();
