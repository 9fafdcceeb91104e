#pragma once

#include <QWidget>

class ShowsFrames;

// A widget that shows the picture of a player, movie or page, black where there is none. It follows its own size, and
// stays black when what it shows goes before it. `source` may be null.
QWidget* NewFrameWidget(ShowsFrames* source, QWidget* parent);
