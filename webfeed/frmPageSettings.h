#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "platform/toolkit/BrowserControl.h"
#include "platform/toolkit/Form.h"
#include "platform/toolkit/ListBox.h"
#include "platform/toolkit/Timer.h"
#include "platform/toolkit/Widgets.h"
#include "settings/FormExtender.h"
#include "settings/Station.h"

class FrmWeb;

// The desk of the web feed: its pages, where the page stands in its window, and the options. The page is refreshed by
// the clock only while this form is there.
class frmPageSettings : public Form {
 public:
  explicit frmPageSettings(Station& station);

  ListBox listPage{*this, "listPage"};
  CommandButton btnAdd{*this, "btnAdd"};
  CommandButton btnDelete{*this, "btnDelete"};
  CommandButton btnStartUPpage{*this, "btnStartUPpage"};
  Label lblStartPage{*this, "lblStartPage"};

  TextBox txtURL{*this, "txtURL"};  // shows an address; nothing reads it
  CommandButton btnGo{*this, "btnGo"};
  CommandButton vkCommand4{*this, "vkCommand4"};  // to the preview
  BrowserControl WebPre{*this, "WebPre"};
  Label lblUrlPre{*this, "lblUrlPre"};

  CheckBox chkOntop{*this, "chkOntop"};
  CheckBox chkEnable{*this, "chkEnable"};
  CheckBox chkRefresh{*this, "chkRefresh"};
  ComboBox cmbMin{*this, "cmbMin"};
  Slider scrlTrans{*this, "scrlTrans"};
  TextBox txtTrans{*this, "txtTrans"};
  CommandButton Command2{*this, "Command2"};
  CommandButton vkCommand1{*this, "vkCommand1"};  // tells the size of the page's text
  CommandButton vkCommand2{*this, "vkCommand2"};  // makes it larger

  CommandButton btnLocation_0{*this, "btnLocation_0"};
  CommandButton btnLocation_1{*this, "btnLocation_1"};
  CommandButton btnLocation_2{*this, "btnLocation_2"};
  CommandButton btnLocation_3{*this, "btnLocation_3"};
  CommandButton btnSave{*this, "btnSave"};

  CommandButton vkCommand5{*this, "vkCommand5"};
  CommandButton vkCommand3{*this, "vkCommand3"};  // ends the whole program

  Timer Timer1{*this, "Timer1", std::chrono::milliseconds(50), Timer::kDisabled};
  Timer Timer2{*this, "Timer2", std::chrono::milliseconds(50), Timer::kDisabled};
  Timer Timer3{*this, "Timer3", std::chrono::milliseconds(50), Timer::kDisabled};
  Timer Timer4{*this, "Timer4", std::chrono::milliseconds(50), Timer::kDisabled};
  Timer Timer5{*this, "Timer5", std::chrono::milliseconds(1000), Timer::kDisabled};

  FormExtender win{*this, "win"};

  // Shows the sections of the file that DataIni means, whichever that is.
  void LoadPageLisy();
  // Shows the options as they are stored; runs no handlers.
  void LoadSettings();
  // Stores where the page stands in its window, and the window on the screen, under the page that was loaded last.
  void btnSave_Click();

  std::int16_t RefreshSeconds = 0;  // 0 refreshes each second

 protected:
  void Load() override;

 private:
  void ConnectPages();
  void ConnectOptions();
  void ConnectPlace();
  void listPage_Click();
  void Preview();
  void btnAdd_Click();
  void btnDelete_Click();
  void btnStartUPpage_Click();
  void btnGo_Click();
  void chkOntop_Click();
  void chkRefresh_Click();
  void cmbMin_Click();
  void scrlTrans_Change();
  void vkCommand1_Click();
  void vkCommand2_Click();
  void vkCommand3_Click();
  void Timer5_Tick();
  void ApplyRefresh();

  FrmWeb& Feed();
  std::string PageSetting(const char* section, const char* key);

  Station& station_;
  std::string SelectedPage;  // the page that was clicked or added last
  std::int16_t RefreshCounter = 0;
};
