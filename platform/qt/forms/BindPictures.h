#pragma once

#include "platform/qt/forms/Joint.h"
#include "platform/toolkit/FlashBox.h"
#include "platform/toolkit/Panes.h"

class QFrame;
class ShowsFrames;
struct Surfaces;

// Show the picture of a control in its frame: the whole of it, in its own proportions, as large as the frame allows.
// What is no picture leaves the frame empty. A movie plays there without its sound.
void Bind(Joint& joint, PictureBox& control, QFrame& widget, const Surfaces& surfaces);
void Bind(Joint& joint, FlashBox& control, QFrame& widget, const Surfaces& surfaces);

// The pictures of a player or a movie over the whole of a widget; black where there is none.
void ShowFrames(Joint& joint, ShowsFrames* source, QWidget& widget, const Surfaces& surfaces);
