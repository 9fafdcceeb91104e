#include "shell/frmSettings.h"

#include "platform/Desktop.h"
#include "platform/WholeNumber.h"
#include "settings/Numbers.h"

namespace {

constexpr char kSection[] = "Settings";

}  // namespace

frmSettings::frmSettings(Station& station) : Form(station.forms, "frmSettings", Kind::kOperator), station_(station) {
  Caption = "System settings";
  Width = ToTwips(560);
  Height = ToTwips(360);
  WhenClicked(chkMouse, "ShowMouse", &frmSettings::SwitchCursor);
  WhenClicked(ChkTaskBar, "ShowTaskbar", &frmSettings::SwitchTaskbar);
  WhenClicked(chkStartUp, "StartUp", nullptr);
  WhenClicked(chkPass, "NeedPass", nullptr);
  btnPassSave.Click.Connect([this] { btnPassSave_Click(); });
  btnSaveExt.Click.Connect([this] { btnSaveExt_Click(); });
  btnAudio.Click.Connect([this] { Outside().desktop.OpenVolumePanel(); });
  ThemedButton1.Click.Connect([this] { Outside().desktop.OpenDatePanel(); });
}

void frmSettings::Load() {
  station_.stores.SettingsFile();
  LoadSettings();
}

std::string frmSettings::Setting(const char* key) { return station_.stores.SettingsIni.ReadValue(kSection, key, ""); }

void frmSettings::Write(const char* key, const std::string& value) {
  station_.stores.SettingsIni.WriteValue(kSection, key, value);
}

void frmSettings::LoadSettings() {
  const struct {
    CheckBox& box;
    const char* key;
  } boxes[] = {{chkStartUp, "StartUp"}, {chkPass, "NeedPass"}, {chkMouse, "ShowMouse"}, {ChkTaskBar, "ShowTaskbar"}};
  for (const auto& row : boxes) row.box.Value = CutToWhole<int>(Val(Setting(row.key)));
  CurrentPassword = DoubleText(Val(Setting("NeedPass")));
  txtExt.Text = Setting("Ext");
  txtPass.Text = Setting("Password");
}

void frmSettings::WhenClicked(CheckBox& box, const char* key, void (frmSettings::*act)()) {
  box.Click.Connect([this, &box, key, act] {
    Write(key, std::to_string(box.Value.Get()));
    if (act != nullptr) (this->*act)();
  });
}

// The desktop counts these calls: the pointer is there again after as many of the one kind as of the other.
void frmSettings::SwitchCursor() { Outside().desktop.ShowCursor(chkMouse.Ticked()); }

void frmSettings::SwitchTaskbar() { Outside().desktop.SetTaskbarVisible(ChkTaskBar.Ticked()); }

// After a wrong answer the question comes once more, and nobody reads what is answered. Meant so.
void frmSettings::btnPassSave_Click() {
  const auto ask = [this] { return InputBox("Please enter the current password", "Password"); };
  if (ask() == CurrentPassword) {
    Write("Password", txtPass.Text);
    LoadSettings();
    MsgBox("Pass word has been changed", Buttons::kOk, "Password");
  } else {
    MsgBox("Wrong password", Buttons::kOk, "Error");
    ask();
  }
}

void frmSettings::btnSaveExt_Click() {
  Write("Ext", txtExt.Text);
  MsgBox("Settings has been saved", Buttons::kOk, "Settings");
  LoadSettings();
}
