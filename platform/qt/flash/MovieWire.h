#pragma once

#include "platform/qt/programs/Wire.h"

// What the station and the program that plays its movies tell each other, beside what every such program is told. A
// serial is one put, never used twice.
namespace wire {

// Station to player.
inline constexpr char kPut[] = "put";          // slot, serial, path, fill, seeThrough, silent
inline constexpr char kSet[] = "set";          // slot, serial, name, value
inline constexpr char kSilence[] = "silence";  // slot, silent: of what plays there from now on
inline constexpr char kClear[] = "clear";      // slot
// Player to station.
inline constexpr char kUp[] = "up";          // slot, serial: its first picture is there
inline constexpr char kBad[] = "bad";        // slot, serial: it cannot be shown
inline constexpr char kFrames[] = "frames";  // slot, serial, frame, and so on

}  // namespace wire
