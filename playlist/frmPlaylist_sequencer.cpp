// What plays next. There is no queue: the boxes are read at each call, and nothing remembers what was interrupted.
#include "output/frmPlayer.h"
#include "platform/Clock.h"
#include "platform/toolkit/Failures.h"
#include "playlist/PlaylistText.h"
#include "playlist/frmPlaylist.h"
#include "settings/Helpers.h"

void frmPlaylist::ConnectSequencer() {
  ListPlay.Click.Connect([this] { SkippingFailures([this] { ListPlay_Click(); }); });
  FileList.Click.Connect([this] { FileList_Click(); });
  FileQuick.Click.Connect([this] {
    if (chkPreview.Ticked()) QuickCursor = FileQuick.ListIndex + 1;
  });
  Timer2.Tick.Connect([this] {
    PlayNext();
    Timer2.Enabled = false;
  });
  Command1.Click.Connect([this] { station_.forms.Get<frmPlayer>().m.URL = station_.dataFolder.Path("\\test.avi"); });
  Command2.Click.Connect([this] { PlayNext(); });
  Command3.Click.Connect([this] { PlayNextQuick(); });
}

void frmPlaylist::PlayNext() {
  SkippingFailures([this] {
    if (chkFolderPlay.Ticked()) {
      PlayNextFolder();
    } else {
      PlayNextSchdule();
    }
  });
}

void frmPlaylist::PlayNextSchdule() {
  if (chkRendomPlay.Ticked()) {
    PlayRandomRow();
  } else {
    PlayNextInSequence();
  }
  WriteSetting("LastIndex", std::to_string(ListCursor - 1));
}

// The file is not looked for: a missing one stops the show until something else starts. Meant so.
void frmPlaylist::PlayRandomRow() {
  ListPlay.Select(RandomBetween(1, ListPlay.Count(), Outside().clock));
  station_.forms.Get<frmPlayer>().MainPlay(ListPlay.Selected().SubItem(kFilePath));
}

// A missing row asks PlayNext anew, which is to say the boxes decide again; one pass over the rows is the bound.
void frmPlaylist::PlayNextInSequence() {
  for (int left = ListPlay.Count();; --left) {
    ++ListCursor;
    if (ListCursor > ListPlay.Count()) ListCursor = 1;
    ListPlay.Select(ListCursor);
    const std::string path = ListPlay.Selected().SubItem(kFilePath);
    if (FileExists(Outside().files, path)) {
      station_.forms.Get<frmPlayer>().MainPlay(path);
      return;
    }
    if (chkFolderPlay.Ticked()) {
      PlayNextFolder();
      return;
    }
    if (left <= 1) return;
  }
}

void frmPlaylist::PlayNextFolder() {
  FileList.Refresh();
  if (chkRendomPlay.Ticked()) {
    // The draw leaves the last file out. Meant so.
    const int drawn = RandomBetween(1, FileList.ListCount() - 1, Outside().clock);
    SkippingFailures([&] { FileList.ListIndex = drawn - 1; });
  } else {
    ++FolderIndex;
    SkippingFailures([&] { FileList.ListIndex = FolderIndex; });
    if (FolderIndex >= FileList.ListCount()) {
      FolderIndex = 0;
      SkippingFailures([&] { FileList.ListIndex = 0; });
    }
  }
  WriteSetting("LastIndex", "-1");
}

void frmPlaylist::FileList_Click() {
  if (!chkFolderPlay.Ticked()) {
    ProbeFile();
    return;
  }
  const std::string path = FileList.FilePath();
  if (chkPreview.Ticked()) {
    Play(path);
  } else {
    station_.forms.Get<frmPlayer>().MainPlay(path);
    FolderIndex = FileList.ListIndex;
  }
  WriteSetting("LastPlayFolder", std::to_string(FileList.ListIndex));
}

void frmPlaylist::PlayNextQuick() {
  if (QuickCursor >= FileQuick.ListCount()) QuickCursor = 0;
  ++QuickCursor;
  SkippingFailures([this] { FileQuick.ListIndex = QuickCursor - 1; }, [this] { Play(FileQuick.FilePath()); });
}

void frmPlaylist::Play(const std::string& path) { Player.URL = path; }

void frmPlaylist::ListPlay_Click() {
  const std::string path = ListPlay.Selected().SubItem(kFilePath);
  if (chkPreview.Ticked()) {
    Play(path);
  } else if (FileExists(Outside().files, path)) {
    station_.forms.Get<frmPlayer>().MainPlay(path);
    WriteSetting("LastPlaySchdule", std::to_string(ListPlay.SelectedItem()));
    WriteSetting("LastPlaylist", FilePlaylist.FileName());
  } else {
    PlayNext();
  }
}
