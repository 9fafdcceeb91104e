#pragma once

#include "platform/qt/scene/OnAirStack.h"

class PictureLoader;
class QtScheduler;

// What all items of the on-air windows share; it outlives them.
struct Scene {
  QtScheduler& scheduler;
  PictureLoader& pictures;
  OnAirStack stack{};
};
