#pragma once

#include <string>

#include "ads/frmAdSett.h"
#include "ads/frmAdView.h"
#include "settings/Numbers.h"
#include "tests/StationTest.h"

// A station with crawler ads in its store.
class CrawlerTest : public StationTest {
 protected:
  CrawlerTest() { sim.files.CreateFolder("/station/Ads"); }

  struct AdFiles {
    std::string active = "1";
    int width = 400;  // pixels of the scrolling picture, which is 90 high
    std::string header = "header.jpg";
    std::string left = "left.";
    std::string right = "right.";
    std::string speed = "30";
    std::string headerHeight = "600";
    std::string sideWidth = "1000";
    std::string top = "0";
  };

  // Stores an ad with all files that its description names.
  void Ad(const std::string& name) { Ad(name, AdFiles{}); }
  void Ad(const std::string& name, const AdFiles& ad) {
    Picture(In(name, "scorl.jpg"), {ad.width, 90});
    for (const std::string& file : {ad.header, ad.left, ad.right}) {
      if (!file.ends_with('.')) Picture(In(name, file), {60, 40});
    }
    sim.files.Put(In(name, "adinfo.ini"),
                  "[Info]\r\nActive=" + ad.active + "\r\nHeader=" + ad.header + "\r\nLeft=" + ad.left + "\r\nRight=" +
                      ad.right + "\r\n[Settings]\r\nSpeed=" + ad.speed + "\r\nHeaderHeight=" + ad.headerHeight +
                      "\r\nSideWidth=" + ad.sideWidth + "\r\nAdTop=" + ad.top + "\r\n");
  }
  // Active ads of these names.
  void Ads(const std::vector<std::string>& names) {
    for (const std::string& name : names) Ad(name);
  }
  void Picture(const std::string& path, PixelSize size) {
    sim.files.Put(path, "jpeg");
    sim.pictures.sizes[path] = size;
  }
  static std::string In(const std::string& ad, const std::string& file) { return "/station/Ads/" + ad + "/" + file; }
  std::string Key(const std::string& ad, const std::string& section, const std::string& key) {
    IniFile info(sim.files);
    info.SetPath(In(ad, "adinfo.ini"));
    return info.ReadValue(section, key, "(none)");
  }

  frmAdSett& Desk() { return station.forms.Get<frmAdSett>(); }
  frmAdView& Preview() { return station.forms.Get<frmAdView>(); }
  // The name of the ad whose picture scrolls on the air.
  std::string OnBand() { return AdOf(Output().pic.Picture.Get().path); }
  static std::string AdOf(const std::string& path) {
    const std::string start = "/station/Ads/";
    return path.starts_with(start) ? path.substr(start.size(), path.find('/', start.size()) - start.size()) : path;
  }
  // Ticks of the frame clock.
  void Tick(int ticks = 1) {
    for (int i = 0; i < ticks; ++i) Advance(kTick);
  }
  // Loads the output window and lets its relayout pass, so that ticks can be counted from the next ad on.
  void SettleOutput() {
    Output();
    Advance(std::chrono::seconds(3));
  }

  static constexpr std::chrono::nanoseconds kTick{16'666'667};
  CurrentAd& ad = station.Shared<CurrentAd>();
};
