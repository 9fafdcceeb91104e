#pragma once

#include <QString>

class QApplication;
class QWidget;

// The scale of spaces, in pixels: 0, 4, 8, 12, 16, 24. These two stand where a layout says nothing.
inline constexpr int kSpaceBetween = 8;
inline constexpr int kSpaceAround = 12;

// Puts the look of the operator's forms on all windows of the program. Before the first one is made.
void WearLook(QApplication& application);

// Gives the widgets of a form's window what the look has for them: icons and texts of empty lists.
void Dress(QWidget& window, const QString& form);

// What a widget that is a lamp tells from across the room.
enum class Lamp { kOff, kOn, kOnAir };
void Light(QWidget& widget, Lamp lamp);
