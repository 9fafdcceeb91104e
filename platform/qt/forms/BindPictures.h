#pragma once

#include "platform/qt/forms/Joint.h"
#include "platform/toolkit/FlashBox.h"
#include "platform/toolkit/Panes.h"

class QFrame;
struct Surfaces;

// Show the picture of a control in its frame: the whole of it, in its own proportions, as large as the frame allows.
// What is no picture, a movie for instance, leaves the frame empty.
void Bind(Joint& joint, PictureBox& control, QFrame& widget, const Surfaces& surfaces);
void Bind(Joint& joint, FlashBox& control, QFrame& widget, const Surfaces& surfaces);
