// Both schedules: rows that start at their own start time, and playlists that are exchanged at a date and time.
#include <optional>

#include "output/frmPlayer.h"
#include "platform/Clock.h"
#include "platform/toolkit/Failures.h"
#include "playlist/PlaylistText.h"
#include "playlist/frmPlaylist.h"
#include "settings/FormHelpers.h"
#include "settings/Helpers.h"
#include "settings/TimeTexts.h"

namespace {

constexpr char kScheduleTitle[] = "Schedule manager";
constexpr int kPlaylistName = 1;  // the column of ListSchedule

}  // namespace

void frmPlaylist::ConnectSchedules() {
  TimerFind.Tick.Connect([this] { TimerFind_Tick(); });
  TimerDay.Tick.Connect([this] { SkippingFailures([this] { TimerDay_Tick(); }); });
  vkCommand2.Click.Connect([this] { SkippingFailures([this] { vkCommand2_Click(); }); });
  vkCommand3.Click.Connect([this] { vkCommand3_Click(); });
}

// A match starts its row in every mode, whatever is on the air; no cursor moves, and nothing goes back to what was cut
// off.
void frmPlaylist::TimerFind_Tick() {
  SkippingFailures(
      [this] {
        if (!FindListItem(ListPlay, TimeText(Outside().clock.Now()))) return;
        station_.forms.Get<frmPlayer>().MainPlay(ListPlay.Selected().SubItem(kFilePath));
      },
      [this] {
        PicTimeOn.BackColor = Blink ? kWhite : kRed;
        Blink = !Blink;
      });
}

void frmPlaylist::LoadSchedule(ListView& list) {
  station_.stores.ScheduleFile();
  const auto sections = station_.stores.ScheduleIni.Sections();
  std::vector<ListRow> rows;
  for (std::size_t i = 1; i <= sections.Count(); ++i) {
    const std::string key = sections.Item(i).Name();
    rows.push_back({.text = key, .subItems = {sections.ReadValue(key, "PlaylistName", "")}});
  }
  list.Assign(std::move(rows));
}

// Has no memory of having fired: within its second a match is carried out at each tick, up to ten times. Meant so.
void frmPlaylist::TimerDay_Tick() {
  const DateTime now = Outside().clock.Now();
  if (!FindListItem(ListSchedule, ScheduleKey(now, now))) return;
  const std::string name = ListSchedule.Selected().SubItem(kPlaylistName);
  if (!name.empty() && FileExists(Outside().files, PlaylistFolder + name)) {
    station_.stores.PlaylistFile(name);
    LoadPlaylist(ListPlay);
    WriteSetting("LastPlaylist", name);
  } else {
    MsgBox("Playlist file not found", Buttons::kOk, "Error");
  }
}

void frmPlaylist::vkCommand2_Click() {
  const std::string key = ScheduleKey(dpSDate.Value, dpSTime.Value);
  const std::string playlist = cmbPlaylist.Text;
  if (playlist == kNoPlaylist) {
    MsgBox("Please select a playlist name", Buttons::kOk, kScheduleTitle);
    cmbPlaylist.SetFocus();
    return;
  }
  if (FindListItem(ListSchedule, key)) {
    // "chose": meant so.
    MsgBox(key + " already allocated as schedule date, please chose a different schedule date", Buttons::kOk,
           kScheduleTitle);
    return;
  }
  IniFile& schedule = station_.stores.ScheduleIni;
  schedule.Sections().Add(key);
  schedule.WriteValue(key, "PlaylistName", playlist);
  LoadSchedule(ListSchedule);
}

// A row that comes due while the box stands is selected then; removed is the one that was asked about.
void frmPlaylist::vkCommand3_Click() {
  const std::optional<ListRow> asked = ListSchedule.SelectedNow();
  // "wnat": meant so.
  if (MsgBox("Are You Sure you wnat to Delete this Schedule?", Buttons::kYesNo, "DELETE") != Answer::kYes) return;
  if (asked) station_.stores.ScheduleIni.Sections().Remove(asked->text);
  LoadSchedule(ListSchedule);
}
