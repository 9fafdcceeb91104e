#pragma once

#include "ads/MovieRotation.h"

// The movies of the column at the left of the picture. The rotation waits for the end of the movie in the preview,
// which counts on while the form is hidden; the column follows it.
class frmLeftSideAdSett : public MovieRotation {
 public:
  explicit frmLeftSideAdSett(Station& station);

 protected:
  FlashBox& Watched() override { return FlashPreview; }
  void PutOnAir(const std::string& movie) override;
  void KeepOnAir() override;
  void LoadSize() override;
  void Resize() override;
  void SetTransparent(bool) override {}  // the column always is
};
