#include <limits>
#include <new>
#include <stdexcept>

#include "platform/toolkit/Failures.h"
#include "tests/StationTest.h"

using namespace std::chrono_literals;

namespace {

// A form whose timer does what the test says.
class frmProbe : public Form {
 public:
  explicit frmProbe(Station& station) : Form(station.forms, "frmProbe", Kind::kOperator) {
    ++alive;
    Tick.Tick.Connect([this] { onTick(*this); });
  }
  ~frmProbe() override { --alive; }

  Timer Tick{*this, "Tick", 1s, Timer::kDisabled};
  Timer Never{*this, "Never", 0ms, Timer::kEnabled};
  CommandButton Button{*this, "Button"};
  inline static int alive = 0;
  std::function<void(frmProbe&)> onTick = [](frmProbe&) {};
};

// A form that lets itself be closed when the test says so, and notes how it comes and goes.
class frmNoted : public Form {
 public:
  explicit frmNoted(Station& station) : Form(station.forms, "frmNoted", Kind::kOperator) { Note("made"); }
  ~frmNoted() override { Note("gone"); }

  inline static Names notes;
  inline static bool mayUnload = true;
  static void Note(const std::string& what) { notes.push_back(what); }

 protected:
  void Load() override { Note("loaded"); }
  bool MayUnload() override {
    Note("asked");
    return mayUnload;
  }
};

}  // namespace

class ToolkitTest : public StationTest {
 protected:
  frmProbe& Probe() { return station.forms.Get<frmProbe>(); }
};

TEST_F(ToolkitTest, AReferenceLoadsAFormOnceAndAnUnloadMakesTheNextOneFresh) {
  frmProbe& first = Probe();
  EXPECT_EQ(&Probe(), &first);
  first.Caption = "used";
  EXPECT_TRUE(station.forms.Unload<frmProbe>());
  EXPECT_FALSE(station.forms.Loaded<frmProbe>());
  EXPECT_EQ(frmProbe::alive, 0);
  EXPECT_EQ(Probe().Caption.Get(), "");
}

TEST_F(ToolkitTest, AFormIsConnectedOnceItIsMadeAndBeforeItsLoad) {
  frmNoted::notes.clear();
  station.forms.WhenCreated<frmNoted>(
      [](frmNoted& form) { frmNoted::Note(form.Window() == nullptr ? "connected without a window" : "connected"); });
  station.forms.WhenCreated<frmNoted>([](frmNoted&) { frmNoted::Note("connected again"); });
  station.forms.Get<frmNoted>();
  EXPECT_EQ(frmNoted::notes, (Names{"made", "connected", "connected again", "loaded"}));
  station.forms.Unload<frmNoted>();
  station.forms.Get<frmNoted>();
  EXPECT_EQ(frmNoted::notes.size(), 10u);  // asked, gone, and the four once more
}

TEST_F(ToolkitTest, AFormThatRefusesToGoStaysAndOneThatAgreesGoes) {
  frmNoted& form = station.forms.Get<frmNoted>();
  frmNoted::notes.clear();
  frmNoted::mayUnload = false;
  form.Close();
  EXPECT_FALSE(station.forms.Unload<frmNoted>());
  EXPECT_TRUE(station.forms.Loaded<frmNoted>());
  EXPECT_NE(form.Window(), nullptr);
  frmNoted::mayUnload = true;
  form.Close();
  EXPECT_FALSE(station.forms.Loaded<frmNoted>());
  EXPECT_EQ(frmNoted::notes, (Names{"asked", "asked", "asked", "gone"}));
}

