#pragma once

#include <functional>
#include <span>
#include <string>

#include "platform/toolkit/Form.h"
#include "platform/toolkit/MenuItem.h"
#include "platform/toolkit/StatusBar.h"
#include "platform/toolkit/Timer.h"
#include "platform/toolkit/TrayIcon.h"
#include "platform/toolkit/Widgets.h"
#include "settings/Station.h"

// The operator's control window, and the restore of the whole station at start-up. It refuses to close: it hides, and
// the broadcast goes on.
class frmMid : public Form {
 public:
  explicit frmMid(Station& station);

  Frame Picture1{*this, "Picture1"};  // the strip that holds the two buttons
  CommandButton ThemedButton5{*this, "ThemedButton5"};
  CommandButton ThemedButton6{*this, "ThemedButton6"};
  StatusBar Panel{*this, "Panel", 9};
  TrayIcon Tray{*this, "Tray"};

  MenuItem mnuFile{*this, "mnuFile"};
  MenuItem mnuTurnOffMonitor{*this, "mnuTurnOffMonitor"};
  MenuItem mnuHideMe{*this, "mnuHideMe"};
  MenuItem mnuExit{*this, "mnuExit"};
  MenuItem mnuPlayer{*this, "mnuPlayer"};
  MenuItem mnuPlayList{*this, "mnuPlayList"};
  MenuItem mnuAd{*this, "mnuAd"};
  MenuItem mnuShowHideAd{*this, "mnuShowHideAd"};
  MenuItem mnuShowCrawlersAd{*this, "mnuShowCrawlersAd"};
  MenuItem mnuShowVideoAd{*this, "mnuShowVideoAd"};
  MenuItem mnuShowFlashAd{*this, "mnuShowFlashAd"};
  MenuItem mnuLeftsideAd{*this, "mnuLeftsideAd"};
  MenuItem mnuAdSettings{*this, "mnuAdSettings"};
  MenuItem mnuScorlAsSettings{*this, "mnuScorlAsSettings"};
  MenuItem mnuVideoAdSettings{*this, "mnuVideoAdSettings"};
  MenuItem mnuFlashAd{*this, "mnuFlashAd"};
  MenuItem mnuLeftsideAdsettings{*this, "mnuLeftsideAdsettings"};
  MenuItem mnuLogo{*this, "mnuLogo"};
  MenuItem mnuShowLogo{*this, "mnuShowLogo"};
  MenuItem mnuFlashLogo{*this, "mnuFlashLogo"};
  MenuItem MnuStiker{*this, "MnuStiker"};
  MenuItem mnuShowStiker{*this, "mnuShowStiker"};
  MenuItem MnuStikerSettings{*this, "MnuStikerSettings"};
  MenuItem mnuClock{*this, "mnuClock"};
  MenuItem mnuShowClock{*this, "mnuShowClock"};
  MenuItem mnuClockSettings{*this, "mnuClockSettings"};
  MenuItem mnuWebfeed{*this, "mnuWebfeed"};
  MenuItem mnuShowWebFeed{*this, "mnuShowWebFeed"};
  MenuItem mnuWebfeedSetttings{*this, "mnuWebfeedSetttings"};
  MenuItem mnuBreakingNews{*this, "mnuBreakingNews"};
  MenuItem mnuBreakingNewsShow{*this, "mnuBreakingNewsShow"};
  MenuItem mnuBreakingNewsSettings{*this, "mnuBreakingNewsSettings"};
  MenuItem nmuOnlineChannel{*this, "nmuOnlineChannel"};
  MenuItem mnuTVChannel{*this, "mnuTVChannel"};
  MenuItem nmuRadioChannel{*this, "nmuRadioChannel"};
  MenuItem mnuOutput{*this, "mnuOutput"};
  MenuItem mnuOutputWindow{*this, "mnuOutputWindow"};
  MenuItem mnuMonitor2{*this, "mnuMonitor2"};
  MenuItem mnuMasking{*this, "mnuMasking"};
  MenuItem mnuTools{*this, "mnuTools"};
  MenuItem mnuFlashAnimationTools{*this, "mnuFlashAnimationTools"};
  MenuItem mnuSWF_0{*this, "mnuSWF_0"};
  MenuItem mnuSWF_1{*this, "mnuSWF_1"};
  MenuItem mnuSWF_2{*this, "mnuSWF_2"};
  MenuItem mnuVideoConverter{*this, "mnuVideoConverter"};
  MenuItem mnuVideoConvert_0{*this, "mnuVideoConvert_0"};
  MenuItem mnuVideoConvert_1{*this, "mnuVideoConvert_1"};
  MenuItem mnuRemute{*this, "mnuRemute"};
  MenuItem mnuTeamviewer{*this, "mnuTeamviewer"};
  MenuItem mnuSettings{*this, "mnuSettings"};
  MenuItem mnuHelp{*this, "mnuHelp"};
  MenuItem mnuHelp2{*this, "mnuHelp2"};
  MenuItem mnuQuicksupport{*this, "mnuQuicksupport"};
  MenuItem mnuAbout2{*this, "mnuAbout2"};
  MenuItem mnuTray{*this, "mnuTray"};  // not on the bar: the tray's own menu
  MenuItem mnuShow{*this, "mnuShow"};
  MenuItem mnuTrayAbout{*this, "mnuTrayAbout"};
  MenuSeparator mnuSpace{*this, "mnuSpace"};
  MenuItem mnuTrayExit{*this, "mnuTrayExit"};

