// The overlays' entries of the menu, their steps of the restore, and how they stand to the output window.
#include "tests/overlay/OverlayTest.h"

using namespace std::chrono_literals;

namespace {

struct Row {
  const char* form;
  const char* section;
  MenuItem frmMid::*entry;
  bool frmMid::*flag;
};

constexpr Row kRows[] = {
    {"FrmLogoShow", "logo", &frmMid::mnuShowLogo, &frmMid::LogoShown},
    {"frmClockShow", "Clock", &frmMid::mnuShowClock, &frmMid::ClockShown},
    {"frmStikerShow", "Stiker", &frmMid::mnuShowStiker, &frmMid::StikerShown},
    {"frmFlashAdShow", "FlashAd", &frmMid::mnuShowFlashAd, &frmMid::FlashAdShown},
};

class OverlayMenuTest : public OverlayTest {
 protected:
  OverlayMenuTest() {
    for (const Row& row : kRows) Set(row.section, "Path", Movie("a.swf"));
  }
  // The lines of the trace that tell of windows that came and went.
  Names ComingsAndGoings() {
    Names seen;
    for (const std::string& line : sim.trace.Take()) {
      const bool tells = line.ends_with(" shown") || line.ends_with(" unloaded");
      if (tells) seen.push_back(line);
    }
    return seen;
  }
};

TEST_F(OverlayMenuTest, AnEntryShowsItsOverlayAndUnloadsItAtTheNextUse) {
  ControlWindow();
  for (const Row& row : kRows) {
    sim.trace.Take();
    (ControlWindow().*row.entry).Choose();
    const Names on = ComingsAndGoings();
    ASSERT_FALSE(on.empty()) << row.form;
    EXPECT_EQ(on.front(), std::string(row.form) + " shown");
    EXPECT_EQ(Setting(row.section, "Show"), "True");
    (ControlWindow().*row.entry).Choose();
    const Names off = ComingsAndGoings();
    EXPECT_EQ(std::ranges::count(off, std::string(row.form) + " unloaded"), 1) << row.form;
    EXPECT_EQ(Setting(row.section, "Show"), "False");
  }
}

TEST_F(OverlayMenuTest, LogoClockAndStickerComeBackBeforeTheOutputAndTheFlashAdBehindIt) {
  for (const Row& row : kRows) Set(row.section, "Show", "True");
  Set("Output", "Show", "True");
  for (const char* key : {"ShowMouse", "ShowTaskbar"}) Set("Settings", key, "1");
  Set("Settings", "StartUp", "0");
  sim.trace.Take();
  ControlWindow();
  Names order;
  for (const std::string& line : ComingsAndGoings()) {
    if (line != "frmPlayer unloaded" && !line.starts_with("frmFlashAdSett")) order.push_back(line);
  }
  EXPECT_EQ(order, (Names{"FrmLogoShow shown", "frmClockShow shown", "frmStikerShow shown", "frmPlayer shown",
                          "frmFlashAdShow shown"}));
  for (const Row& row : kRows) {
    EXPECT_TRUE(ControlWindow().*row.flag) << row.form;
    EXPECT_TRUE((ControlWindow().*row.entry).Checked) << row.form;
  }
}

TEST_F(OverlayMenuTest, AFileThatIsGoneHoldsNothingUpAtAnUnattendedStart) {
  for (const Row& row : kRows) {
    Set(row.section, "Show", "True");
    Set(row.section, "Path", "/gone.swf");
  }
  Set("Output", "Show", "True");
  sim.trace.Take();
  ControlWindow();
  const Names atStart = sim.trace.Take();
  EXPECT_EQ(std::ranges::count(atStart, kWarning), 0) << "no box before the picture";
  EXPECT_TRUE(Output().Visible);
  Advance(1s);
  EXPECT_EQ(Warnings(), 1);
}

TEST_F(OverlayMenuTest, OnlyTheExactWordTrueBringsAnOverlayBack) {
  for (const Row& row : kRows) Set(row.section, "Show", "true");
  ControlWindow();
  for (const Row& row : kRows) EXPECT_FALSE(ControlWindow().*row.flag) << row.form;
  EXPECT_FALSE(station.forms.Loaded<FrmLogoShow>());
}

TEST_F(OverlayMenuTest, WithTheFlashAdOffItsWindowIsUnloadedAtTheRestore) {
  FlashAd().Show();
  ControlWindow();
  EXPECT_FALSE(station.forms.Loaded<frmFlashAdShow>());
}

TEST_F(OverlayMenuTest, AMaskedOutputStandsBelowTheOverlaysThatAreOn) {
  for (const Row& row : kRows) Set(row.section, "Show", "True");
  Set("Output", "Show", "True");
  ControlWindow();
  ControlWindow().mnuMasking.Choose();
  const Names stack = sim.windows.Stack();
  EXPECT_EQ(Names(stack.begin(), stack.begin() + 5),
            (Names{"frmFlashAdShow", "frmStikerShow", "frmClockShow", "FrmLogoShow", "frmPlayer"}));
}

TEST_F(OverlayMenuTest, OnlyOverlaysWhoseKeySaysTrueAreBroughtInFrontOfAMaskedOutput) {
  Set("Output", "Show", "True");
  Set("logo", "Show", "True");
  Set("Clock", "Show", "True");
  ControlWindow();
  Set("Clock", "Show", "true");
  ControlWindow().mnuMasking.Choose();
  EXPECT_EQ(sim.windows.Stack().at(0), "FrmLogoShow");
  EXPECT_EQ(sim.windows.Stack().at(1), "frmPlayer");
  EXPECT_EQ(sim.windows.Stack().at(2), "frmClockShow") << "covered: its key does not say so";
  EXPECT_FALSE(station.forms.Loaded<frmStikerShow>());
}

// Meant so: what its key calls on is brought to life.
TEST_F(OverlayMenuTest, MaskingLoadsAnOverlayWhoseKeySaysTrueAndShowsItToNobody) {
  Set("Output", "Show", "True");
  ControlWindow();
  Set("Stiker", "Show", "True");
  ControlWindow().mnuMasking.Choose();
  ASSERT_TRUE(station.forms.Loaded<frmStikerShow>());
  EXPECT_FALSE(station.forms.Get<frmStikerShow>().Visible);
}

TEST_F(OverlayMenuTest, UnmaskingLeavesTheOverlaysOnTop) {
  Set("Output", "Show", "True");
  Set("logo", "Show", "True");
  ControlWindow();
  ControlWindow().mnuMasking.Choose();
  ControlWindow().mnuMasking.Choose();
  EXPECT_EQ(sim.windows.Stack().at(0), "FrmLogoShow");
  EXPECT_TRUE(Logo().OnTop);
}

TEST_F(OverlayMenuTest, UnmaskingBringsNoOverlayForward) {
  for (const char* section : {"Output", "logo", "Clock"}) Set(section, "Show", "True");
  ControlWindow();
  ControlWindow().mnuMasking.Choose();
  Logo().win.OnTop = true;
  ControlWindow().mnuMasking.Choose();
  EXPECT_EQ(sim.windows.Stack().at(0), "FrmLogoShow");
}

}  // namespace
