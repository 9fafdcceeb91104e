// The desk of the news strip: the operator's headlines, and the strip's place.
#include "overlay/frmBreakingNewsSett.h"
#include "tests/overlay/BreakingNewsTest.h"

using namespace std::chrono_literals;

namespace {

using All = std::vector<Headline>;

class BreakingNewsDeskTest : public BreakingNewsTest {
 protected:
  frmBreakingNewsSett& Desk() { return station.forms.Get<frmBreakingNewsSett>(); }
  All Stored() { return Headlines(sim.files, station.dataFolder).All(); }
  Names Rows() {
    Names rows;
    for (const ListRow& row : Desk().ListNews.Rows()) rows.push_back(row.SubItem(1) + ": " + row.text);
    return rows;
  }
  void Add(const std::string& text) {
    Desk().txtNews.Type(text);
    Desk().btnAdd.Press();
  }
  std::string Kept(const char* key) {
    IniFile windows(sim.files);
    windows.SetPath("/station/Window.ini");
    return windows.ReadValue("frmBreakingNews", key, "(none)");
  }
};

TEST_F(BreakingNewsDeskTest, ItsMenuEntryOpensIt) {
  ControlWindow().mnuBreakingNewsSettings.Choose();
  ASSERT_TRUE(station.forms.Loaded<frmBreakingNewsSett>());
  EXPECT_TRUE(Desk().Visible);
}

TEST_F(BreakingNewsDeskTest, TheFileIsMadeByTheFirstSaveAndByNothingElse) {
  Desk().Show();
  Desk().txtNews.Type("typed only");
  Desk().chkActive.Toggle();
  Desk().btnSave.Press();
  Desk().btnDelete.Press();
  Desk().btnUp.Press();
  Desk().btnDown.Press();
  EXPECT_EQ(sim.files.Kind("/station/rss.ini"), FileKind::kAbsent);
  Desk().chkActive.Toggle();
  Desk().btnAdd.Press();
  EXPECT_EQ(sim.files.Read("/station/rss.ini"), "[1]\r\nText=typed only\r\nActive=1\r\n");
}

TEST_F(BreakingNewsDeskTest, AddedHeadlinesStandAtTheEndAndTheFieldIsFreeForTheNext) {
  Add("a");
  Add("b");
  EXPECT_EQ(Rows(), (Names{"a: Active", "b: Active"}));
  EXPECT_EQ(Stored(), (All{{"a", true}, {"b", true}}));
  EXPECT_EQ(Desk().txtNews.Text.Get(), "");
  EXPECT_EQ(sim.windows.focus, "frmBreakingNewsSett.txtNews");
  EXPECT_EQ(Desk().ListNews.SelectedItem(), 0);
}

TEST_F(BreakingNewsDeskTest, ABlankTextIsNeitherAddedNorTakenForAHeadline) {
  Add("a");
  for (const char* blank : {"", "   ", "\t"}) {
    Add(blank);
    Desk().ListNews.ClickRow(1);
    Desk().txtNews.Type(blank);
    Desk().btnSave.Press();
  }
  EXPECT_EQ(Stored(), (All{{"a", true}}));
}

TEST_F(BreakingNewsDeskTest, ASelectedHeadlineShowsItsTextAndWhetherItIsOn) {
  Store({{"a", true}, {"b", false}});
  Desk().ListNews.ClickRow(2);
  EXPECT_EQ(Desk().txtNews.Text.Get(), "b");
  EXPECT_FALSE(Desk().chkActive.Ticked());
  Desk().ListNews.SelectRows({1}, 1);  // by the arrow keys
  EXPECT_EQ(Desk().txtNews.Text.Get(), "a");
  EXPECT_TRUE(Desk().chkActive.Ticked());
}

TEST_F(BreakingNewsDeskTest, ChangeGivesTheSelectedHeadlineTheText) {
  Store({{"a", true}, {"b", false}});
  Desk().ListNews.ClickRow(2);
  Desk().txtNews.Type("better");
  Desk().btnSave.Press();
  EXPECT_EQ(Stored(), (All{{"a", true}, {"better", false}}));
  EXPECT_EQ(Desk().ListNews.SelectedItem(), 2);
}

TEST_F(BreakingNewsDeskTest, TheBoxSwitchesTheSelectedHeadlineAtOnceAndLeavesWhatIsTyped) {
  Store({{"a", true}, {"b", true}});
  Desk().ListNews.ClickRow(1);
  Desk().txtNews.Type("half typed");
  Desk().chkActive.Toggle();
  EXPECT_EQ(Stored(), (All{{"a", false}, {"b", true}}));
  EXPECT_EQ(Rows(), (Names{"a: Inactive", "b: Active"}));
  EXPECT_EQ(Desk().txtNews.Text.Get(), "half typed");
  EXPECT_EQ(Desk().ListNews.SelectedItem(), 1);
}

TEST_F(BreakingNewsDeskTest, WithNoneSelectedTheBoxIsOfTheNextNewOne) {
  Desk().chkActive.Toggle();
  Add("later");
  EXPECT_EQ(Stored(), (All{{"later", false}}));
}

TEST_F(BreakingNewsDeskTest, HeadlinesMoveUpAndDownAndStayAtTheEnds) {
  Store({{"a", true}, {"b", false}, {"c", true}});
  Desk().ListNews.ClickRow(1);
  Desk().btnUp.Press();
  Desk().btnDown.Press();
  EXPECT_EQ(Rows(), (Names{"b: Inactive", "a: Active", "c: Active"}));
  EXPECT_EQ(Desk().ListNews.SelectedItem(), 2);
  Desk().btnDown.Press();
  Desk().btnDown.Press();
  EXPECT_EQ(Stored(), (All{{"b", false}, {"c", true}, {"a", true}}));
  EXPECT_EQ(Desk().ListNews.SelectedItem(), 3);
}

TEST_F(BreakingNewsDeskTest, DeleteAsksAndNoLeavesTheHeadline) {
  Store({{"a", true}, {"b", true}});
  Desk().ListNews.ClickRow(1);
  sim.trace.Take();
  Desk().btnDelete.Press();
  EXPECT_EQ(sim.trace.Take(), Names{"box \"Are you sure you want to delete this headline?\" \"DELETE HEADLINE\""});
  EXPECT_EQ(Stored().size(), 2u);
}

TEST_F(BreakingNewsDeskTest, AfterADeletionItsFollowerIsSelected) {
  Store({{"a", true}, {"b", true}, {"c", true}});
  Desk().ListNews.ClickRow(2);
  sim.dialogs.answers = {Answer::kYes, Answer::kYes, Answer::kYes};
  Desk().btnDelete.Press();
  EXPECT_EQ(Stored(), (All{{"a", true}, {"c", true}}));
  EXPECT_EQ(Desk().ListNews.SelectedItem(), 2);
  EXPECT_EQ(Desk().txtNews.Text.Get(), "c");
  Desk().btnDelete.Press();
  EXPECT_EQ(Desk().ListNews.SelectedItem(), 1);
  Desk().btnDelete.Press();
  EXPECT_EQ(Stored(), All{});
  EXPECT_EQ(Desk().ListNews.SelectedItem(), 0);
  EXPECT_FALSE(Desk().btnDelete.Enabled);
}

TEST_F(BreakingNewsDeskTest, ButtonsThatNeedASelectedHeadlineAreOffWithoutOne) {
  Store({{"a", true}});
  const auto enabled = [this] {
    std::vector<bool> all;
    for (const CommandButton* one : {&Desk().btnUp, &Desk().btnDown, &Desk().btnDelete, &Desk().btnSave}) {
      all.push_back(one->Enabled);
    }
    return all;
  };
  EXPECT_EQ(enabled(), std::vector<bool>(4, false));
  Desk().ListNews.ClickRow(1);
  EXPECT_EQ(enabled(), std::vector<bool>(4, true));
  Add("b");
  EXPECT_EQ(enabled(), std::vector<bool>(4, false));
}

TEST_F(BreakingNewsDeskTest, AListThatAnotherHandHasChangedIsShownAndNotOverwritten) {
  Store({{"a", true}, {"b", true}});
  Desk().ListNews.ClickRow(2);
  Store({{"x", true}, {"y", true}, {"z", true}});
  Desk().btnUp.Press();
  EXPECT_EQ(Stored(), (All{{"x", true}, {"y", true}, {"z", true}}));
  EXPECT_EQ(Rows(), (Names{"x: Active", "y: Active", "z: Active"}));
}

TEST_F(BreakingNewsDeskTest, ADeletionIsOfTheHeadlineThatWasAskedAboutWhateverHappensMeanwhile) {
  Store({{"a", true}, {"b", true}});
  Desk().ListNews.ClickRow(1);
  sim.dialogs.answers = {Answer::kYes};
  sim.dialogs.whileStanding = [this] { Desk().ListNews.ClickRow(2); };
  Desk().btnDelete.Press();
  EXPECT_EQ(Stored(), (All{{"b", true}}));
}

TEST_F(BreakingNewsDeskTest, WithAFullDiskTheListShowsWhatIsStored) {
  Add("a");
  sim.files.SetDiskFull(true);
  Add("b");
  EXPECT_EQ(Rows(), Names{"a: Active"});
}

TEST_F(BreakingNewsDeskTest, AHeadlineWithLineEndsIsOneLine) {
  Add("one\ntwo");
  EXPECT_EQ(Rows(), Names{"one two: Active"});
  Desk().ListNews.ClickRow(1);
  Desk().btnSave.Press();
  EXPECT_EQ(Stored(), (All{{"one two", true}}));
}

TEST_F(BreakingNewsDeskTest, WhatIsStoredComesOnTheRunningStrip) {
  Strip().Show();
  Advance(1s);
  Given();
  Add("a");
  Add("b");
  Advance(2 * kLoop);
  EXPECT_EQ(Given(), (Names{"a", "b"}));
}

TEST_F(BreakingNewsDeskTest, TheSlidersShowTheStripsPlaceInPixelsAndReachAllScreens) {
  sim.monitors.monitors = {{.handle = 1, .area = {-1280, 100, 0, 820}, .workArea = {-1280, 100, 0, 820}},
                           {.handle = 2, .area = {0, 0, 1920, 1080}, .workArea = {0, 0, 1920, 1040}, .primary = true}};
  Set("BreakingNews", "Left", "1500");
  const struct {
    Slider& slider;
    int min, max, value;
  } rows[] = {{Desk().sldLeft, -1280, 1920 - 160, 100},
              {Desk().sldTop, 0, 1080 - 20, 600},
              {Desk().sldWidth, 160, 3200, 1030},
              {Desk().sldHeight, 20, 1080, 60}};
  for (const auto& row : rows) {
    EXPECT_EQ(row.slider.Min, row.min) << row.slider.Name();
    EXPECT_EQ(row.slider.Max, row.max) << row.slider.Name();
    EXPECT_EQ(row.slider.Value, row.value) << row.slider.Name();
  }
  EXPECT_EQ(Desk().lblWidth.Caption.Get(), "1030 pixels");
}

TEST_F(BreakingNewsDeskTest, TheStripFollowsTheSlidersAndItsPlaceIsRemembered) {
  Strip().Show();
  Desk().sldLeft.Move(40);
  Desk().sldTop.Move(500);
  Desk().sldWidth.Move(800);
  Desk().sldHeight.Move(50);
  EXPECT_EQ(Strip().Left, 600);
  EXPECT_EQ(Strip().Top, 7500);
  EXPECT_EQ(Strip().Width, 12000);
  EXPECT_EQ(Strip().Height, 750);
  EXPECT_EQ(Desk().lblTop.Caption.Get(), "500 pixels");
  Advance(1s);
  EXPECT_EQ(Kept("Top"), "7500");
  EXPECT_EQ(Kept("Width"), "12000");
  EXPECT_EQ(Kept("Height"), "750");
}

TEST_F(BreakingNewsDeskTest, TheLeftIsWrittenWhenTheSliderIsLetGoAndWinsAtTheNextLoad) {
  Strip().Show();
  Desk().sldLeft.Move(40);
  EXPECT_EQ(Setting("BreakingNews", "Left"), "(none)");
  Desk().sldLeft.LetGo(42);
  EXPECT_EQ(Setting("BreakingNews", "Left"), "630");
  station.forms.Unload<frmBreakingNews>();
  EXPECT_EQ(Strip().Left, 630);
}

// Top, width and height are the window's own to remember.
TEST_F(BreakingNewsDeskTest, OfTheStripsPlaceTheLeftAloneIsAlsoASetting) {
  Strip().Show();
  for (Slider* slider : {&Desk().sldTop, &Desk().sldWidth, &Desk().sldHeight}) {
    slider->Move(300);
    slider->LetGo(300);
  }
  for (const char* key : {"Left", "Top", "Width", "Height"}) EXPECT_EQ(Setting("BreakingNews", key), "(none)") << key;
}

TEST_F(BreakingNewsDeskTest, BlanksAroundATextAreKept) {
  Add("  late  ");
  EXPECT_EQ(Stored(), (All{{"  late  ", true}}));
}

TEST_F(BreakingNewsDeskTest, APlaceSetWhileTheStripIsOffIsThereWhenItComesOn) {
  Desk().Show();
  Desk().sldTop.Move(300);
  Desk().sldTop.LetGo(300);
  Desk().sldLeft.Move(20);
  Desk().sldLeft.LetGo(20);
  Desk().Close();
  EXPECT_FALSE(station.forms.Loaded<frmBreakingNews>()) << "the strip that nobody sees goes with its desk";
  ControlWindow().mnuBreakingNewsShow.Choose();
  EXPECT_EQ(Strip().Top, 4500);
  EXPECT_EQ(Strip().Left, 300);
}

TEST_F(BreakingNewsDeskTest, ClosingTheDeskLeavesAStripOnTheAirAlone) {
  Strip().Show();
  Desk().Show();
  Desk().Close();
  EXPECT_FALSE(station.forms.Loaded<frmBreakingNewsSett>());
  EXPECT_TRUE(Strip().Visible);
}

}  // namespace
