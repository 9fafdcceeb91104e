// Coming back on the air where the station stopped, and the probe for a chosen file's duration.
#include "output/frmPlayer.h"
#include "platform/WholeNumber.h"
#include "platform/toolkit/Failures.h"
#include "playlist/PlaylistText.h"
#include "playlist/frmPlaylist.h"
#include "settings/Helpers.h"
#include "settings/Numbers.h"
#include "settings/TimeTexts.h"

void frmPlaylist::ConnectResume() {
  Timer4.Tick.Connect([this] { Timer4_Tick(); });
  Timer5.Tick.Connect([this] { Timer5_Tick(); });
  TimerGetDuration.Tick.Connect([this] { TimerGetDuration_Tick(); });
}

void frmPlaylist::Timer4_Tick() {
  const double position = station_.forms.Get<frmPlayer>().Player.controls.currentPosition();
  SkippingFailures([&] { SldPlayer.Value = CutToWhole<int>(position); });
  if (!chkLastPlay.Ticked()) return;
  const auto selectedRow = [this] {
    ListPlay.Selected();  // fails while no row is selected, and the key keeps what it has
    return ListPlay.SelectedItem();
  };
  if (chkFolderPlay.Ticked()) {
    SkippingFailures([&] { WriteSetting("LastPosition", DoubleText(position)); },
                     [&] { WriteSetting("LastIndex", std::to_string(selectedRow() - 1)); });
  } else {
    // "Schdule": the keys on users' disks. Meant so.
    SkippingFailures([&] { WriteSetting("LastPositionSchdule", DoubleText(position)); },
                     [&] { WriteSetting("LastPlaySchdule", std::to_string(selectedRow())); });
  }
}

// In list play too the number lands in FolderIndex, and ListCursor stays 0: the item after the restored one is row 1.
// Meant so.
void frmPlaylist::RestoreLastPlay() {
  const auto number = [this](const char* key) { return CutToWhole<int>(Val(Setting(key))); };
  if (chkFolderPlay.Ticked()) {
    FolderIndex = number("LastPlayFolder");
    SkippingFailures([this] { FileList.ListIndex = FolderIndex; });
  } else {
    FolderIndex = number("LastPlaySchdule");
    SkippingFailures([this] { ListPlay.Select(FolderIndex); },
                     [this] {
                       const std::string path = ListPlay.Selected().SubItem(kFilePath);
                       station_.forms.Get<frmPlayer>().MainPlay(path);
                     });
  }
}

// Does not ask chkLastPlay: a form that is loaded late seeks in whatever is on the air then. Meant so.
void frmPlaylist::Timer5_Tick() {
  const double position = Val(Setting(chkFolderPlay.Ticked() ? "LastPosition" : "LastPositionSchdule"));
  SkippingFailures([&] { station_.forms.Get<frmPlayer>().Player.controls.SetCurrentPosition(position); },
                   [this] { Timer5.Enabled = false; });
}

// At the click the file has seldom been opened yet, and its duration is still 0: the timer mends that.
void frmPlaylist::ProbeFile() {
  SkippingFailures([this] { Play(FileList.FilePath()); });
  ShowDuration();
  SkippingFailures([this] { txtFilename.Text = StripExtension(FileList.FileName()); },
                   [this] { TimerGetDuration.Enabled = true; });
}

void frmPlaylist::ShowDuration() {
  const auto seconds = [this] { return RoundHalfEven(Player.currentMedia.duration()); };
  SkippingFailures([&] { txtDuration.Text = SecondsToHMS(seconds()); },
                   [&] { txtEndTime.Text = AddSecondsToTime(seconds(), TP.Value); });
}

// Never stops: a new start time is followed at once.
void frmPlaylist::TimerGetDuration_Tick() {
  if (!Player.isOnline()) return;
  ShowDuration();
  btnAdd.Enabled = true;
}
