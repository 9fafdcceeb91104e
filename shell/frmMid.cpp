#include "shell/frmMid.h"

#include "output/frmPlayer.h"
#include "platform/Desktop.h"
#include "playlist/frmPlaylist.h"
#include "shell/ConfirmExit.h"

namespace {

enum HotKey { kShowControl = 0, kExit = 1, kShowTaskbar = 2, kShowCursor = 3 };

constexpr struct {
  HotKey id;
  char letter;
} kHotKeys[] = {{kShowControl, 'M'}, {kExit, 'X'}, {kShowTaskbar, 'T'}, {kShowCursor, 'O'}};

}  // namespace

frmMid::frmMid(Station& station) : Form(station.forms, "frmMid", Kind::kOperator), station_(station) {
  Width = ToTwips(960);
  Height = ToTwips(420);
  ThemedButton5.Click.Connect([this] { station_.forms.Get<frmPlaylist>().PlayNext(); });
  ThemedButton6.Click.Connect([this] { station_.forms.Get<frmPlayer>().Player.controls.stop(); });
  Picture1.MouseDown.Connect([this](MouseButton) { MoveTo(); });
  ConnectMenu();
}

void frmMid::Load() {
  station_.stores.SettingsFile();
  LoadSett();
  RegisterRunAtStart();
  Tray.TipText = "Corvanta 5.0";  // older than the title. Meant so.
  for (const auto& key : kHotKeys) {
    Outside().desktop.RegisterHotKey(
        key.id, key.letter, [this, id = key.id] { Handle({.event = "HotKey"}, [this, id] { OnHotKey(id); }); });
  }
  Outside().desktop.WhenStartedAgain([this] { Handle({.event = "StartedAgain"}, [this] { Show(); }); });
  Outside().desktop.SetScreenSaverActive(0);
  Caption = kStandardTitle;
}

bool frmMid::MayUnload() {
  if (AllowClose) return true;
  Hide();
  Tray.Visible = true;
  return false;
}

void frmMid::RegisterRunAtStart() {
  Desktop& desktop = Outside().desktop;
  desktop.RunAtLogOn("My App", station_.dataFolder.Folder() + "/" + desktop.ProgramName());
}

// Ctrl+T and Ctrl+O only bring back; what they write keeps it so at the next start.
void frmMid::OnHotKey(int id) {
  IniFile& settings = station_.stores.SettingsIni;
  switch (id) {
    case kShowControl:
      Show();
      break;
    case kExit:
      ConfirmExit(*this);
      break;
    case kShowTaskbar:
      Outside().desktop.SetTaskbarVisible(true);
      settings.WriteValue("Settings", "ShowTaskbar", "1");
      break;
    case kShowCursor:
      Outside().desktop.ShowCursor(true);
      settings.WriteValue("Settings", "ShowMouse", "1");
      break;
  }
}
