#include "ads/frmAdView.h"

#include "platform/Windows.h"

namespace {

constexpr Twips kAboveScreenBottom = 1000;

}  // namespace

frmAdView::frmAdView(Station& station)
    : Form(station.forms, "frmAdView", Kind::kPreview),
      station_(station),
      band_({.header = Flash,
             .picture = pic,
             .left = FlashLeft,
             .right = FlashRight,
             .headerSize = PicSize,
             .leftSize = PicLeft,
             .rightSize = PicRight},
            station.Shared<CurrentAd>()) {
  Caption = "Ad's preview";
  Width = 640 * kTwipsPerPixel;
  Left = (Outside().windows.ScreenSize().width * kTwipsPerPixel - Width) / 2;
  for (Control* helper : {&PicSize, &PicLeft, &PicRight}) helper->Visible = false;
  // The machine's sound goes on the air.
  for (FlashBox* box : {&Flash, &FlashLeft, &FlashRight}) box->Silent = true;
  FlashLeft.Visible = false;
  FlashRight.Visible = false;
  Timer1.Tick.Connect([this] { Timer1_Tick(); });
  pic.FellBack.Connect([this] { SetHeight(); });
}

void frmAdView::Load() {
  win.OnTop = true;
  win.RecordWindowPosTo = station_.dataFolder.Path("\\Window.ini");
}

void frmAdView::ViewAd(const std::string& header, const std::string& scorl, const std::string& left,
                       const std::string& right) {
  band_.View(header, scorl, left, right);
  SetHeight();
}

// The gap under the band plays no part: nothing but the band is in this window.
void frmAdView::SetHeight() {
  band_.Lay(Width, Width);
  Height = band_.Height() + kPreviewFrame;
  Top = Outside().windows.ScreenSize().height * kTwipsPerPixel - Height - kAboveScreenBottom;
}

void frmAdView::Timer1_Tick() {
  if (!band_.HasLeft()) band_.Step();
}
