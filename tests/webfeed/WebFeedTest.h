#pragma once

#include <string>

#include "tests/StationTest.h"
#include "webfeed/FrmWeb.h"
#include "webfeed/PageStore.h"
#include "webfeed/frmPageSettings.h"

// A station with web pages. Its screen measures 28800 by 16200 twips.
class WebFeedTest : public StationTest {
 protected:
  static constexpr Twips kScreenWidth = 1920 * kTwipsPerPixel;
  static constexpr Twips kScreenHeight = 1080 * kTwipsPerPixel;

  FrmWeb& Feed() { return station.forms.Get<FrmWeb>(); }
  frmPageSettings& Desk() { return station.forms.Get<frmPageSettings>(); }
  SimPage& Page() { return *sim.browser.Find("FrmWeb.Web"); }
  std::string CurrentPageName() { return station.Shared<CurrentPage>().CurrentPageName; }

  void Store(const std::string& name, const PagePlace& place = {-3000, -600, 9000, 12000, 300, 450}) {
    AddPage(station.stores, name, {name + ".example", place});
  }
  void SetStartUpPage(const std::string& name) { SetOption("StartUpPage", "PageName", name); }
  void SetOption(const std::string& section, const std::string& key, const std::string& value) {
    station.stores.DataFile(kPageSettingsFile);
    station.stores.DataIni.WriteValue(section, key, value);
  }
  std::string Option(const std::string& section, const std::string& key) {
    return Read(kPageSettingsFile, section, key);
  }
  std::string PageKey(const std::string& page, const std::string& key) { return Read(kPageFile, page, key); }

 private:
  // Past the shared file, which goes on to mean what it means.
  std::string Read(const std::string& name, const std::string& section, const std::string& key) {
    IniFile file(sim.files);
    file.SetPath("/station/" + name);
    return file.ReadValue(section, key, "(none)");
  }
};
