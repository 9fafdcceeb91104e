#pragma once

#include <cstdint>

#include "platform/toolkit/Measures.h"

// A colour that is fixed, or one that the system has for a purpose and the look of the operator's forms gives.
struct LookColour {
  enum class System { kNone, kWindow, kButtonFace, kButtonText, kHighlight, kHighlightText, kWindowText };

  LookColour() = default;
  LookColour(Colour colour) : fixed(colour) {}
  LookColour(System purpose) : system(purpose) {}
  // From a whole number that holds blue, green and red, red in its lowest byte.
  static LookColour OfBgr(std::uint32_t number);

  bool operator==(const LookColour&) const = default;

  Colour fixed;
  System system = System::kNone;
};
