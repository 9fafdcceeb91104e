#pragma once

#include "platform/toolkit/EdgeGrips.h"
#include "platform/toolkit/Form.h"
#include "platform/toolkit/Panes.h"
#include "platform/toolkit/Timer.h"
#include "settings/Station.h"

// A scrolling window that stands by itself: as wide as the screen, with a picture that comes in from the right again
// when it has left. It shows what is put into its pane; nothing in the station opens it or puts anything there.
class frmScrlAd : public Form {
 public:
  explicit frmScrlAd(Station& station);

  PictureBox pic{*this, "pic", PictureBox::Sizing::kByPicture};
  Timer Timer1{*this, "Timer1", std::chrono::milliseconds(1), Timer::kEnabled};

 protected:
  void Load() override;

 private:
  void Timer1_Tick();

  EdgeGrips grips_{*this};
};
