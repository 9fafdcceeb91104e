#pragma once

#include <cstdint>

class Form;

// Makes a form a layered one, whatever other bits its style has; what is seen of it stays as it is, since no opacity is
// handed on. Gives 0, or 1 for an alpha that no window has (below 0 or above 255), with nothing done then.
std::int32_t SetPageAlpha(Form& form, std::int16_t Alpha);
