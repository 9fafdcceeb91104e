#include "playlist/frmPlaylist.h"

#include "output/frmPlayer.h"
#include "platform/Clock.h"
#include "platform/WholeNumber.h"
#include "platform/toolkit/Failures.h"
#include "settings/Helpers.h"
#include "settings/Numbers.h"
#include "settings/TimeTexts.h"

namespace {

// Each option: its box, and its key in Settings.ini. The keys are on users' disks, spelling errors and all. Meant so.
constexpr struct {
  CheckBox frmPlaylist::*box;
  const char* key;
} kOptions[] = {
    {&frmPlaylist::chkPreview, "ClickTOPlay"},
    {&frmPlaylist::chkTime, "TimeON"},
    {&frmPlaylist::chkDaySchedule, "DaySchdule"},
    {&frmPlaylist::chkLastPlay, "LastPlay"},
    {&frmPlaylist::chkFolderPlay, "PlayLocation"},
    {&frmPlaylist::chkRendomPlay, "RendomPlay"},
    {&frmPlaylist::chkOneAfterAnother, "OneAfterAnother"},
    {&frmPlaylist::ChkQuickPlay, "QuickPlay"},
};

}  // namespace

frmPlaylist::frmPlaylist(Station& station) : Form(station.forms, "frmPlaylist", Kind::kOperator), station_(station) {
  Caption = "Playlist manager";
  Width = ToTwips(1280);
  Height = ToTwips(800);
  cmbPlaylist.Text = kNoPlaylist;
  ConnectOptions();
  ConnectFiles();
  ConnectSequencer();
  ConnectSchedules();
  ConnectResume();
  ConnectEditing();
}

void frmPlaylist::ConnectOptions() {
  for (const auto& option : kOptions) {
    CheckBox& box = this->*option.box;
    box.Click.Connect([this, &box, key = option.key] { WriteSetting(key, std::to_string(box.Value)); });
  }
  chkTime.Click.Connect([this] {
    ApplyTimeSchedule();
    if (!chkTime.Ticked()) PicTimeOn.BackColor = kWhite;
  });
  chkDaySchedule.Click.Connect([this] { ApplyDaySchedule(); });
  btnBrows.Click.Connect([this] { btnBrows_Click(); });
  btnLoadFolder.Click.Connect([this] { btnLoadFolder_Click(); });
  ThemedButton1.Click.Connect([this] { WriteSetting("LastPlaylist", FilePlaylist.FileName()); });
  Timer1.Tick.Connect([this] { Timer1_Tick(); });
  Timer3.Tick.Connect([this] { Timer3_Tick(); });
}

void frmPlaylist::Load() {
  win.RecordWindowPosTo = station_.dataFolder.Path("\\Window.ini");
  PlaylistFolder = station_.dataFolder.Path("\\Playlist\\");
  station_.stores.SettingsFile();
  LoadConfig();
  LoadSchedule(ListSchedule);
  LoadPlaylistToCmb();
  ListPlay.SmallIcons = "ImgList";
  Player.settings.mute = true;
  if (Setting("LastPlay") == "1") RestoreLastPlay();
}

bool frmPlaylist::MayUnload() {
  Hide();
  return false;
}

std::string frmPlaylist::Setting(const std::string& key) const {
  return station_.stores.SettingsIni.ReadValue("Playlist", key, "");
}

void frmPlaylist::WriteSetting(const std::string& key, const std::string& value) {
  station_.stores.SettingsIni.WriteValue("Playlist", key, value);
}

void frmPlaylist::LoadConfig() {
  SkippingFailures([this] { txtPath.Text = Setting("FolderPath"); }, [this] { FileList.Path = Setting("FolderPath"); },
                   [this] { FileQuick.Path = Setting("QuickPlayPath"); });
  for (const auto& option : kOptions) (this->*option.box).Value = Setting(option.key) == "1" ? 1 : 0;
  ApplyTimeSchedule();
  ApplyDaySchedule();
  Player.stretchToFit = true;
  const std::string pattern = station_.stores.SettingsIni.ReadValue("Settings", "Ext", "");
  FileList.Pattern = pattern;
  FileQuick.Pattern = pattern;
  SkippingFailures([this] { FilePlaylist.Path = PlaylistFolder; });
  station_.stores.PlaylistFile(Setting("LastPlaylist"));
  fraPlaylist.Caption = "Playlist- " + StripExtension(Setting("LastPlaylist"));
  LoadPlaylist(ListPlay);
  const DateTime now = Outside().clock.Now();
  dpSDate.Value = now;
  dpSTime.Value = now;
}

void frmPlaylist::ApplyTimeSchedule() { TimerFind.Enabled = chkTime.Ticked(); }

void frmPlaylist::ApplyDaySchedule() { TimerDay.Enabled = chkDaySchedule.Ticked(); }

void frmPlaylist::Timer1_Tick() {
  const std::string clock = ClockText(Outside().clock.Now());
  Caption = "Playlist- " + clock;
  lblTime.Caption = clock;
}

// A notification that was lost heals here: the slider is set anew each second.
void frmPlaylist::Timer3_Tick() {
  auto& output = station_.forms.Get<frmPlayer>();
  SkippingFailures([&] { TakeDuration(output); },
                   [&] { SldPlayer.Value = CutToWhole<int>(output.Player.controls.currentPosition()); });
}

void frmPlaylist::TakeDuration(frmPlayer& output) {
  SldPlayer.Max = CutToWhole<int>(output.Player.currentMedia.duration());
}

void frmPlaylist::btnBrows_Click() {
  const std::string folder = AskForFolder(FileList, "FolderPath");
  if (folder.empty()) return;
  SkippingFailures([&] { FileList.Path = folder; }, [&] { FileList.Refresh(); }, [&] { txtPath.Text = folder; },
                   [&] { WriteSetting("FolderPath", folder); });
}

void frmPlaylist::btnLoadFolder_Click() {
  const std::string folder = AskForFolder(FileQuick, "QuickPlayPath");
  if (folder.empty()) return;
  FileQuick.Path = folder;
  WriteSetting("QuickPlayPath", folder);
}

std::string frmPlaylist::AskForFolder(FileListBox& files, const std::string& key) {
  SkippingFailures([&] { files.Path = Setting(key); });
  return BrowseFolder("Select A Video or Audio Directory", files.Path);
}
