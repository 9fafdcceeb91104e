#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "platform/sim/SimWorld.h"
#include "platform/toolkit/Form.h"
#include "settings/Station.h"
#include "webfeed/Pre.h"

namespace {

using namespace std::chrono_literals;
using System = LookColour::System;

class frmPreviews : public Form {
 public:
  explicit frmPreviews(Station& station) : Form(station.forms, "frmPreviews", Kind::kOperator) {}

  Pre Page{*this, "Page"};
};

class PreTest : public testing::Test {
 protected:
  PreTest() {
    pre.Click.Connect([this] { told.push_back("Click"); });
    pre.DblClick.Connect([this] { told.push_back("DblClick"); });
    const auto mouse = [this](const std::string& event) {
      return [this, event](std::int16_t button, std::int16_t shift, float x, float y) {
        told.push_back(event + " " + std::to_string(button) + " " + std::to_string(shift) + " " +
                       std::to_string(static_cast<int>(x)) + " " + std::to_string(static_cast<int>(y)));
      };
    };
    const auto key = [this](const std::string& event) {
      return [this, event](std::int16_t code, std::int16_t shift) {
        told.push_back(event + " " + std::to_string(code) + " " + std::to_string(shift));
      };
    };
    pre.MouseDown.Connect(mouse("MouseDown"));
    pre.MouseMove.Connect(mouse("MouseMove"));
    pre.MouseUp.Connect(mouse("MouseUp"));
    pre.KeyDown.Connect(key("KeyDown"));
    pre.KeyUp.Connect(key("KeyUp"));
    pre.KeyPress.Connect([this](std::int16_t letter) { told.push_back("KeyPress " + std::to_string(letter)); });
  }

  SimPage& Page() { return *sim.browser.Find("frmPreviews.Page.Web"); }

