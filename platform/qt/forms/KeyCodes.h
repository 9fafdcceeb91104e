#pragma once

#include <Qt>
#include <cstdint>

class QKeyEvent;

// The number that forms know a key by: a letter's or a figure's own, those of the control keys from a table; 0 for a
// key that has none.
std::int16_t KeyCodeOf(const QKeyEvent& key);
// The letter that the key writes, as one byte; 0 where it writes none.
std::int16_t KeyAsciiOf(const QKeyEvent& key);
// What is held, as the sum that forms know it by.
std::int16_t ShiftOf(Qt::KeyboardModifiers held);
