#pragma once

// How the on-air windows are painted.
enum class Graphics {
  kSoftware,  // by the processor alone
  kOpenGl,    // by a real graphics card
};

// Sees to it that no desktop setting scales the windows, and looks what drives this machine's graphics and has the
// on-air windows painted that way: a software OpenGL driver costs several times what painting without OpenGL does. Call
// it before the application is made.
Graphics ChooseGraphics();
