#pragma once

#include <QList>
#include <QRect>

// Where a window goes that is to stand at `wanted`: there, if enough of its upper edge is on a screen to take hold of;
// otherwise on the nearest screen, wholly or with its left top corner. It is never larger than all screens together.
// The screens are the areas that windows may take; with none of them the window stays where it is.
QRect Reachable(const QRect& wanted, const QList<QRect>& screens);
