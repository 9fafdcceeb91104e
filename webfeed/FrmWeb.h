#pragma once

#include <string>

#include "platform/toolkit/BrowserControl.h"
#include "platform/toolkit/EdgeGrips.h"
#include "platform/toolkit/Form.h"
#include "platform/toolkit/Panes.h"
#include "platform/toolkit/Timer.h"
#include "settings/FormExtender.h"
#include "settings/Station.h"
#include "webfeed/PageStore.h"

// A web page over the picture on the air. The page is as large as the screen, and the window is a peephole on it: where
// the page stands in the window tells which part of it is seen. While the page takes no clicks the window is moved and
// sized by hand.
class FrmWeb : public Form {
 public:
  explicit FrmWeb(Station& station);

  PictureBox picWeb{*this, "picWeb"};  // as large as the screen, nothing of its own to be seen
  BrowserControl Web{picWeb, "Web"};
  PictureBox picTxt{*this, "picTxt"};  // in the middle, until the page is seen in front of it
  PaneText lblNet{picTxt, "lblNet"};
  PaneText lblInfo{picTxt, "lblInfo"};  // what the browser says of itself

  Timer Timer1{*this, "Timer1", std::chrono::milliseconds(500), Timer::kDisabled};  // nothing starts it
  Timer Timer2{*this, "Timer2", std::chrono::milliseconds(500), Timer::kEnabled};

  FormExtender win{*this, "win"};

  // Opens the page of that name, and gives the window its place.
  void LoadPage(const std::string& PageName);
  void LoadSett();
  // As it stands now.
  PagePlace Place() const;

 protected:
  void Load() override;
  // Closing the window stores its place, whether or not the desk is open; the desk goes with it.
  bool MayUnload() override;

 private:
  void CentreText();
  void Timer1_Tick();
  void Timer2_Tick();

  Station& station_;
  EdgeGrips grips_{*this};
};
