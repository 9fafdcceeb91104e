#include <gtest/gtest.h>

#include "platform/sim/SimFiles.h"
#include "settings/Stores.h"

namespace {

class StoresTest : public testing::Test {
 protected:
  SimFiles files;
  Stores stores{files, "/opt/Station/"};
};

TEST_F(StoresTest, EachResolverPointsItsOwnInstance) {
  stores.SettingsFile();
  stores.PlaylistFile("Morning.plt");
  stores.ScheduleFile();
  stores.AdInfoFile("Shoes");
  stores.VideoAdInfoFile("Cars");
  stores.DataFile("Page.ini");
  stores.TVChannelFile();
  stores.RadioChannelFile();
  EXPECT_EQ(stores.SettingsIni.Path(), "/opt/Station/Settings.ini");
  EXPECT_EQ(stores.PlaylistIni.Path(), "/opt/Station/Playlist/Morning.plt");
  EXPECT_EQ(stores.ScheduleIni.Path(), "/opt/Station/Schedule.ini");
  EXPECT_EQ(stores.AdInfoIni.Path(), "/opt/Station/Ads/Shoes/adinfo.ini");
  EXPECT_EQ(stores.VideoAdInfoIni.Path(), "/opt/Station/VideoAd/Cars/adinfo.ini");
  EXPECT_EQ(stores.DataIni.Path(), "/opt/Station/Page.ini");
  EXPECT_EQ(stores.TVChannelIni.Path(), "/opt/Station/OnlineChannel/TV.chn");
  EXPECT_EQ(stores.RadioChannelIni.Path(), "/opt/Station/OnlineChannel/Radio.chn");
}

TEST_F(StoresTest, AnInstanceMeansTheFileThatWasResolvedLast) {
  files.CreateFolder("/opt/Station");
  stores.DataFile("Page.ini");
  stores.DataIni.WriteValue("News", "URL", "http://news");
  stores.DataFile("settings_page.ini");
  stores.DataIni.WriteValue("StartUpPage", "PageName", "News");
  EXPECT_EQ(files.Read("/opt/Station/Page.ini"), "[News]\r\nURL=http://news\r\n");
  EXPECT_EQ(files.Read("/opt/Station/settings_page.ini"), "[StartUpPage]\r\nPageName=News\r\n");
}

TEST_F(StoresTest, SettingsReadUnderALowerCaseNameAreTheSameFile) {
  files.Put("/opt/Station/Settings.ini", "[Output]\r\nShow=True\r\n");
  stores.DataFile("settings.ini");
  EXPECT_EQ(stores.DataIni.ReadValue("output", "show", ""), "True");
}

TEST_F(StoresTest, APlaylistOfNoNameHasNoSections) {
  files.CreateFolder("/opt/Station/Playlist");
  stores.PlaylistFile("");
  EXPECT_EQ(stores.PlaylistIni.Sections().Count(), 0u);
  stores.PlaylistIni.WriteValue("a", "b", "c");
  EXPECT_EQ(files.Kind("/opt/Station/Playlist"), FileKind::kFolder);
}

TEST(DataFolderTest, ATailIsMappedToThePlatformsSeparator) {
  EXPECT_EQ(DataFolder("/opt/Station").Path("\\Media\\Logo\\"), "/opt/Station/Media/Logo/");
  EXPECT_EQ(DataFolder("/opt/Station/").Path("\\Window.ini"), "/opt/Station/Window.ini");
  EXPECT_EQ(DataFolder("/opt/Station").Path(""), "/opt/Station");
}

TEST(StationFoldersTest, TheFirstStartMakesEveryFolderThatTheFormsWriteInto) {
  SimFiles files;
  MakeStationFolders(files, DataFolder("/station"));
  for (const char* folder : {"Playlist", "Ads", "VideoAd", "OnlineChannel", "Media/Logo", "Media/Clock", "Media/Stiker",
                             "Media/FlashAd", "Media/LeftSideAd"}) {
    EXPECT_EQ(files.Kind(std::string("/station/") + folder), FileKind::kFolder) << folder;
  }
}

TEST(StationFoldersTest, AFolderThatIsThereInAnotherSpellingIsLeftAlone) {
  SimFiles files;
  files.Put("/station/ads/shoes/adinfo.ini", "");
  MakeStationFolders(files, DataFolder("/station"));
  EXPECT_EQ(files.List("/station", FileKind::kFolder).front(), "ads");
  EXPECT_EQ(files.Kind("/station/Ads/shoes"), FileKind::kFolder);
}

}  // namespace
