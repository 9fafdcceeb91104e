#include "ads/frmScrlAd.h"

#include "platform/Windows.h"
#include "settings/FormHelpers.h"

namespace {

constexpr Twips kStep = 60;

}  // namespace

frmScrlAd::frmScrlAd(Station& station) : Form(station.forms, "frmScrlAd", Kind::kOnAir) {
  Height = 100 * kTwipsPerPixel;
  Timer1.Tick.Connect([this] { Timer1_Tick(); });
  pic.MouseDown.Connect([this](MouseButton) { DragForm(*this); });
}

void frmScrlAd::Load() {
  Width = Outside().windows.ScreenSize().width * kTwipsPerPixel;
  CentreForm(*this);
}

void frmScrlAd::Timer1_Tick() {
  if (-pic.Width > pic.Left) {
    pic.Left = Width - 1;
    return;
  }
  pic.Left = pic.Left - kStep;
}
