#pragma once

#include <string>

#include "output/CurrentAd.h"
#include "platform/toolkit/FlashBox.h"
#include "platform/toolkit/Panes.h"

// The crawler's surfaces as the output window and the preview both have them: the header on top, the scrolling picture
// under it, and a panel over each end. The scrolling text passes behind the panels.
class AdBand {
 public:
  struct Surfaces {
    FlashBox& header;
    PictureBox& picture;  // takes the size of its picture
    FlashBox& left;
    FlashBox& right;
    // Never shown: they tell the size of a picture. One may serve for all.
    PictureBox& headerSize;
    PictureBox& leftSize;
    PictureBox& rightSize;
  };

  // The surfaces and the record must outlive it.
  AdBand(const Surfaces& surfaces, const CurrentAd& ad) : on_(surfaces), ad_(ad) {}

  // Loads one ad: four paths, of which `left` and `right` may be empty. A file that cannot be loaded leaves its surface
  // as it was. Lay must follow: the sizes set here have no lasting effect.
  void View(const std::string& header, const std::string& scroll, const std::string& left, const std::string& right);
  // Lays the surfaces out from the record of the current ad, and puts the picture back to the start of its pass.
  // `rightEdge` is where the right panel ends.
  void Lay(Twips width, Twips rightEdge);

  // Of picture and header together.
  Twips Height() const { return on_.picture.Height + on_.header.Height; }
  // Whether the picture has left at the left edge; just out of sight it has not.
  bool HasLeft() const { return -on_.picture.Width > on_.picture.Left; }
  // Moves the picture by the speed of the current ad.
  void Step();

 private:
  void LoadPanel(FlashBox& panel, PictureBox& size, const std::string& path);

  Surfaces on_;
  const CurrentAd& ad_;
};
