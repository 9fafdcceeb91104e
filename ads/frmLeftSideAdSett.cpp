#include "ads/frmLeftSideAdSett.h"

#include "output/frmPlayer.h"
#include "platform/toolkit/Failures.h"
#include "settings/Numbers.h"

namespace {

// At first the list is one level too high, and with the ad switched off nothing is loaded: the list of movies is empty
// then until a category is clicked. Meant so.
constexpr RotationKind kKind = {
    .form = "frmLeftSideAdSett",
    .caption = "Left side Ad settings",
    .section = "LeftSideAd",
    .folder = "\\Media\\LeftSideAd",
    .listedAtLoad = "\\Media",
    .filter = "LeftSideAd file|*.swf;",
    .loadsSettings = RotationKind::LoadsSettings::kWhenOn,
    .deletedMovie = RotationKind::DeletedMovie::kLeavesRotation,
};

}  // namespace

frmLeftSideAdSett::frmLeftSideAdSett(Station& station) : MovieRotation(station, kKind) {}

void frmLeftSideAdSett::PutOnAir(const std::string& movie) {
  FlashPreview.Movie = movie;
  station_.forms.Get<frmPlayer>().FlashSideAd.Movie = movie;
}

// An output window that is made anew has nothing in its column. A movie that is there is left alone: a put of it would
// begin it anew.
void frmLeftSideAdSett::KeepOnAir() {
  FlashBox& column = station_.forms.Get<frmPlayer>().FlashSideAd;
  if (column.Movie.Get() != FlashPreview.Movie.Get()) column.Movie = FlashPreview.Movie.Get();
}

void frmLeftSideAdSett::LoadSize() {
  LoadSlider(SlidWidth, "Width");
  auto& output = station_.forms.Get<frmPlayer>();
  SkippingFailures([&] { output.PicSide.Width = StrictNumber(Setting("Width")); });
  output.SideAd();
}

void frmLeftSideAdSett::Resize() {
  auto& output = station_.forms.Get<frmPlayer>();
  output.PicSide.Width = SlidWidth.Value.Get();
  output.SideAd();
}
