#pragma once

#include "output/cMonitors.h"

class Form;

// Moves a form between displays. It keeps its size; all arithmetic is in whole pixels.

// Where the form's window stands, in pixels.
PixelRect WindowRect(const Form& form);

// Puts the form in the middle of the work area of monitor `index`, unless it is on that monitor already: then it is
// left exactly where it is. A form outside all displays stays put. Fails when there is no such monitor.
void MoveToMonitor(Form& form, const cMonitors& monitors, int index);

// Makes a maximised form normal, and puts it in the middle of the monitor's work area. A form larger than the work area
// begins at its corner and overhangs at the right and at the bottom.
void CentreOnMonitor(Form& form, const cMonitor& monitor);