TEST_F(ToolkitTest, AFormUnloadedInAnothersHandlerLivesUntilThatHandlerReturns) {
  frmNoted& other = station.forms.Get<frmNoted>();
  Probe().onTick = [&](frmProbe& form) {
    frmNoted::notes.clear();
    station.forms.Unload<frmNoted>();
    EXPECT_TRUE(station.forms.Unload(other));  // it is gone already
    form.Button.Press();                       // a handler inside the handler
    EXPECT_EQ(frmNoted::notes, Names{"asked"});
    EXPECT_FALSE(station.forms.Loaded<frmNoted>());
  };
  Probe().Tick.Enabled = true;
  Advance(1s);
  EXPECT_EQ(frmNoted::notes, (Names{"asked", "gone"}));
}

TEST_F(ToolkitTest, ShowAndHideSetTheFormsVisibilityAndAShowIsAskedOfAVisibleFormToo) {
  frmProbe& form = Probe();
  int asked = 0;
  form.ShowAsked.Connect([&asked] { ++asked; });
  EXPECT_FALSE(form.Visible);
  form.Show();
  EXPECT_TRUE(form.Visible);
  form.Show();
  EXPECT_EQ(asked, 2);
  form.Hide();
  EXPECT_FALSE(form.Visible);
  EXPECT_EQ(asked, 2);
}

TEST_F(ToolkitTest, APressOnTheFormIsToldWithItsButton) {
  std::vector<int> pressed;
  Probe().MouseDown.Connect([&](const MousePlace& place) { pressed.push_back(place.buttons); });
  Probe().PressMouse({.buttons = static_cast<int>(MouseButton::kRight)});
  EXPECT_EQ(pressed, std::vector<int>{static_cast<int>(MouseButton::kRight)});
}

TEST_F(ToolkitTest, ATimerOfIntervalZeroNeverTicks) {
  int ticks = 0;
  Probe().Never.Tick.Connect([&] { ++ticks; });
  Advance(1h);
  EXPECT_EQ(ticks, 0);
  EXPECT_TRUE(Probe().Never.Enabled);
}

TEST_F(ToolkitTest, ADisabledTimerTicksNoMoreAndBeginsAnewWhenItIsEnabled) {
  int ticks = 0;
  Probe().onTick = [&](frmProbe&) { ++ticks; };
  Advance(5s);
  EXPECT_EQ(ticks, 0);
  Probe().Tick.Enabled = true;
  Advance(1900ms);
  EXPECT_EQ(ticks, 1);
  Probe().Tick.Enabled = false;
  Advance(5s);
  EXPECT_EQ(ticks, 1);
  Probe().Tick.Enabled = true;
  Advance(999ms);
  EXPECT_EQ(ticks, 1);
  Advance(1ms);
  EXPECT_EQ(ticks, 2);
}

TEST_F(ToolkitTest, AnUnloadOfAFormThatIsNotLoadedLoadsNothing) {
  EXPECT_TRUE(station.forms.Unload<frmProbe>());
  EXPECT_EQ(sim.trace.Take(), Names{});
}

TEST_F(ToolkitTest, AFormThatUnloadsItselfInItsOwnHandlerLivesUntilTheHandlerReturns) {
  Probe().onTick = [&](frmProbe& form) {
    station.forms.Unload<frmProbe>();
    EXPECT_EQ(frmProbe::alive, 1);
    form.Caption = "still here";
  };
  Probe().Tick.Enabled = true;
  Advance(1s);
  EXPECT_EQ(frmProbe::alive, 0);
}

TEST_F(ToolkitTest, AFormUnloadedWhileItsDialogStandsLivesUntilTheDialogIsAnswered) {
  sim.dialogs.whileStanding = [&] {
    station.forms.Unload<frmProbe>();
    Advance(1s);
    EXPECT_EQ(frmProbe::alive, 1);
  };
  Probe().onTick = [](frmProbe& form) { form.MsgBox("?"); };
  Probe().Tick.Enabled = true;
  Advance(1s);
  EXPECT_EQ(frmProbe::alive, 0);
}

