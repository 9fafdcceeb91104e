#pragma once

#include "platform/qt/forms/Joint.h"
#include "platform/toolkit/StatusBar.h"

class QStatusBar;
struct Surfaces;

// Fills a status bar with one field for each panel, in a row, or large and in rows of four where the layout gives it
// the look `board`. A panel with a lamp is one.
void Bind(Joint& joint, StatusBar& control, QStatusBar& widget, const Surfaces& surfaces);
