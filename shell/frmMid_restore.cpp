// The walk over Settings.ini that brings the station back on air. Its order is part of the design: the output window
// exists, sized and hidden, from the first step.
#include "ads/frmAdSett.h"
#include "ads/frmLeftSideAdSett.h"
#include "ads/frmVideoAdSett.h"
#include "output/frmPlayer.h"
#include "overlay/frmFlashAdShow.h"
#include "platform/Desktop.h"
#include "platform/toolkit/Failures.h"
#include "playlist/frmPlaylist.h"
#include "settings/Numbers.h"
#include "shell/frmMid.h"
#include "webfeed/FrmWeb.h"

void frmMid::LoadSett() {
  SkippingFailures([this] { RestoreMonitor(); }, [this] { RestoreShown(&frmMid::LogoShown); },
                   [this] { RestoreShown(&frmMid::ClockShown); }, [this] { RestoreShown(&frmMid::StikerShown); },
                   [this] { RestoreShown(&frmMid::OutputShown); }, [this] { RestoreBreakingNews(); },
                   [this] { RestoreCrawler(); }, [this] { RestoreFlashAd(); }, [this] { RestoreLeftSideAd(); },
                   [this] { RestoreWebFeed(); }, [this] { RestoreVideoAd(); }, [this] { RestorePlaylist(); },
                   [this] { RestoreDesktop(); });
}

bool frmMid::ShowKeySays(const std::string& section, const std::string& key) {
  return station_.stores.SettingsIni.ReadValue(section, key, "") == "True";
}

void frmMid::RestoreMonitor() {
  Mark(&frmMid::OnMonitor2, ShowKeySays("Output", "Monitor2"));
  if (!OnMonitor2) {
    station_.forms.Unload<frmPlayer>();
    station_.forms.Unload<frmAdSett>();
  }
  MoveTo();
}

void frmMid::MoveTo() { station_.forms.Get<frmPlayer>().MoveTo(OnMonitor2 ? 2 : 1); }

// The entry is ticked and the flag stays off: the first use of the entry shows the strip again, and only the second one
// takes it off the air. Meant so.
void frmMid::RestoreBreakingNews() {
  RestoreShown(&frmMid::BreakingNewsShown);
  BreakingNewsShown = false;
}

void frmMid::RestoreCrawler() {
  Mark(&frmMid::CrawlerShown, ShowKeySays("AdSettings"));
  ShowCrawler(CrawlerShown);
  // The desk comes to life either way: its load puts the ad that was there last into the band, seen or not.
  station_.forms.Get<frmAdSett>().Hide();
}

void frmMid::RestoreFlashAd() {
  RestoreShown(&frmMid::FlashAdShown);
  if (!FlashAdShown) station_.forms.Unload<frmFlashAdShow>();
}

void frmMid::RestoreLeftSideAd() {
  Mark(&frmMid::LeftSideAdShown, ShowKeySays("LeftSideAd"));
  ShowLeftSideAd(LeftSideAdShown);
  if (!LeftSideAdShown) station_.forms.Unload<frmLeftSideAdSett>();
}

// On line or not: the page comes when it can.
void frmMid::RestoreWebFeed() {
  RestoreShown(&frmMid::WebFeedShown);
  if (!WebFeedShown) station_.forms.Unload<FrmWeb>();
}

// The countdown goes on from where it stood. With the breaks off their form waits until it is needed.
void frmMid::RestoreVideoAd() {
  Mark(&frmMid::VideoAdShown, ShowKeySays("VideoAd"));
  if (!VideoAdShown) return;
  auto& breaks = station_.forms.Get<frmVideoAdSett>();
  breaks.Timer1.Enabled = true;
  breaks.Hide();
}

// Shown and hidden at once: that brings the form to life, and its load resumes play.
void frmMid::RestorePlaylist() {
  if (station_.stores.SettingsIni.ReadValue("Playlist", "LastPlay", "") != "1") return;
  auto& playlist = station_.forms.Get<frmPlaylist>();
  playlist.Show();
  playlist.Hide();
}

// A value that is no number counts as if the test had held: on a first run the cursor and the taskbar are hidden, and
// the control window is shown and at once hidden. Meant so.
void frmMid::RestoreDesktop() {
  const auto is = [this](const char* key, double number) {
    return HeldOrFailed(
        [&] { return StrictNumber(station_.stores.SettingsIni.ReadValue("Settings", key, "")) == number; });
  };
  if (is("ShowMouse", 0)) Outside().desktop.ShowCursor(false);
  if (is("ShowTaskbar", 0)) Outside().desktop.SetTaskbarVisible(false);
  if (is("StartUp", 1)) Show();
  if (is("StartUp", 0)) Hide();
}