TEST_F(ToolkitTest, AnUnloadedFormTicksNoMore) {
  int ticks = 0;
  Probe().onTick = [&](frmProbe&) { ++ticks; };
  Probe().Tick.Enabled = true;
  station.forms.Unload<frmProbe>();
  Advance(10s);
  EXPECT_EQ(ticks, 0);
}

TEST_F(ToolkitTest, EnablingAnEnabledTimerChangesNothing) {
  int ticks = 0;
  Probe().onTick = [&](frmProbe&) { ++ticks; };
  Probe().Tick.Enabled = true;
  Advance(900ms);
  Probe().Tick.Enabled = true;
  Advance(100ms);
  EXPECT_EQ(ticks, 1);
}

TEST_F(ToolkitTest, TicksThatFellDueWhileAHandlerWasBusyDoNotPileUp) {
  int ticks = 0;
  Probe().onTick = [&](frmProbe& form) {
    if (++ticks > 1) return;
    form.Tick.Enabled = false;
    Advance(5s);
    form.Tick.Enabled = true;
  };
  Probe().Tick.Enabled = true;
  Advance(1s);
  EXPECT_EQ(ticks, 1);
  Advance(1s);
  EXPECT_EQ(ticks, 2);
}

TEST_F(ToolkitTest, ATickRunsWhileAnEarlierOneOfItsOwnStandsInADialog) {
  int ticks = 0;
  sim.dialogs.whileStanding = [&] {
    if (ticks == 1) Advance(2s);
  };
  Probe().onTick = [&](frmProbe& form) {
    if (++ticks == 1) form.MsgBox("?");
  };
  Probe().Tick.Enabled = true;
  Advance(1s);
  EXPECT_EQ(ticks, 3);
}

TEST_F(ToolkitTest, AFailureThatNothingSkipsShowsOneBoxAndTheStationGoesOn) {
  int ticks = 0;
  Probe().onTick = [&](frmProbe&) {
    ++ticks;
    throw Failure("No such row.");
  };
  Probe().Tick.Enabled = true;
  Advance(2s);
  EXPECT_EQ(ticks, 2);
  EXPECT_EQ(std::ranges::count(sim.trace.Lines(), "box \"No such row.\" \"Corvanta 6.0\""), 2);
}

TEST_F(ToolkitTest, AFailureThatRepeatsWhileItsBoxStandsShowsNoSecondBox) {
  sim.dialogs.whileStanding = [&] { Advance(1h); };
  Probe().onTick = [&](frmProbe& form) {
    if (sim.time.Steady() > 3h) form.Tick.Enabled = false;
    throw Failure("No such row.");
  };
  Probe().Tick.Enabled = true;
  Advance(1s);
  EXPECT_EQ(std::ranges::count(sim.trace.Lines(), "box \"No such row.\" \"Corvanta 6.0\""), 1);
}

TEST_F(ToolkitTest, WhatNobodyForesawEndsTheHandlerIsSaidUnderItsNameAndShowsNoBox) {
  int ticks = 0;
  Probe().onTick = [&](frmProbe&) {
    ++ticks;
    throw std::bad_alloc();
  };
  Probe().Tick.Enabled = true;
  testing::internal::CaptureStderr();
  Advance(2s);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "frmProbe.Tick_Tick: std::bad_alloc\n");
  EXPECT_EQ(ticks, 2);
  EXPECT_EQ(sim.trace.Take(), Names{"frmProbe loaded"});
}

TEST_F(ToolkitTest, AFaultOfEveryTickIsSaidOnceAMinute) {
  Probe().onTick = [](frmProbe&) { throw std::logic_error("No such road."); };
  Probe().Tick.Enabled = true;
  testing::internal::CaptureStderr();
  Advance(3min);
  const std::string said = testing::internal::GetCapturedStderr();
  EXPECT_EQ(std::ranges::count(said, '\n'), 3);
}

