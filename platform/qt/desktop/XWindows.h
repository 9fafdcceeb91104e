#pragma once

#include <initializer_list>
#include <string>
#include <vector>

#include "platform/qt/desktop/Xlib.h"

// What the windows of other programs tell of themselves. Any of them may go between two calls: use it inside an
// XErrorTrap.

using XWindows = std::vector<Window>;

// The list of windows, atoms or numbers that a property holds; empty when there is none.
std::vector<unsigned long> ReadList(Display* display, Window window, const char* property, Atom type);

// The windows that a window manager looks after, and the root's own children.
XWindows TopWindows(Display* display);

bool IsMapped(Display* display, Window window);

// Asks the window manager, which looks after a window from its showing on, for something about it, or about the whole
// desktop where it is the root: a message of that name with up to five numbers.
void AskManager(Display* display, Window window, const char* what, std::initializer_list<long> numbers);
