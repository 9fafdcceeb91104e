#include <gtest/gtest.h>

#include <vector>

#include "platform/sim/SimWorld.h"
#include "platform/toolkit/FlashBox.h"
#include "platform/toolkit/Form.h"
#include "platform/toolkit/Timer.h"
#include "settings/Station.h"

namespace {

using namespace std::chrono_literals;

class frmMovies : public Form {
 public:
  explicit frmMovies(Station& station) : Form(station.forms, "frmMovies", Kind::kOnAir) {
    Looker.Tick.Connect([this] { read.push_back(Flash.CurrentFrame()); });
    Flash.FrameShow.Connect([this](int frame) { told.push_back(frame); });
  }

  FlashBox Flash{*this, "Flash"};
  Timer Looker{*this, "Looker", 1ms, Timer::kEnabled};

  std::vector<int> read;  // by each tick
  std::vector<int> told;  // by the event
};

class FlashBoxTest : public testing::Test {
 protected:
  FlashBoxTest() {
    for (const char* name : {"/long.swf", "/short.swf", "/still.swf", "/picture.jpg"}) sim.files.Put(name, "content");
    sim.flash.SetMovie("/long.swf", 100, 25);
    sim.flash.SetMovie("/short.swf", 3, 60);
    sim.flash.SetMovie("/still.swf", 1, 25);
  }
  SimSurface& Surface() { return *sim.flash.Find("frmMovies.Flash"); }

  SimWorld sim;
  Station station{sim.world, "/station"};
  frmMovies& form = station.forms.Get<frmMovies>();
};

TEST_F(FlashBoxTest, TheNumberOfFramesIsKnownWhenThePutReturns) {
  form.Flash.Movie = "/long.swf";
  EXPECT_EQ(form.Flash.TotalFrames(), 100);
  EXPECT_EQ(form.Flash.CurrentFrame(), 0);
  sim.time.Advance(1s);
  form.Flash.Movie = "/short.swf";
  EXPECT_EQ(form.Flash.TotalFrames(), 3);
  EXPECT_EQ(form.Flash.CurrentFrame(), 0) << "nothing of the former movie counts";
}

TEST_F(FlashBoxTest, WhatIsNoMovieHasNoFrames) {
  for (const char* path : {"/picture.jpg", "/absent.swf", ""}) {
    form.Flash.Movie = "/long.swf";
    sim.time.Advance(1s);
    form.Flash.Movie = path;
    EXPECT_EQ(form.Flash.TotalFrames(), 0) << path;
    EXPECT_EQ(form.Flash.CurrentFrame(), 0) << path;
  }
}

TEST_F(FlashBoxTest, ThePutOfTheSamePathStartsTheMovieAgain) {
  form.Flash.Movie = "/long.swf";
  sim.time.Advance(2s);
  EXPECT_GT(form.Flash.CurrentFrame(), 40);
  form.Flash.Movie = "/long.swf";
  EXPECT_EQ(form.Flash.CurrentFrame(), 0);
  sim.time.Advance(200ms);
  EXPECT_LT(form.Flash.CurrentFrame(), 10);
  EXPECT_GT(form.Flash.CurrentFrame(), 0);
}

TEST_F(FlashBoxTest, EachFrameIsToldOnceAndRoundAndRound) {
  form.Flash.Movie = "/short.swf";
  sim.time.Advance(150ms);
  ASSERT_GE(form.told.size(), 6u);
  for (std::size_t i = 0; i < form.told.size(); ++i) EXPECT_EQ(form.told[i], static_cast<int>(i % 3) + 1);
}

TEST_F(FlashBoxTest, AMovieOfOneFrameIsToldOnce) {
  form.Flash.Movie = "/still.swf";
  sim.time.Advance(3s);
  EXPECT_EQ(form.told, std::vector<int>{1});
  EXPECT_EQ(form.Flash.CurrentFrame(), 1);
}

TEST_F(FlashBoxTest, OfSeveralFramesBetweenTwoTicksTheTickReadsTheHighestBeforeTheMovieBeganAnew) {
  sim.flash.framesAtOnce = 7;
  form.Flash.Movie = "/long.swf";
  sim.time.Advance(20s);
  int highest = 0;
  for (const int frame : form.read) highest = std::max(highest, frame);
  EXPECT_EQ(highest, 100);
  // Never a tick that sees the beginning of a new round where it has not seen the end of the last one.
  int rounds = 0;
  for (std::size_t i = 1; i < form.read.size(); ++i) {
    if (form.read[i] >= form.read[i - 1]) continue;
    ++rounds;
    EXPECT_EQ(form.read[i - 1], 100);
  }
  EXPECT_GE(rounds, 4);
}

TEST_F(FlashBoxTest, TheEndThatNoTickHasReadIsForgottenAtTheNextTick) {
  sim.flash.framesAtOnce = 7;
  form.Looker.Enabled = false;
  form.Flash.Movie = "/long.swf";
  sim.time.Advance(20s);
  form.read.clear();
  form.Looker.Enabled = true;
  sim.time.Advance(40ms);
  EXPECT_EQ(form.read.back(), form.told.back());
}

TEST_F(FlashBoxTest, AVariableThatIsSetBeforeTheMovieIsUpIsKept) {
  form.Flash.Movie = "/long.swf";
  form.Flash.SetVariable("_levelO.text1", "Hello Orlin");
  EXPECT_EQ(Surface().Variable("text1"), "");
  sim.time.Advance(1s);
  EXPECT_EQ(Surface().Variable("text1"), "Hello Orlin");
  form.Flash.SetVariable("text1", "later");
  EXPECT_EQ(Surface().Variable("text1"), "later");
}

TEST_F(FlashBoxTest, AVariableDoesNotOutliveItsMovie) {
  form.Flash.Movie = "/long.swf";
  form.Flash.SetVariable("text1", "old");
  form.Flash.Movie = "/short.swf";
  sim.time.Advance(1s);
  EXPECT_EQ(Surface().Variable("text1"), "");
}

TEST_F(FlashBoxTest, ANameIsLookedUpWithoutRegardToCase) {
  form.Flash.Movie = "/LONG.swf";
  EXPECT_EQ(form.Flash.TotalFrames(), 100);
  EXPECT_EQ(form.Flash.Movie.Get(), "/LONG.swf");
}

TEST_F(FlashBoxTest, WModeTellsWhetherTheMovieIsSeeThrough) {
  form.Flash.WMode = "Window";
  form.Flash.KeepProportions = true;
  form.Flash.Movie = "/long.swf";
  sim.time.Advance(1s);
  EXPECT_EQ(Surface().Looks(), (FlashLooks{FlashLooks::Back::kOpaque, FlashLooks::Fit::kKeepProportions, false}));
}

TEST_F(FlashBoxTest, AFormMayBeUnloadedByAFrame) {
  form.Flash.FrameShow.Connect([this](int frame) {
    if (frame == 5) station.forms.Unload<frmMovies>();
  });
  form.Flash.Movie = "/long.swf";
  sim.time.Advance(2s);
  EXPECT_FALSE(station.forms.Loaded<frmMovies>());
  EXPECT_EQ(sim.flash.Find("frmMovies.Flash"), nullptr);
}

}  // namespace
