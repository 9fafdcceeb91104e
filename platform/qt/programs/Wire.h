#pragma once

#include <QByteArray>
#include <QCborArray>
#include <QString>

// What the station and every program beside it tell each other: each message is a list, its first entry what it is
// about. A slot is a place that shows movies or pages, by a number of the station's.
namespace wire {

// The descriptor that a program finds the station at.
inline constexpr int kStation = 3;

// Station to program.
inline constexpr char kSlot[] = "slot";  // slot, width, height; with the memory for its pictures, or 0, 0 for unseen
inline constexpr char kEnd[] = "end";    // slot
// Program to station.
inline constexpr char kPictures[] = "pictures";  // slot, and so on: a new picture waits

inline QByteArray Message(const QCborArray& parts) { return QCborValue(parts).toCbor(); }
inline QCborArray Parts(const QByteArray& message) { return QCborValue::fromCbor(message).toArray(); }

}  // namespace wire
