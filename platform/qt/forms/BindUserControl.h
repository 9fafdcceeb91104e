#pragma once

#include "platform/qt/forms/Joint.h"
#include "platform/toolkit/UserControl.h"

class QFrame;
struct Surfaces;

// Fills the frame with the control's own layout, and tells the control its size and what happens on its bare surface.
void Bind(Joint& joint, UserControl& control, QFrame& widget, const Surfaces& surfaces);
