#pragma once

#include "platform/toolkit/Form.h"
#include "platform/toolkit/MenuItem.h"
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
  TrayIcon Tray{*this, "Tray"};
  MenuItem mnuPlayer{*this, "mnuPlayer"};
  MenuItem mnuPlayList{*this, "mnuPlayList"};
  MenuItem mnuAd{*this, "mnuAd"};
  MenuItem mnuShowHideAd{*this, "mnuShowHideAd"};
  MenuItem mnuShowCrawlersAd{*this, "mnuShowCrawlersAd"};
  MenuItem mnuShowVideoAd{*this, "mnuShowVideoAd"};
  MenuItem mnuAdSettings{*this, "mnuAdSettings"};
  MenuItem mnuScorlAsSettings{*this, "mnuScorlAsSettings"};
  MenuItem mnuVideoAdSettings{*this, "mnuVideoAdSettings"};
  MenuItem mnuOutput{*this, "mnuOutput"};
  MenuItem mnuMasking{*this, "mnuMasking"};

  // What stands on air and on the menu, by the Show keys.
  bool OnMonitor2 = false;
  bool OutputShown = false;
  bool CrawlerShown = false;
  bool LeftSideAdShown = false;
  bool VideoAdShown = false;
  bool MaskingOn = false;  // not kept: always off after a start; outlives an output window that is made anew

  // Puts every feature back as Settings.ini says it stood when the station last ran. Asks nothing; a feature that
  // fails does not stop the walk.
  void LoadSett();
  // Sends the output window to its monitor.
  void MoveTo();

 protected:
  void Load() override;
  bool MayUnload() override;

 private:
  bool ShowKeySays(const std::string& section, const std::string& key = "Show");
  void RestoreMonitor();
  void RestoreOutput();
  void RestoreCrawler();
  void ShowCrawler(bool show);
  void RestoreLeftSideAd();
  void RestoreVideoAd();
  void RestorePlaylist();
  void RestoreDesktop();
  void mnuShowCrawlersAd_Click();
  void mnuShowVideoAd_Click();
  void mnuMasking_Click();
  void RegisterRunAtStart();
  void OnHotKey(int id);

  Station& station_;
  bool AllowClose = false;  // nothing ever sets it
};
