#pragma once

#include <string>

#include "platform/toolkit/DatePicker.h"
#include "platform/toolkit/FileListBox.h"
#include "platform/toolkit/Form.h"
#include "platform/toolkit/ListView.h"
#include "platform/toolkit/PlayerControl.h"
#include "platform/toolkit/Timer.h"
#include "platform/toolkit/Widgets.h"
#include "playlist/RowMoves.h"
#include "settings/FormExtender.h"
#include "settings/Station.h"

class frmPlayer;

// The playlists, what plays next, and both schedules. Closing it only hides it: its timers carry the broadcast. The
// boxes are the options: the code reads them at each decision, and Settings.ini mirrors them.
class frmPlaylist : public Form {
 public:
  explicit frmPlaylist(Station& station);

  Frame fraPlaylist{*this, "frmPlaylist"};
  FileListBox FilePlaylist{*this, "FilePlaylist"};
  ListView ListPlay{*this, "ListPlay"};
  CommandButton btnUp{*this, "btnUp"};
  CommandButton btnDown{*this, "btnDown"};
  CommandButton btnMostUp{*this, "btnMostUp"};
  CommandButton btnMostDown{*this, "btnMostDown"};
  CommandButton cmdRemove{*this, "cmdRemove"};
  CommandButton btnCreateList{*this, "btnCreateList"};
  CommandButton btnDeletePlaylist{*this, "btnDeletePlaylist"};
  CommandButton ThemedButton1{*this, "ThemedButton1"};

  CheckBox chkFolderPlay{*this, "chkFolderPlay"};
  CheckBox chkRendomPlay{*this, "chkRendomPlay"};
  CheckBox chkOneAfterAnother{*this, "chkOneAfterAnother"};
  CheckBox chkPreview{*this, "chkPreview"};
  CheckBox chkTime{*this, "chkTime"};
  CheckBox chkDaySchedule{*this, "chkDaySchedule"};
  CheckBox chkLastPlay{*this, "chkLastPlay"};
  CheckBox ChkQuickPlay{*this, "ChkQuickPlay"};
  ColourPanel PicTimeOn{*this, "PicTimeOn"};

  TextBox txtPath{*this, "txtPath"};
  CommandButton btnBrows{*this, "btnBrows"};
  FileListBox FileList{*this, "FileList"};
  CommandButton btnLoadFolder{*this, "btnLoadFolder"};
  FileListBox FileQuick{*this, "FileQuick"};

  DatePicker TP{*this, "TP"};
  TextBox txtDuration{*this, "txtDuration"};
  TextBox txtEndTime{*this, "txtEndTime"};
  TextBox txtFilename{*this, "txtFilename"};
  CommandButton btnAdd{*this, "btnAdd"};

  PlayerControl Player{*this, "Player"};  // the preview; silent
  Slider SldPlayer{*this, "SldPlayer"};
  Label lblTime{*this, "lblTime"};

  DatePicker dpSDate{*this, "dpSDate"};
  DatePicker dpSTime{*this, "dpSTime"};
  ComboBox cmbPlaylist{*this, "cmbPlaylist"};
  ListView ListSchedule{*this, "ListSchedule"};
  CommandButton vkCommand2{*this, "vkCommand2"};
  CommandButton vkCommand3{*this, "vkCommand3"};

  CommandButton Command1{*this, "Command1"};
  CommandButton Command2{*this, "Command2"};
  CommandButton Command3{*this, "Command3"};

  // Part of the look; nothing uses them.
  ListView ListTime{*this, "ListTime"};
  DatePicker dpTime{*this, "dpTime"};
  Label mediaDuration{*this, "mediaDuration"};
  CommandButton btnCreatePlaylist{*this, "btnCreatePlaylist"};
  TextBox Text1{*this, "Text1"};

