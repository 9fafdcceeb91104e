#include "platform/qt/forms/look/Colours.h"

namespace {

// Each text keeps a contrast of 4.5 to 1 or better against each ground it stands on: the tests measure it.
constexpr ToneRow kTones[] = {
    {Tone::kGround, "ground", 0xff15191e}, {Tone::kPanel, "panel", 0xff1d232a},
    {Tone::kField, "field", 0xff101418},   {Tone::kStripe, "stripe", 0xff171c22},
    {Tone::kRaised, "raised", 0xff2d3742}, {Tone::kHover, "hover", 0xff3a4753},
    {Tone::kEdge, "edge", 0xff647382},     {Tone::kText, "text", 0xffeef2f5},
    {Tone::kDim, "dim", 0xffa9b5c0},       {Tone::kAccent, "accent", 0xff2566ad},
    {Tone::kOnAir, "onAir", 0xffc62832},   {Tone::kOnColour, "onColour", 0xffffffff},
};

}  // namespace

std::span<const ToneRow> Tones() { return kTones; }

QColor ColourOf(Tone tone) { return QColor(kTones[static_cast<std::size_t>(tone)].colour); }
