#pragma once

#include <QWidget>

class MediaPlayer;

// A widget that shows a player's picture, black where there is none. It follows its own size, and stays
// black when the player goes before it.
QWidget* NewPreviewWidget(MediaPlayer& player, QWidget* parent);
