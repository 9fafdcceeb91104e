#pragma once

#include <string>

class QWindow;

// Gives a window its own WM_CLASS instance, the form's name, so that window managers and scripts can tell the forms
// apart. To be called whenever the window has become a new native one, before it is shown; does nothing without X.
void SetWindowClass(QWindow& window, const std::string& name);
