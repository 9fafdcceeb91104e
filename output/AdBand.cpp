#include "output/AdBand.h"

#include "platform/toolkit/Failures.h"
#include "settings/Numbers.h"

namespace {

// Only "jpg" in small letters is taken for a picture here; what any other file is, its surface finds out.
bool IsJpg(const std::string& path) { return path.ends_with("jpg"); }

}  // namespace

void AdBand::View(const std::string& header, const std::string& scroll, const std::string& left,
                  const std::string& right) {
  if (IsJpg(header)) {
    // The height of the scrolling picture, not of the header's own. Meant so: Lay sets it anew.
    SkippingFailures([&] { on_.headerSize.LoadPicture(header); },
                     [&] { on_.header.Height = on_.picture.Height.Get(); });
  }
  SkippingFailures([&] { on_.header.Movie = header; }, [&] { on_.picture.LoadPicture(scroll); });
  LoadPanel(on_.left, on_.leftSize, left);
  LoadPanel(on_.right, on_.rightSize, right);
}

void AdBand::LoadPanel(FlashBox& panel, PictureBox& size, const std::string& path) {
  if (IsJpg(path)) SkippingFailures([&] { size.LoadPicture(path); }, [&] { panel.Width = size.Width.Get(); });
  if (!path.empty()) SkippingFailures([&] { panel.Movie = path; });
  panel.Visible = !path.empty();
}

void AdBand::Lay(Twips width, Twips rightEdge) {
  const Twips sideWidth = Val(ad_.CrawlerSideWidth);
  on_.header.Height = Val(ad_.CrawlerHeaderHeight);
  on_.left.Width = sideWidth;
  on_.right.Width = sideWidth;
  on_.header.Left = 0;
  on_.header.Top = 0;
  on_.header.Width = width;
  on_.picture.Top = on_.header.Height.Get();
  on_.picture.Left = 0;
  on_.left.Height = Height();
  on_.left.Left = 0;
  on_.left.Top = 0;
  on_.right.Height = Height();
  on_.right.Left = rightEdge - sideWidth;
  on_.right.Top = 0;
}

void AdBand::Step() { on_.picture.Left = on_.picture.Left - Val(ad_.CrawlerSpeed); }
