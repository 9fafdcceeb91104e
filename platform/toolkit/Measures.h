#pragma once

#include <compare>
#include <cstdint>

// A measure on a form: 15 to a pixel at 96 dots per inch.
using Twips = double;

inline constexpr Twips kTwipsPerPixel = 15.0;

// The nearest whole pixel, at most what a coordinate holds. Halves go the same way on both sides of zero, so that a
// crawl steps evenly. The only way from twips to pixels.
int ToPixels(Twips twips);
constexpr Twips ToTwips(int pixels) { return pixels * kTwipsPerPixel; }

struct Colour {
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;

  bool operator==(const Colour&) const = default;
};

inline constexpr Colour kBlack{0, 0, 0};
inline constexpr Colour kWhite{255, 255, 255};
inline constexpr Colour kRed{255, 0, 0};
inline constexpr Colour kButtonFace{240, 240, 240};  // of an opaque form that has no colour of its own

struct PixelSize {
  int width = 0;
  int height = 0;

  bool operator==(const PixelSize&) const = default;
};
