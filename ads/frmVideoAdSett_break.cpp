// The countdown and the break. The sequencer is not told of a break: it acts on the programme's player alone.
#include <limits>

#include "ads/AdFolders.h"
#include "ads/frmVideoAdSett.h"
#include "output/frmPlayer.h"
#include "platform/toolkit/Failures.h"
#include "settings/Numbers.h"

// The count is written each second, so that a restart goes on with it.
void frmVideoAdSett::Timer1_Tick() {
  if (AdTimeCount < std::numeric_limits<std::int16_t>::max()) ++AdTimeCount;
  const std::int64_t whole = std::int64_t{AdTime} * 60;
  txtAdTime.Text = std::to_string(whole - AdTimeCount);
  if (AdTimeCount >= whole) StartBreak();
  station_.stores.SettingsIni.WriteValue("VideoAd", "AdTimeCount", std::to_string(AdTimeCount));
}

// With no number of ads NextAd ends the break before it is begun; what follows pauses and covers the programme all the
// same, and nothing ends that. Meant so.
void frmVideoAdSett::StartBreak() {
  auto& output = station_.forms.Get<frmPlayer>();
  AdTimeCount = 0;
  SkippingFailures([this] { NextAd(); }, [&] { output.Player.controls.pause(); }, [this] { Timer1.Enabled = false; },
                   [&] { output.PicVideoAd.Visible = true; });
}

// The programme was paused and not stopped, so it goes on from the same place. The countdown starts whatever the menu
// says meanwhile.
void frmVideoAdSett::EndBreak() {
  auto& output = station_.forms.Get<frmPlayer>();
  BreakCount = 0;
  SkippingFailures([&] { output.Player.controls.play(); }, [this] { Timer1.Enabled = true; },
                   [&] { output.PicVideoAd.Visible = false; });
}

void frmVideoAdSett::NextAd() {
  ++BreakCount;
  if (Val(CmbAdplay.Text.Get()) < BreakCount) {
    EndBreak();
    return;
  }
  // A tick may find the list half filled, and an ad that is not there would never be over.
  if (AdIndex >= AdCount || AdIndex >= ListAd.Count()) AdIndex = 0;
  ++AdIndex;
  auto& output = station_.forms.Get<frmPlayer>();
  SkippingFailures(
      [this] { ListAd.Select(AdIndex); }, [this] { station_.stores.VideoAdInfoFile(ListAd.Row(AdIndex).text); },
      [&] { output.AdPlayer.URL = VideoOf(ListAd.Row(AdIndex).text); }, [&] { output.AdPlayer.stretchToFit = true; },
      [this] { WriteSetting("LastIndex", std::to_string(AdIndex)); });
}

std::string frmVideoAdSett::VideoOf(const std::string& name) const {
  return AdPath(station_, AdStore::kVideo, name,
                "\\" + station_.stores.VideoAdInfoIni.ReadValue("AdInfo", "FileName", ""));
}
