// The rotation: which ad comes next, what of it goes into the record, and the sliders that shape the band.
#include <limits>

#include "ads/AdFolders.h"
#include "ads/frmAdSett.h"
#include "ads/frmAdView.h"
#include "output/frmPlayer.h"
#include "platform/Files.h"
#include "platform/toolkit/Failures.h"
#include "settings/Numbers.h"

namespace {

// Counts while it lives.
class Counted {
 public:
  explicit Counted(int& count) : count_(count) { ++count_; }
  ~Counted() { --count_; }
  Counted(const Counted&) = delete;

 private:
  int& count_;
};

}  // namespace

void frmAdSett::ConnectRotation() {
  ListAd.Click.Connect([this] { ListAd_Click(); });
  btnPlay.Click.Connect([this] { btnPlay_Click(); });
  btnPlay.Caption = "Stop";
  btnPlay.Picture = "imgStop";
  for (const Dial& dial : Dials()) {
    dial.slider.Min = dial.least;
    dial.slider.Max = dial.most;
    dial.slider.LargeChange = dial.large;
    dial.slider.Value = dial.start;
    dial.label.Caption = dial.loaded + std::to_string(dial.start);
    (dial.slider.*dial.acts).Connect([this, dial] { Turn(dial); });
  }
}

std::array<frmAdSett::Dial, 4> frmAdSett::Dials() {
  return {{{SldSpeed, lblSpeed, 5, 200, 5, 30, &Slider::Scroll, "Speed: ", "Scorl speed: ", &CurrentAd::CrawlerSpeed,
            "Speed", &frmAdSett::LayNothing},
           {sldHeight, lblHeight, 100, 5000, 1000, 600, &Slider::Scroll,
            "Height: ", "Header height: ", &CurrentAd::CrawlerHeaderHeight, "HeaderHeight", &frmAdSett::LayBoth},
           {sldSide, lblWidth, 100, 5000, 1000, 1500, &Slider::Click, "Side content width: ", "Side content width: ",
            &CurrentAd::CrawlerSideWidth, "SideWidth", &frmAdSett::LaySides},
           {SldAdTop, lblAdTop, 0, 10000, 1000, 0, &Slider::Click,
            "Ad position: ", "Ad position: ", &CurrentAd::CrawlerAdTop, "AdTop", &frmAdSett::LayOutput}}};
}

void frmAdSett::NextAd() {
  station_.stores.SettingsFile();
  const Counted reached(reached_);
  if (AdIndex < std::numeric_limits<std::int16_t>::max()) ++AdIndex;
  if (AdIndex > ListAd.Count()) AdIndex = 1;
  if (ListAd.Count() == 0) {
    EmptyBand();
    return;
  }
  SkippingFailures([this] { ListAd.Select(AdIndex); }, [this] { ListAd_Click(); });
}

// The record keeps its files: the operator may be composing the first ad.
void frmAdSett::EmptyBand() {
  station_.forms.Get<frmAdView>().ViewAd("", "", "", "");
  station_.forms.Get<frmPlayer>().ViewAd("", "", "", "");
}

// The one road by which an ad comes to the screen; an operator's click leaves the rotation where it stands.
void frmAdSett::ListAd_Click() {
  if (ListAd.SelectedItem() == 0) return;
  const CurrentAd& ad = currentAd_;
  SkippingFailures(
      [&] { LoadAda(std::string(SelectedAd())); },
      [&] { station_.forms.Get<frmAdView>().ViewAd(ad.Header, ad.Scorl, ad.Left, ad.Right); },
      [&] { station_.forms.Get<frmPlayer>().ViewAd(ad.Header, ad.Scorl, ad.Left, ad.Right); },
      [&] {
        if (chkView.Ticked()) station_.forms.Get<frmAdView>().Show();
      },
      [&] { station_.stores.SettingsIni.WriteValue("AdSettings", "LastAd", std::to_string(ListAd.SelectedItem())); });
}

