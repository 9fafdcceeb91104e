#pragma once

#include "ads/MovieRotation.h"

// The movies of the flash ad, a small window over the picture. The rotation waits for the end of the movie that is
// there.
class frmFlashAdSett : public MovieRotation {
 public:
  explicit frmFlashAdSett(Station& station);

  Slider sldHeight{*this, "sldHeight"};
  CommandButton Command1{*this, "Command1"};  // deletes the category without a question

 protected:
  FlashBox& Watched() override;
  void PutOnAir(const std::string& movie) override;
  void LoadSize() override;
  void Resize() override;
  void SetTransparent(bool transparent) override;
};