TEST_F(ToolkitTest, AFaultInAnOperatorsActIsSaidUnderItsName) {
  Probe().Button.Click.Connect([] { throw std::logic_error("No such road."); });
  Probe().MouseDown.Connect([](const MousePlace&) { throw 1; });
  testing::internal::CaptureStderr();
  Probe().Button.Press();
  Probe().PressMouse({.buttons = static_cast<int>(MouseButton::kLeft)});
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "frmProbe.Button_Click: No such road.\nfrmProbe_MouseDown: something that is no exception was thrown\n");
}

TEST_F(ToolkitTest, AFormThatIsUnloadedByAHandlerThatGoesWrongGoesAllTheSame) {
  Probe().onTick = [&](frmProbe&) {
    station.forms.Unload<frmProbe>();
    throw std::bad_alloc();
  };
  Probe().Tick.Enabled = true;
  testing::internal::CaptureStderr();
  Advance(1s);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "frmProbe.Tick_Tick: std::bad_alloc\n");
  EXPECT_EQ(frmProbe::alive, 0);
}

TEST_F(ToolkitTest, WhatNobodyForesawIsNeitherSkippedNorTakenForATestThatHeld) {
  int reached = 0;
  EXPECT_THROW(SkippingFailures([] { throw std::bad_alloc(); }, [&] { ++reached; }), std::bad_alloc);
  EXPECT_EQ(reached, 0);
  EXPECT_THROW(HeldOrFailed([]() -> bool { throw std::out_of_range(""); }), std::out_of_range);
}

TEST_F(ToolkitTest, ATestThatFailsCountsAsHeld) {
  EXPECT_TRUE(HeldOrFailed([]() -> bool { throw Failure(""); }));
  EXPECT_FALSE(HeldOrFailed([] { return false; }));
}

TEST_F(ToolkitTest, AFailingStatementIsSkippedAndTheNextRuns) {
  int reached = 0;
  SkippingFailures([&] { ++reached; }, [] { throw Failure(""); }, [&] { ++reached; });
  EXPECT_EQ(reached, 2);
}

TEST_F(ToolkitTest, AWarningHoldsNothingUpAndTheSameWordsStandOnce) {
  frmProbe& form = Probe();
  sim.trace.Take();
  form.Warn("Lost.", "Disk");
  form.Warn("Lost.", "Disk");
  form.Warn("Found.", "Disk");
  EXPECT_EQ(sim.trace.Take(), Names());
  sim.dialogs.whileStanding = [&] { form.Warn("Lost.", "Disk"); };
  Advance(1s);
  sim.dialogs.whileStanding = nullptr;
  EXPECT_EQ(sim.trace.Take(), (Names{"box \"Lost.\" \"Disk\" warning", "box \"Found.\" \"Disk\" warning",
                                     "box \"Lost.\" \"Disk\" warning"}))
      << "the last one was asked for while other words stood";
  Advance(1s);
  form.Warn("Lost.", "Disk");
  station.forms.Unload<frmProbe>();
  Advance(1s);
  EXPECT_EQ(sim.trace.Take().back(), "box \"Lost.\" \"Disk\" warning") << "the form may be gone by then";
}

TEST_F(ToolkitTest, OnTopActsAtEachAssignmentAndResizeTellsEachNewSize) {
  frmProbe& form = Probe();
  int told = 0, resized = 0;
  form.OnTop.Changed.Connect([&] { ++told; });
  form.Resize.Connect([&] { ++resized; });
  form.OnTop = true;
  form.OnTop = true;
  EXPECT_EQ(told, 2);
  form.Show();
  form.Show();
  EXPECT_EQ(resized, 1);
  form.Width = 600;
  form.Width = 600;
  form.Left = 600;
  EXPECT_EQ(resized, 2);
}

TEST_F(ToolkitTest, TheKeyColourIsInForceInALayeredFormAlone) {
  frmProbe& form = Probe();
  form.KeyColour = kRed;
  EXPECT_EQ(form.KeyInForce(), std::nullopt);
  form.ExtendedStyle = kLayered | 8;
  EXPECT_EQ(form.KeyInForce(), kRed);
  form.ExtendedStyle = 8;
  EXPECT_EQ(form.KeyInForce(), std::nullopt);
}

