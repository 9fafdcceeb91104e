#include "webfeed/mdlPageTransparent.h"

#include "platform/toolkit/Form.h"

std::int32_t SetPageAlpha(Form& form, std::int16_t Alpha) {
  if (Alpha < 0 || Alpha > 255) return 1;
  form.ExtendedStyle = form.ExtendedStyle | kLayered;
  return 0;
}
