#pragma once

#include <QByteArray>
#include <QCborArray>
#include <QString>

// What the station and the program that plays its movies tell each other: each message is a list, its first entry what
// it is about. A slot is a place that shows movies, by a number of the station's; a serial is one put, never used
// twice.
namespace wire {

// Station to player.
inline constexpr char kSlot[] = "slot";  // slot, width, height; with the memory for its pictures, or 0, 0 for unseen
inline constexpr char kPut[] = "put";    // slot, serial, path, fill, seeThrough, silent
inline constexpr char kSet[] = "set";    // slot, serial, name, value
inline constexpr char kSilence[] = "silence";  // slot, silent: of what plays there from now on
inline constexpr char kClear[] = "clear";      // slot
inline constexpr char kEnd[] = "end";          // slot
// Player to station.
inline constexpr char kUp[] = "up";              // slot, serial: its first picture is there
inline constexpr char kBad[] = "bad";            // slot, serial: it cannot be shown
inline constexpr char kFrames[] = "frames";      // slot, serial, frame, and so on
inline constexpr char kPictures[] = "pictures";  // slot, and so on: a new picture waits

inline QByteArray Message(const QCborArray& parts) { return QCborValue(parts).toCbor(); }
inline QCborArray Parts(const QByteArray& message) { return QCborValue::fromCbor(message).toArray(); }

}  // namespace wire
