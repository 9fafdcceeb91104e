#pragma once

#include "platform/Pictures.h"

// Picture files through Qt's readers.
class QtPictures : public Pictures {
 public:
  std::optional<PixelSize> Size(const std::string& path) const override;
};
