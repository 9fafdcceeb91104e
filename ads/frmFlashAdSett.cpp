#include "ads/frmFlashAdSett.h"

#include "overlay/SizeSliders.h"
#include "overlay/frmFlashAdShow.h"
#include "overlay/mdlFlash.h"

namespace {

constexpr RotationKind kKind = {
    .form = "frmFlashAdSett",
    .caption = "Flash Ad settings",
    .section = "FlashAd",
    .folder = "\\Media\\FlashAd",
    .listedAtLoad = "\\Media\\FlashAd",
    .filter = "FlashAd file|*.swf;",
    .loadsSettings = RotationKind::LoadsSettings::kAlways,
    .deletedMovie = RotationKind::DeletedMovie::kStopsRotation,
};

}  // namespace

// The preview stays empty: the window itself shows what is on. Meant so.
frmFlashAdSett::frmFlashAdSett(Station& station) : MovieRotation(station, kKind) {
  chkTransparent.Value = 1;  // as each movie is put on the air
  ConnectSlider(sldHeight, "Height", &PixelSize::height);
  // The rotation goes on meanwhile. Meant so.
  Command1.Click.Connect([this] { library_.DeleteCategory(); });
}

FlashBox& frmFlashAdSett::Watched() { return station_.forms.Get<frmFlashAdShow>().Flash; }

void frmFlashAdSett::PutOnAir(const std::string& movie) {
  auto& window = station_.forms.Get<frmFlashAdShow>();
  LoadFlashInto(window.Flash, movie, window);
}

void frmFlashAdSett::LoadSize() {
  LoadSlider(sldHeight, "Height");
  LoadSlider(SlidWidth, "Width");
}

void frmFlashAdSett::Resize() { SizeOverlay(station_.forms.Get<frmFlashAdShow>(), sldHeight, SlidWidth); }

void frmFlashAdSett::SetTransparent(bool transparent) {
  SetFormTransparent(station_.forms.Get<frmFlashAdShow>(), transparent);
}
