#pragma once

#include <string>

#include "overlay/Headlines.h"
#include "overlay/NewsFeed.h"
#include "platform/toolkit/FlashBox.h"
#include "platform/toolkit/Form.h"
#include "platform/toolkit/Panes.h"
#include "platform/toolkit/Timer.h"
#include "settings/FormExtender.h"
#include "settings/Station.h"

// The news strip: a movie with one line of text, opaque, above the picture on the air. Once in each loop of the movie,
// three frames before its end, the operator's next headline, or the feed's next title, takes its turn; without one the
// movie goes on with the text that it has.
class frmBreakingNews : public Form {
 public:
  explicit frmBreakingNews(Station& station);

  // Both cover the form, so that no mouse reaches what it does by itself.
  FlashBox Flash{*this, "Flash"};
  PictureBox Pic{*this, "Pic"};

  Timer Timer1{*this, "Timer1", std::chrono::milliseconds(0), Timer::kEnabled};  // of no interval: never ticks
  Timer Timer2{*this, "Timer2", std::chrono::milliseconds(1), Timer::kEnabled};
  Timer TimerFeed{*this, "TimerFeed", std::chrono::milliseconds(1000), Timer::kEnabled};

  FormExtender win{*this, "win"};

  // Starts the movie anew, with this text in its line.
  void LoadNews(const std::string& text);

 protected:
  void Load() override;

 private:
  void Fill(Control& control);
  void Timer2_Tick();
  void TakeStoredLeft();

  Station& station_;
  Headlines news_;
  NewsFeed feed_;
  bool newsIsDue_ = false;  // the frame at which the next text is asked for has come
};
