#include "shell/frmMid.h"

#include "ads/frmAdSett.h"
#include "ads/frmVideoAdSett.h"
#include "output/frmPlayer.h"
#include "platform/Desktop.h"
#include "platform/toolkit/Failures.h"
#include "playlist/frmPlaylist.h"
#include "shell/ConfirmExit.h"

namespace {

enum HotKey { kShowControl = 0, kExit = 1, kShowTaskbar = 2, kShowCursor = 3 };

constexpr struct {
  HotKey id;
  char letter;
} kHotKeys[] = {{kShowControl, 'M'}, {kExit, 'X'}, {kShowTaskbar, 'T'}, {kShowCursor, 'O'}};

}  // namespace

frmMid::frmMid(Station& station) : Form(station.forms, "frmMid", Kind::kOperator), station_(station) {
  Width = ToTwips(720);
  Height = ToTwips(260);
  ThemedButton5.Click.Connect([this] { station_.forms.Get<frmPlaylist>().PlayNext(); });
  ThemedButton6.Click.Connect([this] { station_.forms.Get<frmPlayer>().Player.controls.stop(); });
  mnuPlayList.Click.Connect([this] { station_.forms.Get<frmPlaylist>().Show(); });
  mnuShowCrawlersAd.Click.Connect([this] { mnuShowCrawlersAd_Click(); });
  mnuScorlAsSettings.Click.Connect([this] { station_.forms.Get<frmAdSett>().Show(); });
  mnuShowVideoAd.Click.Connect([this] { mnuShowVideoAd_Click(); });
  mnuVideoAdSettings.Click.Connect([this] { station_.forms.Get<frmVideoAdSett>().Show(); });
  mnuMasking.Click.Connect([this] { mnuMasking_Click(); });
  Picture1.MouseDown.Connect([this](MouseButton) { MoveTo(); });
  Tray.DblClick.Connect([this] { Show(); });
}

void frmMid::Load() {
  station_.stores.SettingsFile();
  LoadSett();
  RegisterRunAtStart();
  Tray.TipText = "Corvanta 5.0";  // older than the title. Meant so.
  for (const auto& key : kHotKeys) {
    Outside().desktop.RegisterHotKey(
        key.id, key.letter, [this, id = key.id] { Handle({.event = "HotKey"}, [this, id] { OnHotKey(id); }); });
  }
  Outside().desktop.WhenStartedAgain([this] { Handle({.event = "StartedAgain"}, [this] { Show(); }); });
  Outside().desktop.SetScreenSaverActive(0);
  Caption = kStandardTitle;
}

bool frmMid::MayUnload() {
  if (AllowClose) return true;
  Hide();
  Tray.Visible = true;
  return false;
}

// The band alone: what the desk's button says of the scroll stays as it was. Meant so.
void frmMid::ShowCrawler(bool show) {
  CrawlerShown = show;
  mnuShowCrawlersAd.Checked = show;
  auto& output = station_.forms.Get<frmPlayer>();
  output.PicAd.Visible = show;
  output.Timer1.Enabled = show;
}

void frmMid::mnuShowCrawlersAd_Click() {
  SkippingFailures([this] { ShowCrawler(!CrawlerShown); });
  station_.stores.SettingsIni.WriteValue("AdSettings", "Show", CrawlerShown ? "True" : "False");
}

// The countdown alone: a break that runs goes on to its end, which starts the countdown again. Meant so.
void frmMid::mnuShowVideoAd_Click() {
  VideoAdShown = !VideoAdShown;
  mnuShowVideoAd.Checked = VideoAdShown;
  SkippingFailures([this] { station_.forms.Get<frmVideoAdSett>().Timer1.Enabled = VideoAdShown; },
                   [this] {
                     if (!VideoAdShown) station_.forms.Unload<frmVideoAdSett>();
                   });
  station_.stores.SettingsIni.WriteValue("VideoAd", "Show", VideoAdShown ? "True" : "False");
}

void frmMid::mnuMasking_Click() {
  auto& output = station_.forms.Get<frmPlayer>();
  if (MaskingOn) {
    output.Unmask();
  } else {
    output.Mask();
  }
  MaskingOn = !MaskingOn;
  mnuMasking.Checked = MaskingOn;
}

void frmMid::RegisterRunAtStart() {
  Desktop& desktop = Outside().desktop;
  desktop.RunAtLogOn("My App", station_.dataFolder.Folder() + "/" + desktop.ProgramName());
}

// Ctrl+T and Ctrl+O only bring back; what they write keeps it so at the next start.
void frmMid::OnHotKey(int id) {
  IniFile& settings = station_.stores.SettingsIni;
  switch (id) {
    case kShowControl:
      Show();
      break;
    case kExit:
      ConfirmExit(*this);
      break;
    case kShowTaskbar:
      Outside().desktop.SetTaskbarVisible(true);
      settings.WriteValue("Settings", "ShowTaskbar", "1");
      break;
    case kShowCursor:
      Outside().desktop.ShowCursor(true);
      settings.WriteValue("Settings", "ShowMouse", "1");
      break;
  }
}