  SimWorld sim;
  Station station{sim.world, "/station"};
  Pre& pre = station.forms.Get<frmPreviews>().Page;
  std::vector<std::string> told;
};

using Lines = std::vector<std::string>;

TEST_F(PreTest, OneThatIsPlacedFirstHasTheColoursOfAWindowAndABorder) {
  EXPECT_EQ(pre.BackColor.Get(), LookColour(System::kWindow));
  EXPECT_EQ(pre.ForeColor.Get(), LookColour(System::kWindowText));
  EXPECT_EQ(pre.BorderStyle, 1);
  EXPECT_TRUE(pre.Enabled);
  EXPECT_EQ(pre.picWeb.BackColor.Get(), LookColour(System::kWindow));
  EXPECT_EQ(pre.picWeb.ForeColor.Get(), LookColour(System::kWindowText));
  EXPECT_EQ(pre.picWeb.BorderStyle, 1);
  EXPECT_TRUE(pre.Web.Offline);
}

TEST_F(PreTest, WhatIsSetIsHandedDownToThePanelAndTold) {
  int changes = 0;
  for (Event<>* changed : {&pre.BackColor.Changed, &pre.ForeColor.Changed, &pre.BorderStyle.Changed}) {
    changed->Connect([&changes] { ++changes; });
  }
  pre.BackColor = kRed;
  pre.ForeColor = kWhite;
  pre.BorderStyle = 0;
  EXPECT_EQ(pre.picWeb.BackColor.Get(), LookColour(kRed));
  EXPECT_EQ(pre.picWeb.ForeColor.Get(), LookColour(kWhite));
  EXPECT_EQ(pre.picWeb.BorderStyle, 0);
  EXPECT_EQ(changes, 3);
  pre.Enabled = false;
  EXPECT_TRUE(pre.picWeb.Enabled) << "that one is the control's own";
}

TEST_F(PreTest, AResizeKeepsTheOverhang) {
  for (const Twips size : {6000.0, 3000.0}) {
    pre.Web.Silent = false;
    pre.TakeSize(size, size / 2);
    EXPECT_EQ(pre.picWeb.Left, 0);
    EXPECT_EQ(pre.picWeb.Top, 0);
    EXPECT_EQ(pre.picWeb.Width, size);
    EXPECT_EQ(pre.picWeb.Height, size / 2);
    EXPECT_EQ(pre.Web.Left, -20);
    EXPECT_EQ(pre.Web.Top, -20);
    EXPECT_EQ(pre.Web.Width, size + 200);
    EXPECT_EQ(pre.Web.Height, size / 2 + 250);
    EXPECT_TRUE(pre.Web.Silent);
  }
}

TEST_F(PreTest, AnAddressIsOpenedWithWhateverElseIsHandedOn) {
  pre.Navigate("news.example");
  EXPECT_EQ(Page().Address(), "http://news.example");
  pre.Navigate("board.example", 2, "_self", "a=b", "X-Board: 1");
  EXPECT_EQ(Page().Address(), "http://board.example");
}

TEST_F(PreTest, ARefreshDrawsTheSurfaceAnewAndDoesNotReloadThePage) {
  pre.Navigate("news.example");
  sim.time.Advance(1s);
  int drawn = 0;
  pre.Redraw.Connect([&drawn] { ++drawn; });
  pre.Refresh();
  sim.time.Advance(1s);
  EXPECT_EQ(drawn, 1);
  EXPECT_EQ(Page().Loads(), 1);
}

TEST_F(PreTest, ADocumentThatIsThereLosesItsScrollBars) {
  pre.Navigate("news.example");
  EXPECT_TRUE(Page().Looks().scrollBars);
  sim.time.Advance(1s);
  EXPECT_FALSE(Page().Looks().scrollBars);
}

TEST_F(PreTest, WhatHappensOnItsOwnSurfaceIsTold) {
  pre.TakeSize(3000, 3000);
  pre.MoveTo(0, 0, 100, 200);
  pre.PressAt(UserControl::kLeft, UserControl::kShift, 100, 200);
  pre.ReleaseAt(UserControl::kLeft, 0, 110, 210);
  pre.PressTwice();
  pre.ReleaseAt(UserControl::kLeft, 0, 110, 210);
  EXPECT_EQ(told, (Lines{"MouseMove 0 0 100 200", "MouseDown 1 1 100 200", "MouseUp 1 0 110 210", "Click", "DblClick",
                         "MouseUp 1 0 110 210"}));
  told.clear();
  pre.PressKey(65, UserControl::kCtrl, 1);
  pre.ReleaseKey(65, 0);
  pre.PressKey(37, 0, 0);
  EXPECT_EQ(told, (Lines{"KeyDown 65 2", "KeyPress 1", "KeyUp 65 0", "KeyDown 37 0"}));
}

TEST_F(PreTest, TheRightButtonAndOneThatIsLetGoOutsideAreNoClick) {
  pre.TakeSize(3000, 3000);
  pre.PressAt(UserControl::kRight, 0, 1, 1);
  pre.ReleaseAt(UserControl::kRight, 0, 1, 1);
  pre.PressAt(UserControl::kLeft, 0, 1, 1);
  pre.ReleaseAt(UserControl::kLeft, 0, 3000, 1);
  EXPECT_EQ(std::ranges::count(told, "Click"), 0);
  EXPECT_EQ(told.size(), 4U);
}

TEST_F(PreTest, AFormMayGoAtAnyOfItsEvents) {
  pre.MouseUp.Connect([this](auto...) { station.forms.Unload<frmPreviews>(); });
  pre.TakeSize(3000, 3000);
  pre.PressAt(UserControl::kLeft, 0, 1, 1);
  pre.ReleaseAt(UserControl::kLeft, 0, 1, 1);
  EXPECT_FALSE(station.forms.Loaded<frmPreviews>());
  EXPECT_EQ(told.back(), "MouseUp 1 0 1 1") << "the click of a form that is gone is not told";
}

}  // namespace
