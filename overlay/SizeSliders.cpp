#include "overlay/SizeSliders.h"

#include <algorithm>

#include "overlay/OverlayForm.h"
#include "platform/toolkit/Failures.h"
#include "platform/toolkit/Widgets.h"
#include "settings/Numbers.h"

namespace {

constexpr int kStep = 1000;
constexpr int kSizeAtFirst = 3000;

}  // namespace

void BeginSizeSlider(Slider& slider, int smallest, int largest) {
  slider.Min = smallest;
  slider.Max = largest;
  slider.LargeChange = kStep;
  slider.Value = kSizeAtFirst;
}

void EndAtScreen(Slider& slider, int screenPixels) {
  slider.Max = static_cast<int>(ToTwips(screenPixels));
  slider.Value = std::min(slider.Value.Get(), slider.Max.Get());
}

void SizeOverlay(OverlayForm& overlay, const Slider& height, const Slider& width) {
  SkippingFailures([&] { overlay.SetSize(SixteenBits(height.Value), SixteenBits(width.Value)); });
}
