// The operator's desk: making a running order, and playlists.
#include <optional>

#include "output/frmPlayer.h"
#include "platform/Files.h"
#include "platform/toolkit/Failures.h"
#include "playlist/RowMoves.h"
#include "playlist/frmPlaylist.h"
#include "settings/FormHelpers.h"
#include "settings/Helpers.h"
#include "settings/TimeTexts.h"

namespace {

constexpr char kPlaylistTitle[] = "Playlist";
constexpr char kDeleteTitle[] = "DELETE";

}  // namespace

void frmPlaylist::ConnectEditing() {
  btnAdd.Click.Connect([this] { btnAdd_Click(); });
  cmdRemove.Click.Connect([this] { cmdRemove_Click(); });
  btnUp.Click.Connect([this] { MoveRows(RowMove::kUp); });
  btnDown.Click.Connect([this] { MoveRows(RowMove::kDown); });
  btnMostUp.Click.Connect([this] { MoveRows(RowMove::kTop); });
  btnMostDown.Click.Connect([this] { MoveRows(RowMove::kBottom); });
  btnCreateList.Click.Connect([this] { btnCreateList_Click(); });
  btnDeletePlaylist.Click.Connect([this] { btnDeletePlaylist_Click(); });
  TP.Change.Connect([this] {
    if (FileList.ListIndex >= 0) FileList_Click();
  });
  SldPlayer.Worked.Connect(
      [this] { station_.forms.Get<frmPlayer>().Player.controls.SetCurrentPosition(SldPlayer.Value); });
}

void frmPlaylist::btnAdd_Click() {
  const std::string start = TimeText(TP.Value);
  if (FindListItem(ListPlay, start)) {
    // "chose": meant so.
    MsgBox(start + " already allocated as Play Time, please chose a different time", Buttons::kOk, kPlaylistTitle);
    return;
  }
  IniFile& playlist = station_.stores.PlaylistIni;
  SkippingFailures([&] { playlist.Sections().Add(start); },
                   [&] { playlist.WriteValue(start, "FileName", txtFilename.Text.Get()); },
                   [&] { playlist.WriteValue(start, "Duration", txtDuration.Text.Get()); },
                   [&] { playlist.WriteValue(start, "EndTime", txtEndTime.Text.Get()); },
                   [&] { playlist.WriteValue(start, "Path", FileList.FilePath()); },
                   // The next entry starts a second after this one ends; the change proposes its end time.
                   [&] { TP.Value = ParseTimeText(AddSecondsToTime(1, ParseTimeText(txtEndTime.Text.Get()))); },
                   [&] { LoadPlaylist(ListPlay); });
}

// The list is shown anew by the pick of FilePlaylist: with none picked there it comes back empty. Meant so.
// The schedules go on while the box stands: what is removed is the row that was asked about, and nothing is where the
// list has been exchanged for another playlist's.
void frmPlaylist::cmdRemove_Click() {
  IniFile& playlist = station_.stores.PlaylistIni;
  const std::string askedIn = playlist.Path();
  const std::optional<ListRow> asked = ListPlay.SelectedNow();
  const Answer answer =  // "wnat", "pgogram": meant so.
      MsgBox("Are You Sure you wnat to Delete this pgogram from playlist?", Buttons::kYesNo, kDeleteTitle);
  if (answer != Answer::kYes || playlist.Path() != askedIn) return;
  if (!asked) throw Failure("There is no selected row in " + ListPlay.Name() + ".");
  playlist.Sections().Remove(asked->text);
  FilePlaylist_Click();
}

void frmPlaylist::MoveRows(RowMove move) {
  MoveSelectedRows(ListPlay, move);
  SavePlaylist(ListPlay, FilePlaylist.FileName());
}

void frmPlaylist::btnCreateList_Click() {
  constexpr char kExtension[] = ".plt";
  const std::string name = InputBox("Pleasr enter Playlist name", kPlaylistTitle) + kExtension;
  if (name == kExtension) return;
  if (FileExists(Outside().files, PlaylistFolder + name)) {
    MsgBox("There is already a playlist with the same name. Please choose a different playlist name.", Buttons::kOk,
           kPlaylistTitle);
    return;
  }
  CreateEmptyFile(Outside().files, PlaylistFolder + name);
  FilePlaylist.Refresh();
  LoadPlaylistToCmb();
}

// The rows of the deleted playlist stay in the list, and what is on the air goes on.
void frmPlaylist::btnDeletePlaylist_Click() {
  const std::string asked = FilePlaylist.ListIndex >= 0 ? FilePlaylist.FilePath() : "";
  // "wnat": meant so.
  const Answer answer = MsgBox("Are You Sure you wnat to Delete this playlist?", Buttons::kYesNo, kDeleteTitle);
  if (answer != Answer::kYes) return;
  if (!asked.empty()) Outside().files.Remove(asked);
  FilePlaylist.Refresh();
  LoadPlaylistToCmb();
}

void frmPlaylist::SearchEntry(ListView& list, const std::string& text) {
  const int row = list.FindItem(text, ListView::Match::kBeginning);
  if (row == 0) return;  // no message has ever come up here. Meant so.
  list.EnsureVisible(row);
  list.Select(row);
}
