// The walk that brings the station back on air, whole: what it asks of the platform, in its order. That of a first run,
// without any settings, is among the tests of the start.
#include "tests/StationTest.h"

using namespace std::chrono_literals;

namespace {

// Each feature that has a switch, by the section of its key `Show`.
constexpr const char* kSwitched[] = {"logo",       "Clock",   "Stiker",     "Output",  "BreakingNews",
                                     "AdSettings", "FlashAd", "LeftSideAd", "WebFeed", "VideoAd"};

class WalkTest : public StationTest {
 protected:
  // Switches the station on and gives what was asked of the platform until the splash has gone.
  Names Walk() {
    sim.trace.Take();
    station.forms.Get<frmLoad>().Show();
    Advance(2s);
    return sim.trace.Take();
  }
  std::string Movie(const std::string& file) {
    const std::string path = "/station/Media/" + file;
    sim.files.Put(path, "movie");
    sim.flash.SetMovie(path, 100);
    return path;
  }
  void SwitchAll(const char* state) {
    for (const char* section : kSwitched) Set(section, "Show", state);
    Set("Output", "Monitor2", state);
  }
  // A station that has something to show everywhere.
  void FillStation() {
    for (const char* section : {"logo", "Clock", "Stiker"}) Set(section, "Path", Movie(std::string(section) + ".swf"));
    for (const char* section : {"FlashAd", "LeftSideAd"}) {
      Movie(std::string(section) + "/Shop/ad.swf");
      Set(section, "LastPath", std::string("/station/Media/") + section + "/Shop");
    }
    Movie("FlashBN/bn.swf");
    sim.files.Put("/station/Page.ini", "[board]\r\nURL=board.example\r\n");
    sim.files.Put("/station/settings_page.ini", "[StartUpPage]\r\nPageName=board\r\n");
    Playlist("Day.plt", {Clip("news.mp4")});
    Set("Playlist", "LastPlay", "1");
    Set("Playlist", "LastPlaySchdule", "1");
    for (const char* key : {"ShowMouse", "ShowTaskbar", "StartUp"}) Set("Settings", key, "1");
  }
};

TEST_F(WalkTest, WithEverythingOnTheStationComesBackInItsOrder) {
  FillStation();
  SwitchAll("True");
  EXPECT_EQ(Walk(), (Names{"frmLoad loaded",
                           "frmLoad shown",
                           "frmMid loaded",
                           "frmPlayer loaded",
                           "FrmLogoShow loaded",
                           "FrmLogoShow.Flash movie /station/Media/logo.swf",
                           "FrmLogoShow shown",
                           "frmClockShow loaded",
                           "frmClockShow.Flash movie /station/Media/Clock.swf",
                           "frmClockShow shown",
                           "frmStikerShow loaded",
                           "frmStikerShow.Flash movie /station/Media/Stiker.swf",
                           "frmStikerShow shown",
                           "frmPlayer shown",
                           "frmBreakingNews loaded",
                           "frmBreakingNews.Flash movie /station/Media/FlashBN/bn.swf",
                           "frmBreakingNews.Flash variable _levelO.text1=Hello Orlin",
                           "frmBreakingNews shown",
                           "frmAdSett loaded",
                           "frmFlashAdShow loaded",
                           "frmFlashAdShow shown",
                           "frmFlashAdSett loaded",
                           "frmLeftSideAdSett loaded",
                           "frmLeftSideAdSett shown",
                           "frmLeftSideAdSett hidden",
                           "FrmWeb loaded",
                           "FrmWeb.Web open http://board.example",
                           "FrmWeb shown",
                           "frmVideoAdSett loaded",
                           "frmPlaylist loaded",
                           "frmPlayer.Player open /clips/news.mp4",
                           "frmPlaylist shown",
                           "frmPlaylist hidden",
                           "frmMid shown",
                           "run at log-on \"My App\" /station/corvanta",
                           "hot key 0 Ctrl+M",
                           "hot key 1 Ctrl+X",
                           "hot key 2 Ctrl+T",
                           "hot key 3 Ctrl+O",
                           "screen saver 0",
                           "frmLoad unloaded"}));
}

TEST_F(WalkTest, WithEverythingOffNothingStaysButTheControlWindow) {
  FillStation();
  SwitchAll("False");
  Set("Playlist", "LastPlay", "0");
  EXPECT_EQ(Walk(),
            (Names{"frmLoad loaded", "frmLoad shown", "frmMid loaded", "frmPlayer loaded", "frmAdSett loaded",
                   "frmMid shown", "run at log-on \"My App\" /station/corvanta", "hot key 0 Ctrl+M", "hot key 1 Ctrl+X",
                   "hot key 2 Ctrl+T", "hot key 3 Ctrl+O", "screen saver 0", "frmLoad unloaded"}));
}

}  // namespace