  // Tells the time and what is on, with the wall clock's second.
  Timer Timer1{*this, "Timer1", std::chrono::milliseconds(1000), Timer::kEnabled, TickPhase::kWallSecond};

  // What stands on air and on the menu, by the Show keys.
  bool OnMonitor2 = false;
  bool OutputShown = false;
  bool CrawlerShown = false;
  bool VideoAdShown = false;
  bool FlashAdShown = false;
  bool LeftSideAdShown = false;
  bool LogoShown = false;
  bool ClockShown = false;
  bool StikerShown = false;
  bool BreakingNewsShown = false;  // off after a start with the strip on
  bool WebFeedShown = false;
  bool MaskingOn = false;  // not kept: always off after a start; outlives an output window that is made anew

  // Puts every feature back as Settings.ini says it stood when the station last ran. Asks nothing; a feature that
  // fails does not stop the walk.
  void LoadSett();
  // Sends the output window to its monitor.
  void MoveTo();
  // Brings the overlays that are on, by their keys, in front of an output window that has just put itself on top.
  void OnTopSet();
  // Whether the machine is on line; asked anew at each call.
  bool netCon();
  // Writes panels 2 to 9 of the status bar.
  void UpdateStatusPanels();

 protected:
  void Load() override;
  bool MayUnload() override;

 private:
  struct Toggle;
  static std::span<const Toggle> Toggles();

  void ConnectMenu();
  void Choose(const Toggle& toggle);
  // Sets a flag, and the tick of its entry.
  void Mark(bool frmMid::*flag, bool on);
  // Does `work` if the machine is on line; else says that it is not.
  void WhenOnline(const std::function<void()>& work);
  void ShowCrawler(bool show);
  void RunVideoAds(bool run);
  void ShowFlashAd(bool show);
  void ShowLeftSideAd(bool show);
  template <class F>
  void ShowOrUnload(bool show);
  void mnuMasking_Click();

  bool ShowKeySays(const std::string& section, const std::string& key = "Show");
  // Does what the toggle of this flag does when it is switched on, where its key says so.
  void RestoreShown(bool frmMid::*flag);
  void RestoreMonitor();
  void RestoreBreakingNews();
  void RestoreCrawler();
  void RestoreFlashAd();
  void RestoreLeftSideAd();
  void RestoreWebFeed();
  void RestoreVideoAd();
  void RestorePlaylist();
  void RestoreDesktop();

  void RegisterRunAtStart();
  void OnHotKey(int id);

  Station& station_;
  bool AllowClose = false;  // nothing ever sets it
};
