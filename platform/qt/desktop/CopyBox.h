#pragma once

#include <string>

#include "platform/Dialogs.h"

// Copies a file on a thread "copy", which the caller waits for: timers tick on and boxes are answered, but no other
// act of the operator is let through. After half a second a box tells how far it is, with a button to cancel.
CopyResult CopyBehindBox(const std::string& from, const std::string& to);
