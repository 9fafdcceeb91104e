#pragma once

#include <optional>
#include <string>

#include "platform/toolkit/Measures.h"

// What can be told of a picture file without decoding it.
class Pictures {
 public:
  virtual ~Pictures() = default;

  // Width and height in pixels, from the file's header; nothing when no file of that very name is there
  // (Files::Resolve), or it is no picture.
  virtual std::optional<PixelSize> Size(const std::string& path) const = 0;
};
