// The menu, the tray and the status bar. What can be switched on and off stands in one table, which the menu and the
// status bar share.
#include <algorithm>
#include <type_traits>

#include "ads/frmAdSett.h"
#include "ads/frmFlashAdSett.h"
#include "ads/frmLeftSideAdSett.h"
#include "ads/frmVideoAdSett.h"
#include "channels/frmOnlineRadio.h"
#include "channels/frmOnlineTV.h"
#include "output/frmPlayer.h"
#include "overlay/FrmLogoShow.h"
#include "overlay/frmBreakingNews.h"
#include "overlay/frmBreakingNewsSett.h"
#include "overlay/frmClockSett.h"
#include "overlay/frmClockShow.h"
#include "overlay/frmFlashAdShow.h"
#include "overlay/frmLogoSett.h"
#include "overlay/frmStikerSett.h"
#include "overlay/frmStikerShow.h"
#include "platform/Desktop.h"
#include "platform/toolkit/Failures.h"
#include "playlist/frmPlaylist.h"
#include "settings/TimeTexts.h"
#include "shell/CNetConn.h"
#include "shell/ConfirmExit.h"
#include "shell/frmAbout.h"
#include "shell/frmMid.h"
#include "shell/frmSettings.h"
#include "webfeed/FrmWeb.h"
#include "webfeed/frmPageSettings.h"

namespace {

using Lamp = StatusBar::Lamp;

// Spelled so on screen. Meant so.
constexpr char kOffline[] = "Your PC is not cinnected to internet. Please try again later.";

constexpr int kTimePanel = 1;
constexpr int kInternetPanel = 9;

std::string FlagText(bool on) { return on ? "True" : "False"; }

template <class F>
void ShowForm(StationForms& forms) {
  forms.Get<F>().Show();
}

}  // namespace

template <class F>
void frmMid::ShowOrUnload(bool show) {
  if (show) {
    station_.forms.Get<F>().Show();
  } else {
    station_.forms.Unload<F>();
  }
}

struct frmMid::Toggle {
  MenuItem frmMid::*entry;
  bool frmMid::*flag;
  const char* section;
  const char* key;
  void (frmMid::*turn)(bool on);
  int panel;  // of the status bar; 0 has none
  const char* words;
  Lamp lit;
};

std::span<const frmMid::Toggle> frmMid::Toggles() {
  static constexpr Toggle kToggles[] = {
      {&frmMid::mnuShowCrawlersAd, &frmMid::CrawlerShown, "AdSettings", "Show", &frmMid::ShowCrawler, 2, "Crawlers Ad ",
       Lamp::kOnAir},
      {&frmMid::mnuShowVideoAd, &frmMid::VideoAdShown, "VideoAd", "Show", &frmMid::RunVideoAds, 3, "Video Ad ",
       Lamp::kOn},
      {&frmMid::mnuLeftsideAd, &frmMid::LeftSideAdShown, "LeftSideAd", "Show", &frmMid::ShowLeftSideAd, 0, "",
       Lamp::kNone},
      {&frmMid::mnuShowFlashAd, &frmMid::FlashAdShown, "FlashAd", "Show", &frmMid::ShowFlashAd, 4, "Flash Ad ",
       Lamp::kOnAir},
      {&frmMid::mnuShowClock, &frmMid::ClockShown, "Clock", "Show", &frmMid::ShowOrUnload<frmClockShow>, 5,
       "Show clock ", Lamp::kOnAir},
      {&frmMid::mnuShowWebFeed, &frmMid::WebFeedShown, "WebFeed", "Show", &frmMid::ShowOrUnload<FrmWeb>, 6,
       "Show web feed ", Lamp::kOnAir},
      {&frmMid::mnuShowLogo, &frmMid::LogoShown, "logo", "Show", &frmMid::ShowOrUnload<FrmLogoShow>, 7, "Show logo ",
       Lamp::kOnAir},
      {&frmMid::mnuShowStiker, &frmMid::StikerShown, "Stiker", "Show", &frmMid::ShowOrUnload<frmStikerShow>, 8,
       "Show Stiker ", Lamp::kOnAir},
      {&frmMid::mnuBreakingNewsShow, &frmMid::BreakingNewsShown, "BreakingNews", "Show",
       &frmMid::ShowOrUnload<frmBreakingNews>, 0, "", Lamp::kNone},
      {&frmMid::mnuOutputWindow, &frmMid::OutputShown, "Output", "Show", &frmMid::ShowOrUnload<frmPlayer>, 0, "",
       Lamp::kNone},
      {&frmMid::mnuMonitor2, &frmMid::OnMonitor2, "Output", "Monitor2", nullptr, 0, "", Lamp::kNone},
  };
  return kToggles;
}

