#include "ads/frmAdSett.h"

#include "ads/AdFolders.h"
#include "ads/frmAdView.h"
#include "platform/Clock.h"
#include "platform/toolkit/Failures.h"
#include "settings/Numbers.h"

namespace {

// A box that holds something else than 1 or 0 stays as it was.
void Take(CheckBox& box, double value) {
  if (value == 0 || value == 1) box.Value = static_cast<int>(value);
}

}  // namespace

frmAdSett::frmAdSett(Station& station)
    : Form(station.forms, "frmAdSett", Kind::kOperator), station_(station), currentAd_(station.Shared<CurrentAd>()) {
  Caption = "Crawlers Ad settings";
  Width = 1100 * kTwipsPerPixel;
  Height = 760 * kTwipsPerPixel;
  chkAdActive.Value = 1;
  dpStartDate.Value = Outside().clock.Now();
  dpEndDate.Value = Outside().clock.Now();
  ConnectStore();
  ConnectRotation();
  for (const auto& [box, key] : {std::pair(&chkView, "AutoView"), std::pair(&chkShowAd, "ShowAd")}) {
    box->Click.Connect([this, box = box, key = key] {
      station_.stores.SettingsIni.WriteValue("AdSettings", key, std::to_string(box->Value));
    });
  }
  btnView.Click.Connect([this] { btnView_Click(); });
}

void frmAdSett::Load() {
  station_.stores.SettingsFile();
  ReloadList();
  win.RecordWindowPosTo = station_.dataFolder.Path("\\Window.ini");
  LoadSett();
  // Whatever ad was on the air last, the one after it is the second of the list. Meant so.
  AdIndex = 1;
  AdPlaying = true;
}

bool frmAdSett::MayUnload() {
  Hide();
  return false;
}

void frmAdSett::ReloadList() { LoadAdList(station_, station_.dataFolder.Path("\\Ads\\"), ListAd); }

std::string frmAdSett::Info(const char* key) const { return station_.stores.AdInfoIni.ReadValue("Info", key, ""); }

void frmAdSett::LoadSett() {
  const auto setting = [this](const char* key) { return station_.stores.SettingsIni.ReadValue("AdSettings", key, ""); };
  Take(chkView, Val(setting("AutoView")));
  Take(chkShowAd, Val(setting("ShowAd")));
  const auto inList = [this](double index) { return index >= 1 && index <= ListAd.Count(); };
  SkippingFailures([&] { AdIndex = 1; },
                   [&] {
                     const std::int32_t last = RoundHalfEven(StrictNumber(setting("LastAd")));
                     if (inList(last)) AdIndex = static_cast<std::int16_t>(last);
                   },
                   [&] { ListAd.Select(AdIndex); }, [&] { ListAd_Click(); });
}

void frmAdSett::btnView_Click() {
  if (!HasHeaderAndScorl()) return;
  auto& preview = station_.forms.Get<frmAdView>();
  preview.Show();
  preview.ViewAd(currentAd_.Header, currentAd_.Scorl, currentAd_.Left, currentAd_.Right);
}