// An ad that is not active is not left out: the following one is loaded and shown first, and leaves the shared file
// at its own keys. What then stands in the record is the inactive ad's scrolling picture and its folder, under the
// names and the settings of the following one. Meant so: what is on the air, AdIndex and LastAd all follow from it.
void frmAdSett::LoadAda(const std::string& name) {
  station_.stores.AdInfoFile(name);
  for (std::string* field : {&currentAd_.Header, &currentAd_.Scorl, &currentAd_.Left, &currentAd_.Right,
                             &currentAd_.CrawlerSideWidth, &currentAd_.CrawlerHeaderHeight}) {
    field->clear();
  }
  // Where no ad is active one pass over the list is enough.
  if (Val(Info("Active")) == 0 && reached_ < ListAd.Count()) NextAd();

  const auto inFolder = [&](const std::string& file) { return AdPath(station_, AdStore::kCrawler, name, "\\" + file); };
  const std::string left = Info("Left");
  const std::string right = Info("Right");
  SkippingFailures([&] { FlashHeader.Movie = inFolder(Info("Header")); },
                   [&] { picScorl.LoadPicture(inFolder("scorl.jpg")); }, [&] { FlashLeft.Movie = inFolder(left); },
                   [&] { FlashRight.Movie = inFolder(right); });
  currentAd_.Header = inFolder(Info("Header"));
  currentAd_.Scorl = inFolder("scorl.jpg");
  TakeActive();
  TakeDials();
  const auto isFile = [&](const std::string& file) {
    return !file.empty() && Outside().files.Kind(inFolder(file)) == FileKind::kRegular;
  };
  if (isFile(left)) currentAd_.Left = inFolder(left);
  if (isFile(right)) currentAd_.Right = inFolder(right);
}

void frmAdSett::TakeActive() {
  SkippingFailures([this] {
    const std::int32_t active = RoundHalfEven(StrictNumber(Info("Active")));
    if (active == 0 || active == 1) chkAdActive.Value = active;
  });
}

void frmAdSett::TakeDials() {
  for (const Dial& dial : Dials()) {
    const std::string value = station_.stores.AdInfoIni.ReadValue("Settings", dial.key, "");
    currentAd_.*dial.field = value;
    SkippingFailures([&] { dial.slider.Value = RoundHalfEven(StrictNumber(value)); });
    dial.label.Caption = dial.loaded + value;
  }
}

// Stored for the selected ad, which need not be the one on the air.
void frmAdSett::Turn(const Dial& dial) {
  const std::string ad = ListAd.SelectedItem() > 0 ? SelectedAd() : "";
  const std::string value = std::to_string(dial.slider.Value);
  station_.stores.AdInfoFile(ad);
  SkippingFailures([&] { dial.label.Caption = dial.turned + value; }, [&] { currentAd_.*dial.field = value; },
                   [&] { (this->*dial.lay)(); },
                   [&] {
                     if (!ad.empty()) station_.stores.AdInfoIni.WriteValue("Settings", dial.key, value);
                   });
}

void frmAdSett::LayBoth() {
  station_.forms.Get<frmAdView>().SetHeight();
  station_.forms.Get<frmPlayer>().SetHeight();
}

void frmAdSett::LaySides() {
  auto& preview = station_.forms.Get<frmAdView>();
  preview.FlashRight.Width = sldSide.Value.Get();
  preview.FlashLeft.Width = sldSide.Value.Get();
  LayBoth();
}

void frmAdSett::LayOutput() { station_.forms.Get<frmPlayer>().SetHeight(); }

// Only the scroll stops: the picture stays where it is.
void frmAdSett::btnPlay_Click() {
  AdPlaying = !AdPlaying;
  station_.forms.Get<frmPlayer>().Timer1.Enabled = AdPlaying;
  btnPlay.Caption = AdPlaying ? "Stop" : "Play";
  btnPlay.Picture = AdPlaying ? "imgStop" : "imgPlay";
}
