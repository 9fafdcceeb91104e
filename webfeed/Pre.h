#pragma once

#include <cstdint>
#include <string>

#include "platform/toolkit/BrowserControl.h"
#include "platform/toolkit/Panes.h"
#include "platform/toolkit/UserControl.h"

// A web page with neither scroll bars nor a frame. The browser is larger than the panel that holds it and overhangs it
// on all sides, so that its border and whatever bars a page still draws are out of sight.
class Pre : public UserControl {
 public:
  Pre(Form& form, std::string name);
  Pre(Control& container, std::string name);
  std::string_view Layout() const override { return "Pre"; }

  PictureBox picWeb{*this, "picWeb"};
  BrowserControl Web{picWeb, "Web"};

  // Of the panel. A form that places the control and wants others sets them when it is made.
  Property<LookColour> BackColor{LookColour::System::kWindow};
  Property<LookColour> ForeColor{LookColour::System::kWindowText};
  Property<std::int16_t> BorderStyle{1};

  // Opens what was typed as an address. All five are handed on to the browser; see BrowserControl::Navigate.
  void Navigate(const std::string& URL, int Flags = 0, const std::string& TargetFrameName = {},
                const std::string& PostData = {}, const std::string& Headers = {});

 private:
  void Connect();
  void LayOut();
};
