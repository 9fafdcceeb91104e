#pragma once

#include <cstdint>
#include <string>

#include "platform/toolkit/Form.h"
#include "platform/toolkit/ListView.h"
#include "platform/toolkit/PlayerControl.h"
#include "platform/toolkit/Timer.h"
#include "platform/toolkit/Widgets.h"
#include "settings/Station.h"

// The video ads: the store's desk, the countdown to the next break, and the break itself, which stops the programme,
// covers it with some ads and lets it go on where it stood. Closing it only hides it: the countdown goes on.
class frmVideoAdSett : public Form {
 public:
  explicit frmVideoAdSett(Station& station);

  ListView ListAd{*this, "ListAd"};
  CommandButton btnDelete{*this, "btnDelete"};
  PlayerControl AdView{*this, "AdView"};  // the preview; silent

  TextBox txtAdName{*this, "txtAdName"};
  TextBox txtFileName{*this, "txtFileName"};
  TextBox txtCompany{*this, "txtCompany"};
  TextBox txtAddress{*this, "txtAddress"};
  CommandButton vkCommand1{*this, "vkCommand1"};  // chooses the video of a new ad
  CommandButton vkCommand2{*this, "vkCommand2"};  // makes the ad

  ComboBox CmbAdplay{*this, "CmbAdplay"};  // ads a break
  ComboBox CmbBreak{*this, "CmbBreak"};    // minutes between breaks
  TextBox txtAdTime{*this, "txtAdTime"};   // seconds to the next break

  Timer Timer1{*this, "Timer1", std::chrono::milliseconds(1000), Timer::kDisabled};

  std::string AdFile;            // full path of the video that is chosen for a new ad
  std::int32_t AdCount = 0;      // of the list, as LoadSett found it
  std::int32_t AdIndex = 0;      // row of the ad that was played last, from 1
  std::int32_t BreakCount = 0;   // calls of NextAd in the running break
  std::int32_t AdTime = 0;       // minutes between breaks
  std::int16_t AdTimeCount = 0;  // seconds since the last break; counts no further than it can

  // Starts the next ad of the break, or ends the break. An ad that cannot be played is never over, and neither is the
  // break: the programme stays paused until the operator steps in.
  void NextAd();
  // Reads the store and the settings anew. The choices of the minutes are added to those that are there.
  void LoadSett();
  // Writes the description of the ad that is named in txtAdName.
  void WriteAdInfo();

 protected:
  void Load() override;
  bool MayUnload() override;

 private:
  void Timer1_Tick();
  void StartBreak();
  void EndBreak();
  void TakeStoredNumbers();

  void ListAd_Click();
  void CmbBreak_Click();
  void vkCommand1_Click();
  void vkCommand2_Click();
  void btnDelete_Click();
  // The path of the video that the shared ad file names, in the folder of the ad `name`.
  std::string VideoOf(const std::string& name) const;
  void WriteSetting(const char* key, const std::string& value);

  Station& station_;
};
