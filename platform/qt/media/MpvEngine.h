#pragma once

#include "platform/Media.h"

// Makes players on libmpv. Its destructor gives players that are gone a moment to come to rest.
class MpvEngine : public MediaEngine {
 public:
  enum class Decoding { kSoftware, kHardwareWhereThereIs };

  explicit MpvEngine(Decoding decoding) : decoding_(decoding) {}
  ~MpvEngine() override;

  std::unique_ptr<MediaPlayer> NewPlayer(const std::string& name, MediaListener& listener) override;

 private:
  Decoding decoding_;
};