TEST_F(ToolkitTest, ADisabledButtonDoesNothing) {
  int clicks = 0;
  Probe().Button.Click.Connect([&] { ++clicks; });
  Probe().Button.Enabled = false;
  Probe().Button.Press();
  Probe().Button.Enabled = true;
  Probe().Button.Press();
  EXPECT_EQ(clicks, 1);
}

TEST_F(ToolkitTest, SettingTheIndexOfAFileListRaisesTheClickAndAnUnknownIndexFails) {
  Clip("a.mp4");
  FileListBox& files = Playlists().FileList;
  files.Path = "/clips";
  int clicks = 0;
  files.Click.Connect([&] { ++clicks; });
  files.ListIndex = 0;
  EXPECT_EQ(clicks, 1);
  EXPECT_THROW(files.ListIndex = 1, Failure);
  EXPECT_EQ(files.ListIndex.Get(), 0);
  files.Refresh();
  EXPECT_EQ(files.ListIndex.Get(), -1);
  EXPECT_EQ(files.FileName(), "");
}

TEST_F(ToolkitTest, ARowIsFoundByItsWholeTextInEitherCase) {
  ListView& list = Playlists().ListPlay;
  for (const char* text : {"07:00:00 AMX", "07:00:00 AM late", "07:00:00 AM"}) {
    list.Add({.text = text, .subItems = {}});
  }
  EXPECT_EQ(list.FindItem("07:00:00 am"), 3);
  EXPECT_EQ(list.FindItem("07:00:00"), 0);
  EXPECT_EQ(list.FindItem("07:00:00 am", ListView::Match::kBeginning), 1);
  EXPECT_EQ(list.FindItem("07:00:00 AM later", ListView::Match::kBeginning), 0);
  EXPECT_EQ(list.FindItem("07:00:00 PM"), 0);
}

TEST_F(ToolkitTest, LettersOfEveryScriptAreFoundInEitherCase) {
  ListView& list = Playlists().ListPlay;
  list.Add({.text = "НОВОСТИ Ä", .subItems = {}});
  EXPECT_EQ(list.FindItem("новости ä"), 1);
}

TEST_F(ToolkitTest, TwipsAndPixelsAreFifteenToOneAndHalvesGoTheSameWayOnBothSidesOfZero) {
  EXPECT_EQ(ToPixels(15450), 1030);
  EXPECT_EQ(ToPixels(-15), -1);
  EXPECT_EQ(ToPixels(7.5), 1);
  EXPECT_EQ(ToPixels(-7.5), 0);
  EXPECT_EQ(ToPixels(-22.5), -1);
  EXPECT_EQ(ToTwips(768), 11520);
}

TEST_F(ToolkitTest, AMeasureThatNoScreenHasIsStillANumberOfPixels) {
  EXPECT_EQ(ToPixels(1e300), 1'000'000'000);
  EXPECT_EQ(ToPixels(-1e300), -1'000'000'000);
  EXPECT_EQ(ToPixels(std::numeric_limits<double>::quiet_NaN()), 0);
}

TEST_F(ToolkitTest, ATickOfTheWallSecondComesJustAfterItAndStaysThereWhenTheClockSteps) {
  std::vector<int> milliseconds;
  const auto id =
      sim.time.Start(1s, TickPhase::kWallSecond, [&] { milliseconds.push_back(sim.time.Now().millisecond); });
  Advance(2300ms);
  sim.time.StepWall(-3600s - 400ms);
  Advance(3s);
  sim.time.Cancel(id);
  // The one that was under way when the clock stepped comes at its old place; no second is left without a tick.
  EXPECT_EQ(milliseconds, (std::vector<int>{5, 5, 605, 5, 5}));
}
