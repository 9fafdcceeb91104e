#include "ads/frmVideoAdSett.h"

#include "ads/AdFolders.h"
#include "platform/toolkit/Failures.h"
#include "settings/Helpers.h"
#include "settings/Numbers.h"

namespace {

constexpr char kSection[] = "VideoAd";
constexpr int kLongestBreak = 999;  // minutes

}  // namespace

frmVideoAdSett::frmVideoAdSett(Station& station)
    : Form(station.forms, "frmVideoAdSett", Kind::kOperator), station_(station) {
  Caption = "Video Ad settinhs";
  Width = 960 * kTwipsPerPixel;
  Height = 640 * kTwipsPerPixel;
  // The machine's sound goes on the air.
  AdView.settings.mute = true;
  AdView.stretchToFit = true;
  Timer1.Tick.Connect([this] { Timer1_Tick(); });
  ListAd.Click.Connect([this] { ListAd_Click(); });
  CmbAdplay.Click.Connect([this] { WriteSetting("AdPlay", CmbAdplay.Text); });
  CmbBreak.Click.Connect([this] { CmbBreak_Click(); });
  vkCommand1.Click.Connect([this] { vkCommand1_Click(); });
  vkCommand2.Click.Connect([this] { vkCommand2_Click(); });
  btnDelete.Click.Connect([this] { btnDelete_Click(); });
}

void frmVideoAdSett::Load() {
  station_.stores.SettingsFile();
  SettleUnfinishedVideoAds(station_);
  LoadSett();
}

bool frmVideoAdSett::MayUnload() {
  Hide();
  return false;
}

void frmVideoAdSett::WriteSetting(const char* key, const std::string& value) {
  station_.stores.SettingsIni.WriteValue(kSection, key, value);
}

void frmVideoAdSett::LoadSett() {
  const auto setting = [this](const char* key) { return station_.stores.SettingsIni.ReadValue(kSection, key, ""); };
  LoadVideoAdList(station_, station_.dataFolder.Path("\\VideoAd\\"), ListAd);
  AdCount = ListAd.Count();
  CmbAdplay.Clear();
  CmbAdplay.Text = setting("AdPlay");
  CmbBreak.Text = setting("AdTime");
  TakeStoredNumbers();
  for (std::int32_t ads = 1; ads <= AdCount; ++ads) CmbAdplay.AddItem(std::to_string(ads));
  // What is there already stays, and the numbers come once more. Meant so.
  for (int minutes = 1; minutes <= kLongestBreak; ++minutes) CmbBreak.AddItem(std::to_string(minutes));
}

// What is no number, or does not fit, leaves its value as it was.
void frmVideoAdSett::TakeStoredNumbers() {
  const auto stored = [this](const char* section, const char* key) {
    return station_.stores.SettingsIni.ReadValue(section, key, "");
  };
  SkippingFailures([&] { AdTime = RoundHalfEven(StrictNumber(stored(kSection, "AdTime"))); },
                   [&] { AdTimeCount = SixteenBits(RoundHalfEven(StrictNumber(stored(kSection, "AdTimeCount")))); },
                   [&] {
                     // Sixty times the row, which most lists do not have: after a start the first break begins with
                     // the first ad. Meant so.
                     const std::int32_t index = RoundHalfEven(Val(stored("Videoad", "LastIndex")) * 60);
                     if (index >= 0) AdIndex = index;
                   });
}

void frmVideoAdSett::CmbBreak_Click() {
  AdTime = 0;
  AdTimeCount = 0;
  SkippingFailures([this] { AdTime = RoundHalfEven(StrictNumber(CmbBreak.Text.Get())); },
                   [this] { WriteSetting("AdTime", CmbBreak.Text); });
}
