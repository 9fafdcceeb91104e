#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/sim/SimWorld.h"
#include "platform/toolkit/BrowserControl.h"
#include "platform/toolkit/Form.h"
#include "settings/Station.h"

namespace {

using namespace std::chrono_literals;

class frmPages : public Form {
 public:
  explicit frmPages(Station& station) : Form(station.forms, "frmPages", Kind::kOnAir) {
    Web.StatusTextChange.Connect([this](const std::string& text) { told.push_back(text); });
    Web.DocumentComplete.Connect([this] { ++loads; });
  }

  BrowserControl Web{*this, "Web"};

  std::vector<std::string> told;
  int loads = 0;
};

class BrowserControlTest : public testing::Test {
 protected:
  SimPage& Page() { return *sim.browser.Find("frmPages.Web"); }
  // Opens what was typed, and gives it the time to come.
  void Open(const std::string& typed) {
    form.Web.Navigate(typed);
    sim.time.Advance(1s);
  }

  SimWorld sim;
  Station station{sim.world, "/station"};
  frmPages& form = station.forms.Get<frmPages>();
};

using Texts = std::vector<std::string>;

TEST_F(BrowserControlTest, APageTellsThatItLoadsAndThatItIsThere) {
  form.Web.Navigate("news.example");
  EXPECT_EQ(Page().Address(), "http://news.example");
  EXPECT_TRUE(form.told.empty()) << "nothing is heard from inside a call";
  sim.time.Advance(1s);
  EXPECT_EQ(form.told, (Texts{"Loading..", "Done"}));
  EXPECT_EQ(form.loads, 1);
  EXPECT_EQ(Page().Shown(), "http://news.example");
}

TEST_F(BrowserControlTest, TheStatusIsTheAddressUnderThePointer) {
  Open("news.example");
  Page().Hover("http://news.example/today");
  EXPECT_EQ(form.told.back(), "http://news.example/today");
  Page().Hover("");
  EXPECT_EQ(form.told.back(), "Done");
}

TEST_F(BrowserControlTest, APathIsFoundInAnySpellingThatTheDiskTakes) {
  sim.files.Put("/station/Pages/Board.html", "page");
  form.Web.Navigate("/station/pages/board.HTML");
  EXPECT_EQ(Page().Address(), "file:///station/Pages/Board.html");
}

TEST_F(BrowserControlTest, WhatIsNoAddressShowsNothing) {
  Open("news.example");
  for (const char* typed : {"", "javascript:alert(1)"}) {
    Open(typed);
    EXPECT_EQ(Page().Shown(), "");
  }
  EXPECT_EQ(form.loads, 1);
}

TEST_F(BrowserControlTest, ARefreshLoadsThePageOnceMore) {
  Open("news.example");
  form.Web.Refresh();
  sim.time.Advance(1s);
  EXPECT_EQ(form.loads, 2);
}

TEST_F(BrowserControlTest, APageThatNeverAnswersGoesOnLoading) {
  sim.browser.SetNeverAnswers("http://slow.example");
  form.Web.Navigate("slow.example");
  sim.time.Advance(1h);
  EXPECT_EQ(form.told, Texts{"Loading.."});
}

TEST_F(BrowserControlTest, APageThatCannotBeHadIsNoDocument) {
  sim.browser.SetCannotBeHad("http://gone.example");
  Open("gone.example");
  EXPECT_EQ(form.told.back(), "Done");
  EXPECT_EQ(form.loads, 0);
}

TEST_F(BrowserControlTest, APageComesBackWhenWhatRendersItDies) {
  Open("news.example");
  sim.browser.Die();
  sim.time.Advance(3s);
  EXPECT_EQ(form.loads, 2);
}

TEST_F(BrowserControlTest, TheSizesOfTheTextAreFiveZooms) {
  std::vector<int> zooms;
  for (const int size : {-1, 0, 1, 2, 3, 4, 5}) {
    form.Web.TextSize = size;
    zooms.push_back(Page().Looks().zoom);
  }
  EXPECT_EQ(zooms, (std::vector<int>{80, 80, 90, 100, 120, 150, 150})) << "beyond them it is the nearest";
}

TEST_F(BrowserControlTest, SoundAndScrollBarsReachThePage) {
  EXPECT_TRUE(Page().Looks().sound);
  form.Web.Sound = false;
  form.Web.ScrollBars = false;
  EXPECT_FALSE(Page().Looks().sound);
  EXPECT_FALSE(Page().Looks().scrollBars);
}

TEST_F(BrowserControlTest, AnUnloadedFormHasNoPageAnyMore) {
  form.Web.Navigate("news.example");
  station.forms.Unload<frmPages>();
  EXPECT_EQ(sim.browser.Find("frmPages.Web"), nullptr);
  sim.time.Advance(1s);
}

}  // namespace
