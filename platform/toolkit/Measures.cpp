#include "platform/toolkit/Measures.h"

#include <algorithm>
#include <cmath>

#include "platform/WholeNumber.h"

namespace {

// Far beyond any screen, and two of them can still be added up.
constexpr double kFarthest = 1e9;

}  // namespace

int ToPixels(Twips twips) {
  return CutToWhole<int>(std::clamp(std::floor(twips / kTwipsPerPixel + 0.5), -kFarthest, kFarthest));
}
