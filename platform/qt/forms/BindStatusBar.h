#pragma once

#include "platform/qt/forms/Joint.h"
#include "platform/toolkit/StatusBar.h"

class QStatusBar;
struct Surfaces;

// Fills a status bar with one field for each panel. The first one is as wide as its text, the others share the rest. A
// panel with a lamp is one.
void Bind(Joint& joint, StatusBar& control, QStatusBar& widget, const Surfaces& surfaces);
