#pragma once

#include "platform/toolkit/Form.h"
#include "platform/toolkit/Timer.h"
#include "platform/toolkit/Widgets.h"
#include "settings/Station.h"

// The splash: the first form of the program. It stands for two seconds, then until the control window's load, with
// all that it restores, is done.
class frmLoad : public Form {
 public:
  explicit frmLoad(Station& station);

  CommandButton Command1{*this, "Command1"};  // ends the process, with nothing restored
  Timer Timer1{*this, "Timer1", std::chrono::milliseconds(2000), Timer::kEnabled};  // brings the control window up

 protected:
  void Load() override;

 private:
  void Timer1_Tick();

  Station& station_;
};
