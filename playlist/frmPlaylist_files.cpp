// The playlist files: loading one into the list, writing one from it, and the list of playlists.
#include "platform/Files.h"
#include "playlist/PlaylistText.h"
#include "playlist/frmPlaylist.h"
#include "settings/Helpers.h"

void frmPlaylist::ConnectFiles() {
  FilePlaylist.Pattern = "*.plt";
  FilePlaylist.Click.Connect([this] { FilePlaylist_Click(); });
}

void frmPlaylist::LoadPlaylist(ListView& list) {
  list.SmallIcons = "ImgList";
  std::vector<ListRow> rows = PlaylistRows(station_.stores.PlaylistIni);
  // The row numbers that were selected stay selected: the one on the air keeps its mark when a row is added.
  for (int index = 1; index <= std::min(list.Count(), static_cast<int>(rows.size())); ++index) {
    rows[static_cast<std::size_t>(index) - 1].selected = list.Row(index).selected;
  }
  list.Assign(std::move(rows), list.SelectedItem());
}

void frmPlaylist::SavePlaylist(const ListView& list, const std::string& name) {
  Outside().files.Replace(PlaylistFolder + name, PlaylistText(list.Rows()));
}

void frmPlaylist::LoadPlaylistToCmb() {
  for (int index = 0; index < FilePlaylist.ListCount(); ++index) cmbPlaylist.AddItem(FilePlaylist.List(index));
}

// Does not write LastPlaylist: the next start opens the former playlist unless the operator sets this one to play.
void frmPlaylist::FilePlaylist_Click() {
  station_.stores.PlaylistFile(FilePlaylist.FileName());
  LoadPlaylist(ListPlay);
  fraPlaylist.Caption = "Playlist- " + StripExtension(FilePlaylist.FileName());
}