void frmMid::ConnectMenu() {
  for (const Toggle& toggle : Toggles()) {
    const auto choose = [this, &toggle] { Choose(toggle); };
    // The web feed is switched on line alone, off too. Meant so.
    const bool needsNetwork = toggle.flag == &frmMid::WebFeedShown;
    (this->*toggle.entry).Click.Connect([this, choose, needsNetwork] { needsNetwork ? WhenOnline(choose) : choose(); });
  }
  mnuMasking.Click.Connect([this] { mnuMasking_Click(); });

  enum class Needs { kNothing, kNetwork };
  const struct {
    MenuItem& entry;
    void (*show)(StationForms& forms);
    Needs needs = Needs::kNothing;
  } forms[] = {
      {mnuPlayList, ShowForm<frmPlaylist>},
      {mnuScorlAsSettings, ShowForm<frmAdSett>},
      {mnuVideoAdSettings, ShowForm<frmVideoAdSett>},
      {mnuBreakingNewsSettings, ShowForm<frmBreakingNewsSett>},
      {mnuFlashAd, ShowForm<frmFlashAdSett>},
      {mnuLeftsideAdsettings, ShowForm<frmLeftSideAdSett>},
      {mnuFlashLogo, ShowForm<frmLogoSett>},
      {MnuStikerSettings, ShowForm<frmStikerSett>},
      {mnuClockSettings, ShowForm<frmClockSett>},
      {mnuTVChannel, ShowForm<frmOnlineTV>, Needs::kNetwork},
      {nmuRadioChannel, ShowForm<frmOnlineRadio>, Needs::kNetwork},
      {mnuSettings, ShowForm<frmSettings>},
      {mnuAbout2, ShowForm<frmAbout>},
      {mnuTrayAbout, ShowForm<frmAbout>},
  };
  const auto connect = [this](MenuItem& entry, Needs needs, const std::function<void()>& act) {
    entry.Click.Connect([this, needs, act] {
      if (needs == Needs::kNetwork) {
        WhenOnline(act);
      } else {
        act();
      }
    });
  };
  for (const auto& row : forms) {
    connect(row.entry, row.needs, [this, show = row.show] { show(station_.forms); });
  }

  const struct {
    MenuItem& entry;
    const char* path;
    Needs needs;
  } tools[] = {
      {mnuSWF_0, "\\Tools\\SWF Easy.exe", Needs::kNothing},
      {mnuSWF_1, "\\Tools\\FlashMaker.exe", Needs::kNothing},
      {mnuSWF_2, "\\Tools\\SWFText.exe", Needs::kNothing},
      {mnuVideoConvert_0, "\\Tools\\DVDConverter.exe", Needs::kNothing},
      {mnuVideoConvert_1, "\\Tools\\FormatFactory.exe", Needs::kNothing},
      {mnuTeamviewer, "\\Tools\\Tolvex.exe", Needs::kNetwork},
      {mnuQuicksupport, "\\Tools\\Tolvex.exe", Needs::kNetwork},
  };
  for (const auto& row : tools) {
    connect(row.entry, row.needs,
            [this, path = station_.dataFolder.Path(row.path)] { Outside().desktop.StartTool(path); });
  }

  mnuWebfeedSetttings.Click.Connect([this] { WhenOnline([this] { ShowForm<frmPageSettings>(station_.forms); }); });
  mnuTurnOffMonitor.Click.Connect([this] { Outside().desktop.TurnOffMonitor(); });
  mnuHideMe.Click.Connect([this] { Hide(); });
  mnuShow.Click.Connect([this] { Show(); });
  mnuHelp2.Click.Connect([this] { Outside().desktop.ShowGuide(); });
  for (MenuItem* exit : {&mnuExit, &mnuTrayExit}) {
    exit->Click.Connect([this] { ConfirmExit(*this); });
  }
  Tray.DblClick.Connect([this] { Show(); });
  Tray.MouseDown.Connect([this](MouseButton button) {
    if (button == MouseButton::kRight) PopUp(mnuTray);
  });
  Timer1.Tick.Connect([this] {
    Panel.SetPanel(kTimePanel, TimeText(Outside().clock.Now()));
    UpdateStatusPanels();
  });
}

