#pragma once

#include "platform/qt/forms/Joint.h"
#include "platform/toolkit/TrayIcon.h"

// Shows a form's icon in the notification area, as soon as the desktop has one; without one nothing is shown.
void Bind(Joint& joint, TrayIcon& control);
