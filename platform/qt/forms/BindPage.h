#pragma once

#include "platform/qt/forms/Joint.h"
#include "platform/toolkit/BrowserControl.h"

class QFrame;
struct Surfaces;

// The page over the whole of the frame; the operator's mouse, wheel and keys reach it.
void Bind(Joint& joint, BrowserControl& control, QFrame& widget, const Surfaces& surfaces);
