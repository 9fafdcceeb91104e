// The news strip: its place, its text, and the headlines that take their turn in it.
#include "tests/overlay/BreakingNewsTest.h"

#include "overlay/NewsMovie.h"

using namespace std::chrono_literals;

namespace {

TEST_F(BreakingNewsTest, WithLeftAbsentTheStripStartsAtZeroAtOnceWhateverPlaceIsRemembered) {
  sim.files.Put("/station/Window.ini", "[frmBreakingNews]\r\nLeft=3000\r\nTop=6000\r\nWidth=12000\r\nHeight=750\r\n");
  EXPECT_EQ(Strip().Left, 0);
  EXPECT_EQ(Strip().Top, 6000);
  EXPECT_EQ(Strip().Width, 12000);
  EXPECT_EQ(Strip().Height, 750);
}

TEST_F(BreakingNewsTest, TheKeyLeftWinsOverTheRememberedPlace) {
  sim.files.Put("/station/Window.ini", "[frmBreakingNews]\r\nLeft=3000\r\nTop=6000\r\nWidth=12000\r\nHeight=750\r\n");
  Set("BreakingNews", "Left", "1507.5");
  EXPECT_EQ(Strip().Left, 1507.5);
}

TEST_F(BreakingNewsTest, ALeftThatIsNoNumberIsZero) {
  Set("BreakingNews", "Left", "far left");
  EXPECT_EQ(Strip().Left, 0);
}

// Meant so: a strip on a screen to the left of the first one stands there.
TEST_F(BreakingNewsTest, ALeftBesideTheScreenIsTakenAsItIsAndOfWordsBehindANumberNothing) {
  Set("BreakingNews", "Left", "-19200");
  EXPECT_EQ(Strip().Left, -19200);
  station.forms.Unload<frmBreakingNews>();
  Set("BreakingNews", "Left", "450 twips");
  EXPECT_EQ(Strip().Left, 450);
}

TEST_F(BreakingNewsTest, ItIsDesignedForTheLowerEdgeOfTheDesignedOutput) {
  EXPECT_EQ(Strip().Top, 9000);
  EXPECT_EQ(Strip().Width, 15450);
  EXPECT_EQ(Strip().Height, 900);
  EXPECT_TRUE(Strip().OnTop);
}

TEST_F(BreakingNewsTest, ItIsOpaqueInTheMoviesOwnBackgroundKeepsItsProportionsAndSounds) {
  Strip();
  Advance(1s);
  EXPECT_EQ(Surface().Looks(), (FlashLooks{FlashLooks::Back::kOpaque, FlashLooks::Fit::kKeepProportions, false}));
}

TEST_F(BreakingNewsTest, MovieAndPaneCoverTheStripWhateverItsSize) {
  const auto expectCovered = [this] {
    for (const Control* one : Strip().Controls()) {
      EXPECT_TRUE(one->Visible) << one->Name();
      EXPECT_EQ(one->Left, 0) << one->Name();
      EXPECT_EQ(one->Top, 0) << one->Name();
      EXPECT_EQ(one->Width, Strip().Width) << one->Name();
      EXPECT_EQ(one->Height, Strip().Height) << one->Name();
    }
  };
  expectCovered();
  EXPECT_EQ(Strip().Controls().front(), &Strip().Flash) << "the pane behind the movie";
  Strip().Width = 20000;
  Strip().Height = 1200;
  expectCovered();
}

TEST_F(BreakingNewsTest, TheTextIsSetRightBehindTheMovieUnderTheNameWithTheLetterO) {
  Strip();
  Names lines = sim.trace.Take();
  std::erase_if(lines, [](const std::string& line) { return !line.starts_with("frmBreakingNews.Flash"); });
  EXPECT_EQ(lines, (Names{"frmBreakingNews.Flash movie /station/Media/FlashBN/bn.swf",
                          "frmBreakingNews.Flash variable _levelO.text1=Hello Orlin"}));
}

TEST_F(BreakingNewsTest, AMovieThatExpectsAnotherNameIsGivenNoOther) {
  Strip();
  Advance(1s);
  EXPECT_EQ(Surface().Variable("text1"), "Hello Orlin");
  for (const char* other : {"text", "text2", "_level0", "news"}) EXPECT_EQ(Surface().Variable(other), "") << other;
}

TEST_F(BreakingNewsTest, LoadNewsWithAnEmptyTextSetsAnEmptyTextAndRestartsTheMovie) {
  Strip();
  Advance(2s);
  Given();
  Strip().LoadNews("");
  EXPECT_EQ(Strip().Flash.CurrentFrame(), 0);
  EXPECT_EQ(Given(), Names{""});
  Advance(1s);
  EXPECT_EQ(Line(), "");
}

TEST_F(BreakingNewsTest, HeadlinesTakeTheirTurnOnceALoopThreeFramesBeforeItsEnd) {
  Store({{"a", true}, {"off", false}, {"b", true}});
  Strip();
  std::vector<int> frames;
  int latest = 0;
  const auto watching = Strip().Flash.FrameShow.Subscribe([&](int frame) { latest = frame; });
  Given();
  for (int tick = 0; tick < 16'000; ++tick) {
    Advance(1ms);
    if (!Given().empty()) frames.push_back(latest);
  }
  EXPECT_EQ(frames, (std::vector<int>{97, 97, 97, 97}));
}

TEST_F(BreakingNewsTest, TheFirstTextStandsForOneLoopAndThenTheHeadlinesComeInTurn) {
  Store({{"a", true}, {"off", false}, {"b", true}});
  Strip();
  Advance(4 * kLoop);
  EXPECT_EQ(Given(), (Names{"Hello Orlin", "a", "b", "a", "b"}));
}

TEST_F(BreakingNewsTest, TheNextHeadlineIsAskedForOnceALoopAndNotAtEachTickOfThatFrame) {
  sim.flash.SetMovie(kMovie, 5, 1);  // each frame stands for a second, and that is a thousand ticks
  Strip();
  Advance(1500ms);
  ASSERT_EQ(Strip().Flash.CurrentFrame(), Strip().Flash.TotalFrames() - 3);
  Given();
  Store({{"a", true}});
  Advance(400ms);
  ASSERT_EQ(Strip().Flash.CurrentFrame(), Strip().Flash.TotalFrames() - 3);
  EXPECT_EQ(Given(), Names{}) << "the frame had come already";
  Advance(5s);
  EXPECT_EQ(Given(), Names{"a"});
}

// Meant so: its movie does not go on to its end.
TEST_F(BreakingNewsTest, AHeadlineThatIsAloneStartsTheMovieAnewInEachLoop) {
  Store({{"a", true}});
  Strip();
  Advance(3 * kLoop);
  EXPECT_EQ(Given(), (Names{"Hello Orlin", "a", "a", "a"}));
}

TEST_F(BreakingNewsTest, TheFrameIsNotMissedWhereSeveralComeBetweenTwoTicks) {
  Store({{"a", true}, {"b", true}});
  for (const int together : {2, 7, 30, 100}) {
    sim.flash.framesAtOnce = together;
    Strip();
    Given();
    Advance(30s);
    EXPECT_GE(Given().size(), 3u) << together;
    station.forms.Unload<frmBreakingNews>();
  }
}

TEST_F(BreakingNewsTest, WithNoHeadlineTheStripLoopsWithItsTextAndNoFileIsMade) {
  Strip();
  Advance(10 * kLoop);
  EXPECT_EQ(Given(), Names{"Hello Orlin"});
  EXPECT_EQ(Line(), "Hello Orlin");
  EXPECT_EQ(sim.files.Kind("/station/rss.ini"), FileKind::kAbsent);
}

TEST_F(BreakingNewsTest, WithAllHeadlinesOffTheStripGoesOnWithTheTextThatItHas) {
  Store({{"a", true}});
  Strip();
  Advance(kLoop + 1s);
  Store({{"a", false}});
  Given();
  Advance(5 * kLoop);
  EXPECT_EQ(Given(), Names{});
  EXPECT_EQ(Line(), "a");
}

TEST_F(BreakingNewsTest, AHeadlineAddedOnTheDiskComesAtTheEndOfTheRunningLoop) {
  Strip();
  Advance(3 * kLoop + 1s);
  Given();
  sim.files.Put("/station/rss.ini", "[1]\nText=by hand\nActive=1\n");
  Advance(kLoop);
  EXPECT_EQ(Given(), Names{"by hand"});
}

TEST_F(BreakingNewsTest, AMovieOfFewerThanThreeFramesNeverMeetsTheCondition) {
  Store({{"a", true}});
  for (const int frames : {1, 2}) {
    sim.flash.SetMovie(kMovie, frames);
    Strip();
    Given();
    Advance(10s);
    EXPECT_EQ(Given(), Names{}) << frames;
    station.forms.Unload<frmBreakingNews>();
  }
}

TEST_F(BreakingNewsTest, AMovieOfThreeFramesDoesNotEither) {
  // It would at frame 0, which is the moment before the first picture: each start would bring the next one at once.
  sim.flash.SetMovie(kMovie, 3);
  Store({{"a", true}});
  Strip();
  Given();
  Advance(10s);
  EXPECT_EQ(Given(), Names{});
}

TEST_F(BreakingNewsTest, WithoutItsMovieTheStripIsEmptyAndOpaqueNobodyIsToldAndNoHeadlineIsAskedFor) {
  Store({{"a", true}});
  sim.files.Remove(kMovie);
  Strip().Show();
  Advance(1min);
  const Names lines = sim.trace.Take();
  for (const std::string& line : lines) EXPECT_FALSE(line.starts_with("box")) << line;
  EXPECT_EQ(std::ranges::count(lines, std::string("frmBreakingNews.Flash movie ") + kMovie), 1);
  EXPECT_EQ(Strip().ExtendedStyle, 0);
  EXPECT_EQ(Surface().Shown(), "");
  EXPECT_EQ(Strip().Flash.TotalFrames(), 0);
}

TEST_F(BreakingNewsTest, ADamagedMovieLeavesAnEmptyStripAsWell) {
  sim.flash.SetDamaged(kMovie);
  Strip().Show();
  Advance(1min);
  EXPECT_EQ(Surface().Shown(), "");
}

TEST_F(BreakingNewsTest, ATextThatIsPutAtTheVeryFrameStandsForItsOwnLoop) {
  Store({{"a", true}});
  Strip();
  bool first = true;
  const auto watching = Strip().Flash.FrameShow.Subscribe([&](int frame) {
    if (frame == 97 && std::exchange(first, false)) Strip().LoadNews("urgent");
  });
  Advance(kLoop + 2s);
  EXPECT_EQ(Given(), (Names{"Hello Orlin", "urgent"}));
  Advance(kLoop);
  EXPECT_EQ(Given(), Names{"a"});
}

TEST_F(BreakingNewsTest, TheStripGoesOnWhenWhatPlaysItsMovieHasDied) {
  Store({{"a", true}, {"b", true}});
  Strip();
  Advance(2s);
  sim.flash.Die();
  Advance(1s + 2 * kLoop);
  EXPECT_EQ(Given(), (Names{"Hello Orlin", "a", "b"}));
}

TEST_F(BreakingNewsTest, ItsTimersAreOneThatNeverTicksOneOfAMillisecondAndTheFeedsOfASecond) {
  EXPECT_EQ(Timers(Strip()), (Names{"Timer1 0 ms on", "Timer2 1 ms on", "TimerFeed 1000 ms on"}));
  Set("BreakingNews", "Left", "4500");
  Advance(10s);
  EXPECT_EQ(Strip().Left, 0);
  EXPECT_TRUE(Strip().Timer1.Enabled);
}

TEST_F(BreakingNewsTest, AMouseMoveOverTheBareFormWritesLeftWithAndWithoutAButton) {
  Strip().Left = 750;
  sim.trace.Take();
  Strip().MoveMouse({.x = 10, .y = 10});
  EXPECT_EQ(std::ranges::count(sim.trace.Take(), "frmBreakingNews dragged"), 0) << "here a move alone does not drag";
  EXPECT_EQ(Setting("BreakingNews", "Left"), "750");
  EXPECT_EQ(Setting("BreakingNews", "Top"), "(none)");
  Strip().Left = 1507.5;
  Strip().MoveMouse({.x = 10, .y = 10, .buttons = static_cast<int>(MouseButton::kRight)});
  EXPECT_EQ(Setting("BreakingNews", "Left"), "1507.5");
}

TEST_F(BreakingNewsTest, AnyButtonOnTheBareFormDragsTheStripAndWritesNoLeft) {
  Strip().Show();
  for (const MouseButton button : {MouseButton::kLeft, MouseButton::kRight}) {
    sim.trace.Take();
    Strip().PressMouse({.x = 10, .y = 10, .buttons = static_cast<int>(button)});
    EXPECT_EQ(sim.trace.Take(), Names{"frmBreakingNews dragged"});
    Strip().Left = 300;
    sim.windows.EndDrag();
    EXPECT_EQ(Setting("BreakingNews", "Left"), "(none)");
  }
}

TEST_F(BreakingNewsTest, UnloadingEndsItsTimersAndASecondShowBeginsWithTheFirstText) {
  Store({{"a", true}, {"b", true}});
  Strip();
  Advance(2 * kLoop);
  station.forms.Unload<frmBreakingNews>();
  Given();
  Advance(5 * kLoop);
  EXPECT_EQ(Given(), Names{});
  Strip();
  Advance(kLoop + 500ms);
  EXPECT_EQ(Given(), (Names{"Hello Orlin", "a"}));
}

TEST_F(BreakingNewsTest, ANewStationIsGivenTheMovieAndOneThatHasAMovieKeepsIt) {
  MakeNewsMovie(sim.files, station.dataFolder);
  EXPECT_EQ(sim.files.Read(kMovie), "movie");
  sim.files.RemoveTree("/station/Media/FlashBN");
  MakeNewsMovie(sim.files, station.dataFolder);
  const std::string made = sim.files.Read(kMovie).value_or("");
  EXPECT_EQ(made, NewsMovie());
  EXPECT_TRUE(made.starts_with("CWS"));
}

class BreakingNewsMenuTest : public BreakingNewsTest {
 protected:
  bool Shown() { return station.forms.Loaded<frmBreakingNews>() && Strip().Visible; }
};

TEST_F(BreakingNewsMenuTest, TheEntryShowsAndUnloadsTheStripAndWritesEachChange) {
  ControlWindow();
  EXPECT_FALSE(Shown());
  EXPECT_FALSE(ControlWindow().mnuBreakingNewsShow.Checked);
  for (const bool on : {true, false, true}) {
    ControlWindow().mnuBreakingNewsShow.Choose();
    EXPECT_EQ(Shown(), on);
    EXPECT_EQ(station.forms.Loaded<frmBreakingNews>(), on);
    EXPECT_EQ(ControlWindow().mnuBreakingNewsShow.Checked, on);
    EXPECT_EQ(Setting("BreakingNews", "Show"), on ? "True" : "False");
  }
}

// Meant so.
TEST_F(BreakingNewsMenuTest, AfterAStartWithTheStripOnTheFirstUseOfTheEntryShowsItAgainAndOnlyTheSecondHidesIt) {
  Set("BreakingNews", "Show", "True");
  ControlWindow();
  EXPECT_TRUE(Shown());
  EXPECT_TRUE(ControlWindow().mnuBreakingNewsShow.Checked);
  EXPECT_FALSE(ControlWindow().BreakingNewsShown);
  ControlWindow().mnuBreakingNewsShow.Choose();
  EXPECT_TRUE(Shown());
  EXPECT_TRUE(ControlWindow().mnuBreakingNewsShow.Checked);
  EXPECT_EQ(Setting("BreakingNews", "Show"), "True");
  ControlWindow().mnuBreakingNewsShow.Choose();
  EXPECT_FALSE(Shown());
  EXPECT_FALSE(ControlWindow().mnuBreakingNewsShow.Checked);
  EXPECT_EQ(Setting("BreakingNews", "Show"), "False");
}

TEST_F(BreakingNewsMenuTest, AStartWithTheStripOffOrOfAnyOtherValueLoadsNone) {
  for (const char* value : {"False", "", "true", "1"}) {
    Set("BreakingNews", "Show", value);
    ControlWindow().LoadSett();
    EXPECT_FALSE(station.forms.Loaded<frmBreakingNews>()) << value;
    EXPECT_FALSE(ControlWindow().mnuBreakingNewsShow.Checked) << value;
  }
}

// Meant so: the overlays alone are brought in front of it again.
TEST_F(BreakingNewsMenuTest, AMaskedOutputCoversTheStripAndTheLogoStandsAboveBoth) {
  for (const char* section : {"BreakingNews", "logo", "Output"}) Set(section, "Show", "True");
  ControlWindow();
  ControlWindow().mnuMasking.Choose();
  const Names stack = sim.windows.Stack();
  EXPECT_EQ(Names(stack.begin(), stack.begin() + 3), (Names{"FrmLogoShow", "frmPlayer", "frmBreakingNews"}));
}

TEST_F(BreakingNewsMenuTest, AStartShowsTheStripBehindTheOutput) {
  Set("BreakingNews", "Show", "True");
  Set("Output", "Show", "True");
  ControlWindow();
  Names shown;
  for (const std::string& line : sim.trace.Take()) {
    if (line == "frmPlayer shown" || line == "frmBreakingNews shown") shown.push_back(line);
  }
  EXPECT_EQ(shown, (Names{"frmPlayer shown", "frmBreakingNews shown"}));
}

}  // namespace
