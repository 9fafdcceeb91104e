#pragma once

class OverlayForm;
class Slider;

// What the desks of overlays and ads share about the sliders that set a size on the air. All sizes are twips.

// The range of the design, which holds until the first move. The slider stands at the size that windows and column come
// up with, so that at rest it tells the truth.
void BeginSizeSlider(Slider& slider, int smallest, int largest);
// The thumb was moved: from now on nothing is larger than the screen, and a thumb beyond its edge goes there.
void EndAtScreen(Slider& slider, int screenPixels);
// Gives the overlay the size at which the sliders stand. One that is beyond sixteen bits leaves it as it is.
void SizeOverlay(OverlayForm& overlay, const Slider& height, const Slider& width);
