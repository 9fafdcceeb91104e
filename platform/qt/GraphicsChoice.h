#pragma once

// Has the on-air windows painted by the processor alone, whatever graphics the machine has, and sees to it that no
// desktop setting scales any window. Call it before the application is made.
void ChooseGraphics();
