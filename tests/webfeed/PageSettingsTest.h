#pragma once

#include "tests/webfeed/WebFeedTest.h"

// The desk of the web feed and its operator.
class PageSettingsTest : public WebFeedTest {
 protected:
  Names Listed() {
    Names names;
    for (int i = 0; i < Desk().listPage.ListCount(); ++i) names.push_back(Desk().listPage.List(i));
    return names;
  }
  void Pick(const std::string& name) {
    const Names names = Listed();
    const auto found = std::ranges::find(names, name);
    ASSERT_NE(found, names.end()) << name;
    Desk().listPage.Pick(static_cast<int>(found - names.begin()));
  }
  // The operator presses the button with the mouse for that long.
  void Hold(CommandButton& button, std::chrono::milliseconds time) {
    button.PressMouse(MouseButton::kLeft);
    Advance(time);
    button.ReleaseMouse(MouseButton::kLeft);
    button.Press();
  }
  int Reloads() {
    const Names lines = sim.trace.Take();
    return static_cast<int>(std::ranges::count(lines, "FrmWeb.Web reload"));
  }
  std::string LastBox() {
    std::string last;
    for (const std::string& line : sim.trace.Take()) {
      if (line.starts_with("box ")) last = line;
    }
    return last;
  }
};
