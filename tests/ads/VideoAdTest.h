#pragma once

#include <string>

#include "ads/frmVideoAdSett.h"
#include "settings/Numbers.h"
#include "tests/StationTest.h"

// A station with video ads in its store.
class VideoAdTest : public StationTest {
 protected:
  VideoAdTest() { sim.files.CreateFolder("/station/VideoAd"); }

  // Stores an ad as the desk would; its video is "<name>.mp4".
  void Ad(const std::string& name, double seconds = 5) {
    const std::string video = In(name, name + ".mp4");
    sim.files.Put(video, "media");
    sim.media.SetDuration(video, seconds);
    sim.files.Put(In(name, "adinfo.ini"), "[AdInfo]\r\nFileName=" + name + ".mp4\r\nCompany=\r\nAddress=\r\n");
  }
  void Ads(const Names& names) {
    for (const std::string& name : names) Ad(name);
  }
  static std::string In(const std::string& ad, const std::string& file) {
    return "/station/VideoAd/" + ad + "/" + file;
  }
  std::string Key(const std::string& ad, const std::string& key) {
    IniFile info(sim.files);
    info.SetPath(In(ad, "adinfo.ini"));
    return info.ReadValue("AdInfo", key, "(none)");
  }

  // The station starts with breaks on: so many ads each so many minutes.
  void StartWithBreaks(const std::string& ads, const std::string& minutes) {
    Set("VideoAd", "Show", "True");
    Set("VideoAd", "AdPlay", ads);
    Set("VideoAd", "AdTime", minutes);
    ControlWindow();
    sim.trace.Take();
  }
  // The programme: one long item, on the air.
  void Programme() {
    Output().MainPlay(Clip("programme.mp4", 3600));
    Advance(std::chrono::milliseconds(20));
  }
  // The ads on the air since the last call.
  Names AdsAired() {
    Names ads = Opened("frmPlayer.AdPlayer");
    for (std::string& ad : ads) ad.resize(ad.rfind('.'));
    return ads;
  }
  bool InBreak() { return Output().PicVideoAd.Visible; }
  // Nothing ends the break: the pane covers a paused programme, and the countdown stands.
  void ExpectBreakForGood() {
    Advance(std::chrono::hours(1));
    EXPECT_TRUE(InBreak());
    EXPECT_EQ(MainPlayer().State(), PlayState::kPaused);
    EXPECT_FALSE(Desk().Timer1.Enabled);
  }
  std::string Count() { return Setting("VideoAd", "AdTimeCount"); }

  frmVideoAdSett& Desk() { return station.forms.Get<frmVideoAdSett>(); }
  Names Shown() {
    Names names;
    for (const ListRow& row : Desk().ListAd.Rows()) names.push_back(row.text);
    return names;
  }
};
