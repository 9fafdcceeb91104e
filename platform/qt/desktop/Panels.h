#pragma once

// What a panel of the desktop sets.
enum class PanelOf { kVolume, kDate };

// Starts the desktop's own panel for it, or else one that serves on every desktop: the first that is installed.
// Nothing happens where none is.
void OpenPanel(PanelOf subject);
