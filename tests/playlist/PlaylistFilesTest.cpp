#include "playlist/PlaylistText.h"
#include "tests/StationTest.h"

class PlaylistFilesTest : public StationTest {
 protected:
  std::string File(const std::string& name) { return sim.files.Read("/station/Playlist/" + name).value_or("(none)"); }
};

TEST_F(PlaylistFilesTest, ALoadShowsOneRowForEachSectionInFileOrder) {
  sim.files.Put("/station/Playlist/Day.plt",
                "\r\n[07:00:00 AM]\r\nDuration=0:3:25\r\nEndTime=07:03:25 AM\r\nFileName=Morning news\r\n"
                "Path=D:\\Clips\\Morning news.avi\r\n\r\n[06:00:00 AM]\r\nPath=/clips/b.mp4\r\n");
  Set("Playlist", "LastPlaylist", "Day.plt");
  const ListView& list = Playlists().ListPlay;
  ASSERT_EQ(list.Count(), 2);
  EXPECT_EQ(list.Row(1), (ListRow{.text = "07:00:00 AM",
                                  .subItems = {"0:3:25", "07:03:25 AM", "Morning news", "D:\\Clips\\Morning news.avi"},
                                  .smallIcon = 1}));
  EXPECT_EQ(list.Row(2).subItems, (std::vector<std::string>{"", "", "", "/clips/b.mp4"}));
  EXPECT_EQ(Playlists().fraPlaylist.Caption.Get(), "Playlist- Day");
}

TEST_F(PlaylistFilesTest, ASaveWritesABlankLineBeforeEverySectionTheFirstIncluded) {
  ListView& list = Playlists().ListPlay;
  list.Add({.text = "07:00:00 AM", .subItems = {"0:3:25", "07:03:25 AM", "News", "D:\\News.avi"}});
  list.Add({.text = "07:03:26 AM", .subItems = {"0:0:1", "07:03:27 AM", "b", "/b.avi"}});
  Playlists().SavePlaylist(list, "New.plt");
  EXPECT_EQ(File("New.plt"),
            "\r\n[07:00:00 AM]\r\nDuration=0:3:25\r\nEndTime=07:03:25 AM\r\nFileName=News\r\nPath=D:\\News.avi\r\n"
            "\r\n[07:03:26 AM]\r\nDuration=0:0:1\r\nEndTime=07:03:27 AM\r\nFileName=b\r\nPath=/b.avi\r\n");
}

TEST_F(PlaylistFilesTest, ASaveOfAnEmptyListLeavesAFileOfZeroBytes) {
  sim.files.Put("/station/Playlist/Old.plt", "[07:00:00 AM]\r\n");
  Playlists().SavePlaylist(Playlists().ListPlay, "Old.plt");
  EXPECT_EQ(File("Old.plt"), "");
}

TEST_F(PlaylistFilesTest, ASaveOntoAFullDiskLeavesTheOldRunningOrderWhole) {
  Playlist("Day.plt", {Clip("a.mp4")});
  const std::string before = File("Day.plt");
  Playlists().ListPlay.Remove(1);
  sim.files.SetDiskFull(true);
  Playlists().SavePlaylist(Playlists().ListPlay, "Day.plt");
  EXPECT_EQ(File("Day.plt"), before);
}

TEST_F(PlaylistFilesTest, ASectionAddedAfterASaveKeepsTheNewOrder) {
  Playlist("Day.plt", {Clip("a.mp4"), Clip("b.mp4")});
  ListView& list = Playlists().ListPlay;
  const ListRow first = list.Row(1);
  list.Remove(1);
  list.Add(first);
  Playlists().SavePlaylist(list, "Day.plt");
  station.stores.PlaylistIni.Sections().Add("08:00:00 AM");
  Playlists().LoadPlaylist(list);
  EXPECT_EQ(list.Row(1).text, TimeOfRow(2));
  EXPECT_EQ(list.Row(2).text, TimeOfRow(1));
  EXPECT_EQ(list.Row(3).text, "08:00:00 AM");
}

TEST_F(PlaylistFilesTest, ANewEmptyPlaylistShowsNoRowsAndStaysAtZeroBytes) {
  sim.files.Put("/station/Playlist/New.plt", "");
  Set("Playlist", "LastPlaylist", "New.plt");
  EXPECT_EQ(Playlists().ListPlay.Count(), 0);
  EXPECT_EQ(File("New.plt"), "");
}

TEST_F(PlaylistFilesTest, ASecondLoadOfTheComboDoublesItsRows) {
  sim.files.Put("/station/Playlist/A.plt", "");
  sim.files.Put("/station/Playlist/B.plt", "");
  ASSERT_EQ(Playlists().cmbPlaylist.ListCount(), 2);
  Playlists().LoadPlaylistToCmb();
  EXPECT_EQ(Playlists().cmbPlaylist.ListCount(), 4);
  EXPECT_EQ(Playlists().cmbPlaylist.List(2), "A.plt");
  EXPECT_EQ(Playlists().cmbPlaylist.Text.Get(), "Select playlist");
}

TEST_F(PlaylistFilesTest, APickShowsThePlaylistWithoutMakingItTheOneToOpenAtTheNextStart) {
  Playlist("Day.plt", {Clip("a.mp4")});
  sim.files.Put("/station/Playlist/Evening.plt", "[08:00:00 PM]\r\nPath=/clips/e.mp4\r\n");
  Playlists().FilePlaylist.Pick(1);
  EXPECT_EQ(Playlists().ListPlay.Row(1).text, "08:00:00 PM");
  EXPECT_EQ(Playlists().fraPlaylist.Caption.Get(), "Playlist- Evening");
  EXPECT_EQ(Setting("Playlist", "LastPlaylist"), "Day.plt");
  Playlists().ThemedButton1.Press();
  EXPECT_EQ(Setting("Playlist", "LastPlaylist"), "Evening.plt");
}

TEST_F(PlaylistFilesTest, AnUnreadablePlaylistLeavesTheListEmptyWithoutAWord) {
  Playlist("Day.plt", {Clip("a.mp4")});
  sim.files.SetFault("/station/Playlist/Day.plt", FileFault::kUnreadable);
  EXPECT_EQ(Playlists().ListPlay.Count(), 0);
  Playlist("Other.plt", {Clip("a.mp4")});
  Playlists().FilePlaylist.Refresh();
  Playlists().FilePlaylist.Pick(1);
  ASSERT_EQ(Playlists().ListPlay.Count(), 1);
  Playlists().FilePlaylist.Pick(0);  // the unreadable one takes the place of rows that were there
  EXPECT_EQ(Playlists().ListPlay.Count(), 0);
  for (const std::string& line : sim.trace.Take()) EXPECT_FALSE(line.starts_with("box")) << line;
}

TEST_F(PlaylistFilesTest, OnlyFilesOfTheKindAreListed) {
  sim.files.Put("/station/Playlist/Day.PLT", "");
  sim.files.Put("/station/Playlist/notes.txt", "");
  EXPECT_EQ(Playlists().FilePlaylist.ListCount(), 1);
}

TEST_F(PlaylistFilesTest, AReloadKeepsTheSelectedRowNumber) {
  Playlist("Day.plt", {Clip("a.mp4"), Clip("b.mp4")});
  Playlists().ListPlay.Select(2);
  Playlists().LoadPlaylist(Playlists().ListPlay);
  EXPECT_EQ(Playlists().ListPlay.SelectedItem(), 2);
}
