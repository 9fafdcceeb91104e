#pragma once

#include "platform/Media.h"

// Makes players on libmpv, which starts only where numbers are plain (SettleLocale). Its destructor gives players that
// are gone a moment to come to rest.
class MpvEngine : public MediaEngine {
 public:
  ~MpvEngine() override;

  std::unique_ptr<MediaPlayer> NewPlayer(const std::string& name, MediaListener& listener) override;
};
