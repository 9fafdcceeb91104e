#pragma once

#include "platform/Flash.h"

// Surfaces of the real world. They know a movie's length by its header and leave what is seen to the scene, which shows
// pictures.
class QtFlash : public FlashEngine {
 public:
  std::unique_ptr<FlashSurface> NewSurface(const std::string& name, FlashListener& listener) override;
};
