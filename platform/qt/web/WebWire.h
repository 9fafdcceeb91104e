#pragma once

#include "platform/qt/programs/Wire.h"

// What the station and the program that shows its pages tell each other, beside what every such program is told.
namespace wire {

// Station to browser.
inline constexpr char kProfile[] = "profile";  // folder, whether it is to be thrown away first
inline constexpr char kOpen[] = "open";        // slot, serial, address; a serial is never used twice
inline constexpr char kReload[] = "reload";    // slot
inline constexpr char kLooks[] = "looks";      // slot, zoom in per cent, sound, scroll bars
inline constexpr char kMouse[] = "mouse";      // slot, kind, x, y, button, buttons, modifiers
inline constexpr char kWheel[] = "wheel";      // slot, x, y, to the right, down, buttons, modifiers
inline constexpr char kKey[] = "key";          // slot, kind, key, modifiers, text
// Browser to station.
inline constexpr char kStatus[] = "status";  // slot, serial of what was opened, text
inline constexpr char kLoaded[] = "loaded";  // slot, serial

}  // namespace wire