  // In turn: shows the clock; plays the next item once, but nothing enables it; keeps the slider at the place of the
  // item on the air; records that place for the next start; seeks to the recorded place, once.
  Timer Timer1{*this, "Timer1", std::chrono::milliseconds(1000), Timer::kEnabled, TickPhase::kWallSecond};
  Timer Timer2{*this, "Timer2", std::chrono::milliseconds(1000), Timer::kDisabled};
  Timer Timer3{*this, "Timer3", std::chrono::milliseconds(1000), Timer::kEnabled};
  Timer Timer4{*this, "Timer4", std::chrono::milliseconds(1000), Timer::kDisabled};
  Timer Timer5{*this, "Timer5", std::chrono::milliseconds(500), Timer::kEnabled};
  // Looks for the row that starts this second; for the playlist that is due; for the duration of the chosen file;
  // nothing uses the last.
  Timer TimerFind{*this, "TimerFind", std::chrono::milliseconds(1000), Timer::kEnabled, TickPhase::kWallSecond};
  Timer TimerDay{*this, "TimerDay", std::chrono::milliseconds(100), Timer::kEnabled};
  Timer TimerGetDuration{*this, "TimerGetDuration", std::chrono::milliseconds(100), Timer::kDisabled};
  Timer TimerFileAd{*this, "TimerFileAd", std::chrono::milliseconds(2000), Timer::kDisabled};

  FormExtender win{*this, "win"};

  // Puts the options and the lists as Settings.ini has them.
  void LoadConfig();

  // Fills the list from the playlist file that is open now; selection and cursors elsewhere stay.
  void LoadPlaylist(ListView& list);
  // Writes the rows of `list` as the playlist file `name`.
  void SavePlaylist(const ListView& list, const std::string& name);
  // Adds all playlists to the combo, behind what it holds already: a second call doubles its rows. Meant so.
  void LoadPlaylistToCmb();

  // Fills the list from the day schedule's file.
  void LoadSchedule(ListView& list);
  // Selects and shows the first row that begins with `text`; nothing happens when there is none.
  void SearchEntry(ListView& list, const std::string& text);

  // Puts the next item on the air from the source that the boxes choose now; nothing happens when there is none.
  void PlayNext();
  void PlayNextFolder();
  void PlayNextSchdule();
  // Steps the quick list, on the preview player; never on the air.
  void PlayNextQuick();
  // The output player has opened an item: the slider ends where the item does.
  void TakeDuration(frmPlayer& output);
  // Plays a file on the preview player.
  void Play(const std::string& path);

 protected:
  void Load() override;
  bool MayUnload() override;

 private:
  void ConnectOptions();
  void ConnectFiles();
  void ConnectSequencer();
  void ConnectSchedules();
  void ConnectResume();
  void ConnectEditing();

  std::string Setting(const std::string& key) const;
  void WriteSetting(const std::string& key, const std::string& value);
  void ApplyTimeSchedule();
  void ApplyDaySchedule();
  void Timer1_Tick();
  void Timer3_Tick();
  void btnBrows_Click();
  void btnLoadFolder_Click();
  std::string AskForFolder(FileListBox& files, const std::string& key);

  void FilePlaylist_Click();
  void FileList_Click();
  void ListPlay_Click();
  void TimerFind_Tick();
  void TimerDay_Tick();
  void vkCommand2_Click();
  void vkCommand3_Click();
  void Timer4_Tick();
  void Timer5_Tick();
  void TimerGetDuration_Tick();
  void RestoreLastPlay();
  void ProbeFile();
  void ShowDuration();
  void btnAdd_Click();
  void cmdRemove_Click();
  void MoveRows(RowMove move);
  void btnCreateList_Click();
  void btnDeletePlaylist_Click();
  void PlayNextInSequence();
  void PlayRandomRow();

  // What the combo of playlists shows at rest.
  static constexpr char kNoPlaylist[] = "Select playlist";

  Station& station_;
  std::string PlaylistFolder;
  int FolderIndex = 0;  // in FileList, from 0
  // The row last played in sequence, from 1; 0 before the first. A start by hand or by a schedule leaves it alone.
  int ListCursor = 0;
  bool Blink = false;   // PicTimeOn is red now
  int QuickCursor = 0;  // 1 + the index in FileQuick
};