void frmMid::Mark(bool frmMid::*flag, bool on) {
  this->*flag = on;
  for (const Toggle& toggle : Toggles()) {
    if (toggle.flag == flag) (this->*toggle.entry).Checked = on;
  }
}

// A feature that fails ends up ticked and written all the same: the next start tries it again. The output window goes
// to its monitor behind both entries that are about it, and is made anew, hidden, where it was unloaded. Meant so.
void frmMid::Choose(const Toggle& toggle) {
  const bool on = !(this->*toggle.flag);
  Mark(toggle.flag, on);
  SkippingFailures(
      [&] {
        if (toggle.turn != nullptr) (this->*toggle.turn)(on);
      },
      [&] { station_.stores.SettingsIni.WriteValue(toggle.section, toggle.key, FlagText(on)); },
      [&] {
        if (toggle.flag == &frmMid::OutputShown || toggle.flag == &frmMid::OnMonitor2) MoveTo();
      });
}

// The band alone: what the desk's button says of the scroll stays as it was. Meant so.
void frmMid::ShowCrawler(bool show) {
  auto& output = station_.forms.Get<frmPlayer>();
  output.PicAd.Visible = show;
  output.Timer1.Enabled = show;
}

// The countdown alone: a break that runs goes on to its end, which starts the countdown again. The form refuses to
// unload and hides, and keeps its count. Meant so.
void frmMid::RunVideoAds(bool run) {
  station_.forms.Get<frmVideoAdSett>().Timer1.Enabled = run;
  if (!run) station_.forms.Unload<frmVideoAdSett>();
}

void frmMid::RestoreShown(bool frmMid::*flag) {
  const Toggle& toggle = *std::ranges::find(Toggles(), flag, &Toggle::flag);
  Mark(flag, ShowKeySays(toggle.section));
  if (this->*flag) (this->*toggle.turn)(true);
}

// The form refuses to unload and hides. Meant so.
void frmMid::ShowFlashAd(bool show) {
  if (show) station_.forms.Get<frmFlashAdShow>().Show();
  station_.forms.Get<frmFlashAdSett>().TimerFlash.Enabled = show;
  if (show) return;
  station_.forms.Unload<frmFlashAdShow>();
  station_.forms.Unload<frmFlashAdSett>();
}

// Switched off, the rotation goes on in the hidden column. Nothing has narrowed the programme, and nothing does. Meant
// so.
void frmMid::ShowLeftSideAd(bool show) {
  auto& output = station_.forms.Get<frmPlayer>();
  output.PicSide.Visible = show;
  if (show) {
    auto& ads = station_.forms.Get<frmLeftSideAdSett>();
    ads.Show();
    ads.Hide();
    ads.TimerFlash.Enabled = true;
    output.SideAd();
  } else {
    output.Player.Width = output.Width.Get();
    output.Player.Left = 0;
  }
}

void frmMid::OnTopSet() {
  const auto comeForward = [this]<class F>(const char* section, std::type_identity<F>) {
    if (ShowKeySays(section)) station_.forms.Get<F>().win.OnTop = true;
  };
  SkippingFailures([&] { comeForward("logo", std::type_identity<FrmLogoShow>()); },
                   [&] { comeForward("Clock", std::type_identity<frmClockShow>()); },
                   [&] { comeForward("Stiker", std::type_identity<frmStikerShow>()); },
                   [&] { comeForward("FlashAd", std::type_identity<frmFlashAdShow>()); },
                   [&] { comeForward("WebFeed", std::type_identity<FrmWeb>()); });
}

void frmMid::mnuMasking_Click() {
  auto& output = station_.forms.Get<frmPlayer>();
  if (MaskingOn) {
    output.Unmask();
  } else {
    output.Mask();
    OnTopSet();
  }
  MaskingOn = !MaskingOn;
  mnuMasking.Checked = MaskingOn;
}

bool frmMid::netCon() { return CNetConn(Outside().network).IsConnected(); }

void frmMid::WhenOnline(const std::function<void()>& work) {
  if (netCon()) {
    work();
  } else {
    MsgBox(kOffline);
  }
}

void frmMid::UpdateStatusPanels() {
  const auto tell = [this](int panel, const std::string& words, bool on, Lamp lit) {
    Panel.SetPanel(panel, words + FlagText(on), on ? lit : Lamp::kOff);
  };
  for (const Toggle& toggle : Toggles()) {
    if (toggle.panel != 0) tell(toggle.panel, toggle.words, this->*toggle.flag, toggle.lit);
  }
  tell(kInternetPanel, "Internet ", netCon(), Lamp::kOn);
}
