#pragma once

#include <string>

class QWindow;

// Gives a window its own WM_CLASS instance, the form's name, so that window managers and scripts can tell the forms
// apart. To be called whenever the window has become a new native one, before it is shown; does nothing without X.
void SetWindowClass(QWindow& window, const std::string& name);

// Has a window that has just been shown stand on every desktop, whichever one is switched to. Does nothing without X.
void StandOnEveryDesktop(QWindow& window);
// Keeps a window that has just been shown out of the desktop's lists of windows. Does nothing without X.
void HideFromTaskbar(QWindow& window);
// Has the window manager keep a window in front of another one, whatever that does; null: on its own again. Does
// nothing without X.
void StandBefore(QWindow& window, QWindow* other);
// What the X server fills a part of the window with that it has not been given yet: pixels that let everything through,
// or nothing, which leaves there what was seen. Does nothing without X.
enum class Background { kNone, kTransparent };
void SetBackground(QWindow& window, Background background);
