#pragma once

#include <string>

#include "platform/toolkit/Form.h"
#include "platform/toolkit/Widgets.h"
#include "settings/Station.h"

// The settings of the station itself. A box takes effect and is written at once; the two texts have buttons.
class frmSettings : public Form {
 public:
  explicit frmSettings(Station& station);

  Frame vkFrame1{*this, "vkFrame1"};
  CheckBox chkMouse{*this, "chkMouse"};
  CheckBox ChkTaskBar{*this, "ChkTaskBar"};
  CheckBox chkStartUp{*this, "chkStartUp"};
  TextBox txtExt{*this, "txtExt"};
  CommandButton btnSaveExt{*this, "btnSaveExt"};
  CommandButton btnAudio{*this, "btnAudio"};            // the desktop's volume
  CommandButton ThemedButton1{*this, "ThemedButton1"};  // the desktop's date and time
  Frame vkFrame2{*this, "vkFrame2"};
  CheckBox chkPass{*this, "chkPass"};
  TextBox txtPass{*this, "txtPass"};
  CommandButton btnPassSave{*this, "btnPassSave"};

  // What is asked for before a new password is taken: the number in NeedPass, and not the password. Meant so.
  std::string CurrentPassword;

 protected:
  void Load() override;

 private:
  void LoadSettings();
  std::string Setting(const char* key);
  void Write(const char* key, const std::string& value);
  // Writes the box's value, and then does what it switches.
  void WhenClicked(CheckBox& box, const char* key, void (frmSettings::*act)());
  void SwitchCursor();
  void SwitchTaskbar();
  void btnPassSave_Click();
  void btnSaveExt_Click();

  Station& station_;
};
