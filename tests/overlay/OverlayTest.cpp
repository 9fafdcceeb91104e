// The windows over the picture: what they show, where they stand, and how they are dragged.
#include "tests/overlay/OverlayTest.h"

#include "overlay/mdlFlash.h"
#include "platform/toolkit/Failure.h"

using namespace std::chrono_literals;

namespace {

using Place = std::array<Twips, 4>;

template <class F>
struct Kind {
  const char* form;
  const char* section;
};

template <class F>
Kind<F> KindOf();
template <>
Kind<FrmLogoShow> KindOf() {
  return {"FrmLogoShow", "logo"};
}
template <>
Kind<frmClockShow> KindOf() {
  return {"frmClockShow", "Clock"};
}
template <>
Kind<frmStikerShow> KindOf() {
  return {"frmStikerShow", "stiker"};
}
template <>
Kind<frmFlashAdShow> KindOf() {
  return {"frmFlashAdShow", "FlashAd"};
}

template <class F>
class EachOverlayTest : public OverlayTest {
 protected:
  F& Overlay() { return station.forms.Get<F>(); }
  const Kind<F> kind = KindOf<F>();
};

using All = testing::Types<FrmLogoShow, frmClockShow, frmStikerShow, frmFlashAdShow>;
TYPED_TEST_SUITE(EachOverlayTest, All);

template <class F>
class OverlayWithAMovieTest : public EachOverlayTest<F> {};

using WithAMovie = testing::Types<FrmLogoShow, frmClockShow, frmStikerShow>;
TYPED_TEST_SUITE(OverlayWithAMovieTest, WithAMovie);

TYPED_TEST(EachOverlayTest, OnItsFirstDayItStandsInTheCornerOnTopOfAllAtItsDesignSize) {
  auto& form = this->Overlay();
  EXPECT_EQ(this->PlaceOf(form), (Place{0, 0, 3000, 3000}));
  EXPECT_TRUE(form.OnTop);
  EXPECT_EQ(form.Type(), Form::Kind::kOnAir);
  EXPECT_EQ(this->Timers(form), Names{"Timer1 500 ms on"});
}

TYPED_TEST(EachOverlayTest, WithoutAStoredLeftTheWindowGoesToTheLeftEdgeAfterHalfASecondWhateverItsStoreRemembers) {
  this->Remember(this->kind.form, "1500", "750", "4500", "2250");
  auto& form = this->Overlay();
  EXPECT_EQ(this->PlaceOf(form), (Place{1500, 750, 4500, 2250}));
  this->Advance(499ms);
  EXPECT_EQ(form.Left, 1500);
  this->Advance(1ms);
  EXPECT_EQ(this->PlaceOf(form), (Place{0, 750, 4500, 2250}));
}

TYPED_TEST(EachOverlayTest, AStoredLeftWinsHalfASecondAfterTheLoadAndOnlyOnce) {
  this->Remember(this->kind.form, "1500", "750", "4500", "2250");
  this->Set(this->kind.section, "Left", "2407.5");
  auto& form = this->Overlay();
  this->Advance(500ms);
  EXPECT_EQ(form.Left, 2407.5);
  EXPECT_FALSE(form.Timer1.Enabled);
  form.Show();
  this->Set(this->kind.section, "Left", "30");
  this->Advance(5s);
  EXPECT_EQ(form.Left, 2407.5);
}

// Meant so: an overlay on a screen to the left of the first one comes back there.
TYPED_TEST(EachOverlayTest, ALeftBesideTheScreenIsTakenAsItIsAndOfWordsBehindANumberNothing) {
  this->Set(this->kind.section, "Left", "-19200");
  EXPECT_EQ((this->Overlay(), this->Advance(1s), this->Overlay().Left.Get()), -19200);
  this->station.forms.template Unload<TypeParam>();
  this->Set(this->kind.section, "Left", "450 twips");
  EXPECT_EQ((this->Overlay(), this->Advance(1s), this->Overlay().Left.Get()), 450);
}

TYPED_TEST(EachOverlayTest, DraggingStoresTheLeftEdgeAloneAndAfterARestartTheTopComesFromTheWindowsStore) {
  auto& form = this->Overlay();
  form.Show();
  this->Advance(1s);
  this->Drag(form, 3307.5, 1200);
  EXPECT_EQ(this->Setting(this->kind.section, "Left"), "3307.5");
  EXPECT_EQ(this->Setting(this->kind.section, "Top"), "(none)");
  this->Advance(1s);

  this->station.forms.template Unload<TypeParam>();
  auto& again = this->Overlay();
  this->Advance(1s);
  EXPECT_EQ(this->PlaceOf(again), (Place{3307.5, 1200, 3000, 3000}));
}

TYPED_TEST(EachOverlayTest, WithTheWindowsStoreLostTheLeftEdgeIsKeptAndTheTopIsTheDesigns) {
  auto& form = this->Overlay();
  form.Show();
  this->Advance(1s);
  this->Drag(form, 3300, 1200);
  this->Advance(1s);
  this->station.forms.template Unload<TypeParam>();
  this->sim.files.Remove("/station/Window.ini");
  auto& again = this->Overlay();
  this->Advance(1s);
  EXPECT_EQ(this->PlaceOf(again), (Place{3300, 0, 3000, 3000}));
}

// Meant so: these keys are the sliders' own.
TYPED_TEST(EachOverlayTest, ItsSizeComesFromTheWindowsStoreAloneWhateverTheKeysWidthAndHeightSay) {
  this->Set(this->kind.section, "Width", "6000");
  this->Set(this->kind.section, "Height", "4500");
  auto& form = this->Overlay();
  this->Advance(1s);
  EXPECT_EQ(this->PlaceOf(form), (Place{0, 0, 3000, 3000}));
}

TYPED_TEST(EachOverlayTest, AnyMouseButtonDragsTheWindow) {
  auto& form = this->Overlay();
  this->Advance(1s);
  for (const MouseButton button : {MouseButton::kRight, MouseButton::kMiddle, MouseButton::kLeft}) {
    this->sim.trace.Take();
    const Twips before = form.Left;
    this->Drag(form, 150, 0, button);
    EXPECT_EQ(this->sim.trace.Take(), Names{std::string(this->kind.form) + " dragged"});
    EXPECT_EQ(this->Setting(this->kind.section, "Left"), std::to_string(static_cast<int>(before + 150)));
  }
}

TYPED_TEST(EachOverlayTest, NothingIsStoredBeforeTheButtonIsLetGo) {
  auto& form = this->Overlay();
  form.lbl.PressMouse(MouseButton::kLeft);
  form.Left = 900;
  EXPECT_EQ(this->Setting(this->kind.section, "Left"), "(none)");
  this->sim.windows.EndDrag();
  EXPECT_EQ(this->Setting(this->kind.section, "Left"), "900");
}

// The grip leaves the bare form no room; what it does there it does all the same.
TYPED_TEST(EachOverlayTest, AMoveAloneOverTheBareFormEntersTheDragAndStoresNothing) {
  auto& form = this->Overlay();
  this->sim.trace.Take();
  form.MoveMouse({.x = 15, .y = 15, .buttons = 0});
  form.Left = 900;
  this->sim.windows.EndDrag();
  form.PressMouse({.x = 15, .y = 15, .buttons = 2});
  this->sim.windows.EndDrag();
  EXPECT_EQ(this->sim.trace.Take(),
            (Names{std::string(this->kind.form) + " dragged", std::string(this->kind.form) + " dragged"}));
  EXPECT_EQ(this->Setting(this->kind.section, "Left"), "(none)");
}

TYPED_TEST(EachOverlayTest, TheGripCoversTheFormAndFollowsItsSizeAndTheMovieDoesNot) {
  auto& form = this->Overlay();
  form.Show();
  EXPECT_EQ(form.lbl.Width, 3000);
  EXPECT_EQ(form.lbl.Height, 3000);
  const Twips movie = form.Flash.Width;
  form.Width = 4500;
  form.Height = 1500;
  EXPECT_EQ(form.lbl.Width, 4500);
  EXPECT_EQ(form.lbl.Height, 1500);
  EXPECT_EQ(form.Flash.Width, movie);
  EXPECT_EQ(form.Controls().front(), &form.lbl) << "what is declared first stands in front";
}

TYPED_TEST(EachOverlayTest, SetSizeTakesTheHeightFirstAndStoresNothingInTheSettings) {
  auto& form = this->Overlay();
  form.SetSize(1500, 4500);
  EXPECT_EQ(this->PlaceOf(form), (Place{0, 0, 4500, 1500}));
  EXPECT_EQ(form.Flash.Height, 1500);
  EXPECT_EQ(form.Flash.Width, 4500);
  EXPECT_EQ(this->Setting(this->kind.section, "Width"), "(none)");
  EXPECT_EQ(this->Setting(this->kind.section, "Height"), "(none)");
}

TYPED_TEST(EachOverlayTest, LoadFlashLeavesEverythingAsItWas) {
  auto& form = this->Overlay();
  form.Flash.Movie = this->Movie("a.swf");
  this->Advance(1s);
  const int frame = form.Flash.CurrentFrame();
  this->sim.trace.Take();
  form.LoadFlash();
  EXPECT_EQ(this->sim.trace.Take(), Names());
  EXPECT_EQ(form.Flash.CurrentFrame(), frame);
  EXPECT_EQ(this->PlaceOf(form), (Place{0, 0, 3000, 3000}));
}

TYPED_TEST(OverlayWithAMovieTest, TheMovieOfItsOwnSectionFillsTheWindowInItsProportionsWithItsSound) {
  this->Remember(this->kind.form, "1500", "750", "4500", "2250");
  this->Set(this->kind.section, "Path", this->Movie("own.swf"));
  auto& form = this->Overlay();
  EXPECT_EQ(form.Flash.Left, 0);
  EXPECT_EQ(form.Flash.Top, 0);
  EXPECT_EQ(form.Flash.Width, 4500);
  EXPECT_EQ(form.Flash.Height, 2250);
  this->Advance(1s);
  EXPECT_EQ(this->Surface(this->kind.form).Shown(), "/station/Media/Logo/own.swf");
  EXPECT_EQ(this->Surface(this->kind.form).Looks(),
            (FlashLooks{FlashLooks::Back::kSeeThrough, FlashLooks::Fit::kKeepProportions, false}));
  EXPECT_EQ(form.KeyInForce(), this->kKey);
  EXPECT_EQ(this->Warnings(), 0);
}

TYPED_TEST(OverlayWithAMovieTest, APictureMakesItSeeThroughAsAMovieDoes) {
  this->Set(this->kind.section, "Path", this->Movie("still.jpg"));
  EXPECT_EQ(this->Overlay().KeyInForce(), this->kKey);
}

TYPED_TEST(OverlayWithAMovieTest, AnUnloadedWindowGoesThroughItsWholeLoadAgain) {
  this->Set(this->kind.section, "Path", this->Movie("a.swf"));
  this->Overlay().Show();
  SetFormTransparent(this->Overlay(), false);
  this->Set(this->kind.section, "Path", this->Movie("b.swf"));
  this->station.forms.template Unload<TypeParam>();
  EXPECT_EQ(this->Overlay().Flash.Movie.Get(), "/station/Media/Logo/b.swf");
  EXPECT_EQ(this->Overlay().KeyInForce(), this->kKey) << "whatever it was when it was shown last";
  EXPECT_FALSE(this->Overlay().Visible);
}

TEST_F(OverlayTest, APathThatNamesNoFileBringsAWarningThatHoldsNothingUpAndIsPutAllTheSame) {
  Set("Logo", "Path", "/station/Media/Logo/gone.swf");
  sim.trace.Take();
  Logo().Show();
  EXPECT_EQ(Logo().Flash.Movie.Get(), "/station/Media/Logo/gone.swf");
  EXPECT_EQ(Logo().KeyInForce(), kKey) << "an empty window through which the picture is seen";
  EXPECT_EQ(Warnings(), 0) << "the box waits until the handler has returned";
  Advance(0s);
  EXPECT_EQ(Warnings(), 1);
}

TEST_F(OverlayTest, AnOverlayThatIsShownBeforeAFileWasChosenBringsTheSameWarning) {
  Logo().Show();
  Advance(0s);
  EXPECT_EQ(Warnings(), 1);
}

TEST_F(OverlayTest, WhileAWarningStandsTimersTickAndNoneOfTheSameWordsFollows) {
  for (const char* section : {"Logo", "Clock", "Stiker"}) Set(section, "Path", "/gone.swf");
  int standing = 0;
  sim.dialogs.whileStanding = [&] {
    ++standing;
    Advance(10s);
    station.forms.Get<frmClockShow>().Show();
  };
  Logo().Left = 900;
  Logo().Show();
  Advance(1s);
  sim.dialogs.whileStanding = nullptr;
  EXPECT_EQ(standing, 1);
  EXPECT_EQ(Warnings(), 1);
  EXPECT_EQ(Logo().Left, 0) << "the timer has ticked behind the box";
  station.forms.Get<frmStikerShow>().Show();
  Advance(1s);
  EXPECT_EQ(Warnings(), 1) << "the former one was answered";
}

TEST_F(OverlayTest, TheFlashAdOpensEmptyWithoutAKeyColourUntilItIsBroughtAMovie) {
  Set("FlashAd", "Path", Movie("dropped.swf"));
  FlashAd().Show();
  Advance(1s);
  EXPECT_EQ(FlashAd().Flash.Movie.Get(), "");
  EXPECT_EQ(Surface("frmFlashAdShow").Shown(), "");
  EXPECT_EQ(FlashAd().KeyInForce(), std::nullopt);
  EXPECT_EQ(FlashAd().BackColor.Get(), kButtonFace);
  EXPECT_EQ(Warnings(), 0);
  LoadFlashInto(FlashAd().Flash, Movie("first.swf"), FlashAd());
  EXPECT_EQ(FlashAd().KeyInForce(), kKey);
  Advance(1s);
  EXPECT_EQ(Surface("frmFlashAdShow").Shown(), "/station/Media/Logo/first.swf");
}

TEST_F(OverlayTest, EachMovieThatIsLoadedStandsInTheCornerFillsTheFormAndMakesItSeeThroughAgain) {
  FlashAd().Show();
  LoadFlashInto(FlashAd().Flash, Movie("first.swf"), FlashAd());
  SetFormTransparent(FlashAd(), false);
  FlashAd().Flash.Left = FlashAd().Flash.Top = 150;
  FlashAd().Flash.Width = FlashAd().Flash.Height = 300;
  LoadFlashInto(FlashAd().Flash, Movie("second.swf"), FlashAd());
  EXPECT_EQ(FlashAd().Flash.Left, 0);
  EXPECT_EQ(FlashAd().Flash.Top, 0);
  EXPECT_EQ(FlashAd().Flash.Width, 3000);
  EXPECT_EQ(FlashAd().Flash.Height, 3000);
  EXPECT_EQ(FlashAd().KeyInForce(), kKey);
}

TEST_F(OverlayTest, SwitchedOffAndOnAgainTheKeyColourIsBackAndAllOtherBitsOfTheStyleAreGone) {
  Logo().ExtendedStyle = kLayered | 0x20;
  SetFormTransparent(Logo(), false);
  EXPECT_EQ(Logo().ExtendedStyle, 0);
  EXPECT_EQ(Logo().BackColor.Get(), kButtonFace);
  EXPECT_EQ(Logo().KeyInForce(), std::nullopt);
  Logo().ExtendedStyle = 0x20;
  SetFormTransparent(Logo(), true);
  EXPECT_EQ(Logo().ExtendedStyle, kLayered) << "the style is replaced outright";
  EXPECT_EQ(Logo().BackColor.Get(), kKey);
  EXPECT_EQ(Logo().KeyInForce(), kKey);
}

TEST_F(OverlayTest, TheLogosSectionIsOneInEitherCase) {
  Set("logo", "Path", Movie("a.swf"));
  Set("logo", "Left", "450");
  Logo();
  Advance(1s);
  EXPECT_EQ(Logo().Left, 450);
  EXPECT_EQ(Logo().Flash.Movie.Get(), "/station/Media/Logo/a.swf");
}

class OverlayMonitorsTest : public OverlayTest {
 protected:
  OverlayMonitorsTest() {
    sim.monitors.monitors = {
        {.handle = 11, .name = "DESK", .area = {0, 0, 1920, 1080}, .workArea = {0, 40, 1920, 1080}, .primary = true},
        {.handle = 22, .name = "AIR", .area = {1920, 100, 3200, 820}, .workArea = {1920, 100, 3200, 820}}};
  }
  void StandAt(Twips left, Twips top) {
    Logo().Left = left;
    Logo().Top = top;
  }
};

TEST_F(OverlayMonitorsTest, OnAnotherMonitorItHasTheOffsetFromTheCornerThatItHadHere) {
  StandAt(ToTwips(30), ToTwips(50));
  Logo().MoveTo(2);
  EXPECT_EQ(PlaceOf(Logo()), (Place{ToTwips(1950), ToTwips(150), 3000, 3000}));
  Logo().MoveTo(1);
  EXPECT_EQ(PlaceOf(Logo()), (Place{ToTwips(30), ToTwips(50), 3000, 3000}));
}

TEST_F(OverlayMonitorsTest, TheOffsetIsRoundedToPixelsAndMayBeNegative) {
  StandAt(-7.5 * 15, 52);
  Logo().MoveTo(2);
  EXPECT_EQ(Logo().Left, ToTwips(1920 - 8));
  EXPECT_EQ(Logo().Top, ToTwips(100 + 3));
}

TEST_F(OverlayMonitorsTest, OnTheMonitorWhereItIsAlreadyNothingChangesNotEvenByRounding) {
  StandAt(37.3, 52.1);
  Logo().MoveTo(1);
  EXPECT_EQ(PlaceOf(Logo()), (Place{37.3, 52.1, 3000, 3000}));
}

// Meant so.
TEST_F(OverlayMonitorsTest, TheMonitorsAreThoseOfTheFirstCallWhateverIsPluggedInLater) {
  StandAt(ToTwips(30), ToTwips(50));
  Logo().MoveTo(1);
  sim.monitors.monitors[1].area = {1920, 300, 3200, 1020};
  Logo().MoveTo(2);
  EXPECT_EQ(Logo().Top, ToTwips(150));
}

TEST_F(OverlayMonitorsTest, AMonitorThatIsNotThereMovesNothing) {
  StandAt(37.3, 52.1);
  Logo().MoveTo(0);
  Logo().MoveTo(3);
  EXPECT_EQ(Logo().Left, 37.3);
}

TEST_F(OverlayMonitorsTest, AnOverlayDoesNotFollowTheOutput) {
  Set("Output", "Show", "True");
  Set("logo", "Show", "True");
  Set("logo", "Left", "900");
  ControlWindow();
  Advance(3s);
  ControlWindow().mnuMonitor2.Choose();
  Advance(3s);
  EXPECT_GE(Output().Left, ToTwips(1920));
  EXPECT_EQ(Logo().Left, 900);
}

}  // namespace
