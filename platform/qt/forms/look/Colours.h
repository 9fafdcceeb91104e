#pragma once

#include <QColor>
#include <span>

// What a colour of the operator's forms stands for.
enum class Tone {
  kGround,    // behind everything
  kPanel,     // of a group of controls
  kField,     // of lists and of what can be typed into
  kStripe,    // of every other row
  kRaised,    // of buttons and headings
  kHover,     // of a button under the pointer
  kEdge,      // around fields and buttons
  kText,      // on all of the above
  kDim,       // of what is disabled or only a hint; still to be read on all of the above
  kAccent,    // what is chosen or switched on
  kOnAir,     // what is on the air; nothing else has it
  kOnColour,  // text on the accent and on the colour of what is on the air
};

struct ToneRow {
  Tone tone;
  const char* name;  // in the style sheet, behind an @
  QRgb colour;
};

// Each tone once, in the order of the enum.
std::span<const ToneRow> Tones();
QColor ColourOf(Tone tone);
