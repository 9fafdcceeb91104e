#include "platform/toolkit/LookColour.h"

LookColour LookColour::OfBgr(std::uint32_t number) {
  const auto byte = [number](int shift) { return static_cast<std::uint8_t>(number >> shift & 0xFF); };
  return Colour{byte(0), byte(8), byte(16)};
}
