#pragma once

#include <QList>
#include <QRect>
#include <cmath>

#include "platform/WholeNumber.h"
#include "platform/toolkit/Measures.h"

// Twips of the forms and pixels of the screen meet here alone.
inline int Pixels(Twips twips) { return CutToWhole<int>(std::round(twips / kTwipsPerPixel)); }
inline Twips ToTwips(int pixels) { return pixels * kTwipsPerPixel; }

// Where a window goes that is to stand at `wanted`: there, if enough of its upper edge is on a screen to take hold of;
// otherwise on the nearest screen, wholly or with its left top corner. It is never larger than all screens together.
// The screens are the areas that windows may take; with none of them the window stays where it is.
QRect Reachable(const QRect& wanted, const QList<QRect>& screens);
