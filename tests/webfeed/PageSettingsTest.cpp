#include "tests/webfeed/PageSettingsTest.h"

#include <functional>

#include "webfeed/mdlPageTransparent.h"

namespace {

using namespace std::chrono_literals;

TEST_F(PageSettingsTest, ThePagesStandInTheOrderOfTheFileAndTheStartUpPageIsTold) {
  Store("news");
  Store("board");
  SetStartUpPage("board");
  EXPECT_EQ(Desk().Caption.Get(), "Web feed settings");
  EXPECT_EQ(Listed(), (Names{"news", "board"}));
  EXPECT_EQ(Desk().listPage.Text(), "");
  EXPECT_EQ(Desk().lblStartPage.Caption.Get(), "Start up page: board");
}

TEST_F(PageSettingsTest, WithoutAnyFileThereIsNoPageAndAnEmptyTransparencyShowsAsTen) {
  EXPECT_EQ(Listed(), Names{});
  EXPECT_EQ(Desk().lblStartPage.Caption.Get(), "Start up page: ");
  EXPECT_EQ(Desk().scrlTrans.Value, 10);
  EXPECT_EQ(Desk().txtTrans.Text.Get(), "10");
  EXPECT_EQ(Desk().cmbMin.Text.Get(), "");
  EXPECT_FALSE(Desk().Timer5.Enabled);
  EXPECT_FALSE(Desk().cmbMin.Enabled);
  EXPECT_EQ(Option("Display", "Trans"), "(none)") << "it writes nothing";
}

TEST_F(PageSettingsTest, TheOptionsComeFromTheirFileAndRunNoHandlers) {
  SetOption("Display", "OnTop", "1");
  SetOption("Display", "Trans", "120");
  SetOption("Settings", "Refresh", "1");
  SetOption("Settings", "Min", "5 Min");
  frmPageSettings& desk = Desk();
  EXPECT_EQ(desk.chkOntop.Value, 1);
  EXPECT_EQ(desk.scrlTrans.Value, 120);
  EXPECT_EQ(desk.txtTrans.Text.Get(), "120");
  EXPECT_EQ(desk.cmbMin.Text.Get(), "5 Min");
  EXPECT_EQ(desk.RefreshSeconds, 300);
  EXPECT_TRUE(desk.Timer5.Enabled);
  EXPECT_TRUE(desk.cmbMin.Enabled);
  EXPECT_FALSE(station.forms.Loaded<FrmWeb>());
}

TEST_F(PageSettingsTest, ThereAreAHundredAndTwentyPeriodsAndTheLastIsTwoHours) {
  frmPageSettings& desk = Desk();
  ASSERT_EQ(desk.cmbMin.ListCount(), 120);
  EXPECT_EQ(desk.cmbMin.List(0), "1 Min");
  desk.cmbMin.Pick(119);
  EXPECT_EQ(desk.cmbMin.Text.Get(), "120 Min");
  EXPECT_EQ(desk.RefreshSeconds, 7200);
}

TEST_F(PageSettingsTest, AClickShowsTheAddressAndOpensNothing) {
  Store("news");
  Pick("news");
  EXPECT_EQ(Desk().txtURL.Text.Get(), "news.example");
  EXPECT_EQ(sim.browser.Find("frmPageSettings.WebPre")->Address(), "");
  EXPECT_FALSE(station.forms.Loaded<FrmWeb>());
}

TEST_F(PageSettingsTest, ADoubleClickAndThePreviewButtonOpenThePageInThePreview) {
  Store("news");
  Store("board");
  Desk();
  SimPage& preview = *sim.browser.Find("frmPageSettings.WebPre");
  Pick("news");
  Desk().listPage.DoubleClick();
  EXPECT_EQ(preview.Address(), "http://news.example");
  Pick("board");
  EXPECT_EQ(preview.Address(), "http://news.example") << "a click leaves it";
  Desk().vkCommand4.Press();
  EXPECT_EQ(preview.Address(), "http://board.example");
  EXPECT_TRUE(Desk().WebPre.Silent);
  EXPECT_FALSE(preview.Looks().sound);
  Advance(1s);
  EXPECT_EQ(Desk().lblUrlPre.Caption.Get(), "Done");
  EXPECT_FALSE(station.forms.Loaded<FrmWeb>()) << "on the air they change nothing";
}

TEST_F(PageSettingsTest, ThePreviewReadsTheFileThatIsMeantJustNow) {
  Store("news");
  Pick("news");
  Desk().chkOntop.Toggle();  // which points the shared file elsewhere
  Desk().vkCommand4.Press();
  EXPECT_EQ(sim.browser.Find("frmPageSettings.WebPre")->Address(), "");
}

TEST_F(PageSettingsTest, ANewPageHasTheScreensSizeAndTheWindowsPlace) {
  Feed().Top = 150;
  Feed().Left = 300;
  Feed().Web.Top = -700;
  Feed().Web.Left = -800;
  sim.dialogs.inputs = {"news", "news.example"};
  Desk().btnAdd.Press();
  EXPECT_EQ(Listed(), Names{"news"});
  EXPECT_EQ(PageKey("news", "URL"), "news.example");
  EXPECT_EQ(PageKey("news", "FrmHeight"), "16200");
  EXPECT_EQ(PageKey("news", "FrmWidth"), "28800");
  EXPECT_EQ(PageKey("news", "FrmTop"), "150");
  EXPECT_EQ(PageKey("news", "FrmLeft"), "300");
  EXPECT_EQ(PageKey("news", "PageTop"), "0");
  EXPECT_EQ(PageKey("news", "PageLeft"), "0");
}

TEST_F(PageSettingsTest, AddingAPageWithTheFeedClosedOpensItHiddenAndEveryKeyGoesToThePages) {
  sim.dialogs.inputs = {"news", "news.example"};
  Desk().btnAdd.Press();
  ASSERT_TRUE(station.forms.Loaded<FrmWeb>());
  EXPECT_FALSE(Feed().Visible);
  EXPECT_EQ(PageKey("news", "FrmLeft"), "3000");
  EXPECT_EQ(Option("news", "FrmLeft"), "(none)");
  EXPECT_EQ(Listed(), Names{"news"});
}

TEST_F(PageSettingsTest, ACancelledAdditionAsksBothQuestionsAndAddsAPageWithoutAName) {
  Desk();
  sim.trace.Take();
  Desk().btnAdd.Press();
  EXPECT_EQ(Listed(), Names{""});
  Names asked = sim.trace.Take();
  std::erase_if(asked,
                [](const std::string& line) { return !line.starts_with("input ") && !line.starts_with("box "); });
  EXPECT_EQ(asked,
            (Names{"input \"Enter a page name\" \"Add new page\"", "input \"Enter a page URL\" \"Add new page\""}));
}

TEST_F(PageSettingsTest, AnAddedPageIsTheOneThatLoadOpens) {
  sim.dialogs.inputs = {"news", "news.example"};
  Desk().btnAdd.Press();
  EXPECT_EQ(CurrentPageName(), "") << "until then nothing shows it";
  EXPECT_EQ(Desk().txtURL.Text.Get(), "");
  Desk().btnGo.Press();
  EXPECT_EQ(Page().Address(), "http://news.example");
  EXPECT_EQ(Desk().lblStartPage.Caption.Get(), "Loaded page: ") << "no row is chosen";
}

TEST_F(PageSettingsTest, LoadOpensTheChosenPageAndTellsSo) {
  Store("news");
  Pick("news");
  Desk().txtURL.Type("typed.example");  // which nothing reads
  EXPECT_EQ(sim.browser.Find("frmPageSettings.WebPre")->Address(), "");
  Desk().btnGo.Press();
  EXPECT_EQ(Page().Address(), "http://news.example");
  EXPECT_EQ(CurrentPageName(), "news");
  EXPECT_EQ(Desk().lblStartPage.Caption.Get(), "Loaded page: news");
  EXPECT_FALSE(Feed().Visible) << "a closed feed stays hidden";
}

TEST_F(PageSettingsTest, DeleteTakesTheChosenPageAwayWithoutAQuestion) {
  Store("news");
  Store("board");
  Pick("news");
  Desk().btnDelete.Press();
  EXPECT_EQ(Listed(), Names{"board"});
  EXPECT_EQ(LastBox(), "");
}

TEST_F(PageSettingsTest, DeleteWithNoRowChosenTakesThePageWithoutANameIfThereIsOne) {
  Store("news");
  Desk().btnDelete.Press();
  EXPECT_EQ(Listed(), Names{"news"});
  Store("");
  Desk().btnDelete.Press();
  EXPECT_EQ(Listed(), Names{"news"});
  EXPECT_EQ(PageKey("", "URL"), "(none)");
}

TEST_F(PageSettingsTest, TheStartUpPageIsStoredAndTheLabelGoesOnTellingTheFormerOne) {
  Store("news");
  SetStartUpPage("board");
  Pick("news");
  Desk().btnStartUPpage.Press();
  EXPECT_EQ(Option("StartUpPage", "PageName"), "news");
  EXPECT_EQ(Desk().lblStartPage.Caption.Get(), "Start up page: board");
}

TEST_F(PageSettingsTest, AShortPressMovesThePageByTwoSteps) {
  Hold(Desk().btnLocation_0, 10ms);
  EXPECT_EQ(Feed().Web.Left, -200);
  Hold(Desk().btnLocation_1, 10ms);
  EXPECT_EQ(Feed().Web.Left, 0);
  Hold(Desk().btnLocation_2, 10ms);
  EXPECT_EQ(Feed().Web.Top, -200);
  Hold(Desk().btnLocation_3, 10ms);
  EXPECT_EQ(Feed().Web.Top, 0);
}

TEST_F(PageSettingsTest, ALongPressGoesOnUntilTheButtonComesUpAndNothingIsStored) {
  Store("news");
  SetStartUpPage("news");
  Feed();
  Hold(Desk().btnLocation_3, 500ms);
  EXPECT_EQ(Feed().Web.Top, -3000 + 100 * 12);
  Advance(1s);
  EXPECT_EQ(Feed().Web.Top, -3000 + 100 * 12);
  EXPECT_EQ(PageKey("news", "PageTop"), "-3000");
  Desk().btnSave.Press();
  EXPECT_EQ(PageKey("news", "PageTop"), "-1800");
  EXPECT_EQ(Listed(), Names{"news"});
  EXPECT_EQ(LastBox(), "");
  EXPECT_EQ(Desk().lblStartPage.Caption.Get(), "Start up page: news");
}

TEST_F(PageSettingsTest, ThePageIsMovedBeyondItsOwnEdgesToo) {
  Hold(Desk().btnLocation_1, 10ms);
  EXPECT_EQ(Feed().Web.Left, 200);
  Feed().Web.Left = -kScreenWidth;
  Hold(Desk().btnLocation_0, 10ms);
  EXPECT_EQ(Feed().Web.Left, -kScreenWidth - 200);
}

TEST_F(PageSettingsTest, AnyButtonOfTheMouseMovesThePage) {
  Desk().btnLocation_3.PressMouse(MouseButton::kRight);
  Advance(60ms);
  Desk().btnLocation_3.ReleaseMouse(MouseButton::kRight);
  Advance(1s);
  EXPECT_EQ(Feed().Web.Top, 200) << "one step at once and one at the tick";
}

TEST_F(PageSettingsTest, StayOnTopActsAtOnceAndIsStored) {
  Feed();
  Advance(1s);
  Desk().chkOntop.Toggle();
  EXPECT_TRUE(Feed().win.OnTop);
  EXPECT_EQ(Option("Display", "OnTop"), "1");
  Desk().chkOntop.Toggle();
  EXPECT_FALSE(Feed().win.OnTop);
  EXPECT_EQ(Option("Display", "OnTop"), "0");
}

TEST_F(PageSettingsTest, TheBoxForClicksIsClearAtFirstWhileThePageTakesThem) {
  Feed();
  EXPECT_EQ(Desk().chkEnable.Value, 0);
  EXPECT_TRUE(Feed().picWeb.Enabled);
  Desk().chkEnable.Toggle();
  EXPECT_TRUE(Feed().picWeb.Enabled);
  Desk().chkEnable.Toggle();
  EXPECT_FALSE(Feed().picWeb.Enabled);
  EXPECT_FALSE(sim.files.Read("/station/settings_page.ini")) << "it is stored nowhere";
}

TEST_F(PageSettingsTest, ThePageIsReloadedWheneverThePeriodIsOver) {
  SetOption("Settings", "Refresh", "1");
  SetOption("Settings", "Min", "2 Min");
  Feed();
  Desk().Show();
  sim.trace.Take();
  Advance(119s);
  EXPECT_EQ(Reloads(), 0);
  Advance(1s);
  EXPECT_EQ(Reloads(), 1);
  Advance(240s);
  EXPECT_EQ(Reloads(), 2);
}

TEST_F(PageSettingsTest, WithNoPeriodStoredThePageReloadsEverySecondAsLongAsTheDeskIsOpen) {
  Desk().chkRefresh.Toggle();
  EXPECT_EQ(Option("Settings", "Refresh"), "1");
  Feed();
  sim.trace.Take();
  Advance(5s);
  EXPECT_EQ(Reloads(), 5);
  Desk().vkCommand5.Press();
  EXPECT_FALSE(station.forms.Loaded<frmPageSettings>());
  EXPECT_FALSE(sim.files.Read("/station/Page.ini")) << "and no place is stored";
  Advance(5s);
  EXPECT_EQ(Reloads(), 0);
}

TEST_F(PageSettingsTest, AnotherPeriodLetsTheSecondsThatHavePassedCount) {
  Desk().chkRefresh.Toggle();
  Desk().cmbMin.Pick(1);
  Feed();
  sim.trace.Take();
  Advance(90s);
  Desk().cmbMin.Pick(0);
  Advance(1s);
  EXPECT_EQ(Reloads(), 1);
}

TEST_F(PageSettingsTest, APeriodThatIsNoNumberIsNoughtAndOneBeyondAllBoundsIsTheLongest) {
  SetOption("Settings", "Min", "often");
  EXPECT_EQ(Desk().RefreshSeconds, 0);
  Desk().vkCommand5.Press();
  SetOption("Settings", "Min", "99999999 Min");
  EXPECT_EQ(Desk().RefreshSeconds, 32767);
}

TEST_F(PageSettingsTest, APeriodBelowNoughtReloadsEverySecondAsNoughtDoes) {
  SetOption("Settings", "Refresh", "1");
  SetOption("Settings", "Min", "-5 Min");
  EXPECT_EQ(Desk().RefreshSeconds, -300);
  Feed();
  sim.trace.Take();
  Advance(3s);
  EXPECT_EQ(Reloads(), 3);
}

TEST_F(PageSettingsTest, BehindAClickInTheListThePeriodIsWrittenIntoThePagesWhereItLooksLikeOne) {
  Store("news");
  Pick("news");
  Desk().cmbMin.Pick(4);
  EXPECT_EQ(PageKey("Settings", "Min"), "5 Min");
  EXPECT_EQ(Option("Settings", "Min"), "(none)");
  Desk().btnSave.Press();
  EXPECT_EQ(Listed(), (Names{"news", "Settings", ""}));
}

TEST_F(PageSettingsTest, TheTransparencyIsStoredAndMakesTheWindowALayeredOneWithItsOtherBitsKept) {
  Feed().ExtendedStyle = 0x20;
  for (const int value : {10, 200, 255}) {
    Desk().scrlTrans.Work(value);
    EXPECT_EQ(Option("Display", "Trans"), std::to_string(value));
    EXPECT_EQ(Desk().txtTrans.Text.Get(), std::to_string(value));
    EXPECT_EQ(Feed().ExtendedStyle, kLayered | 0x20);
  }
  EXPECT_EQ(Feed().KeyInForce(), std::nullopt);
}

TEST_F(PageSettingsTest, ATransparencyThatIsTypedIsNotTaken) {
  Desk().txtTrans.Type("200");
  EXPECT_EQ(Desk().scrlTrans.Value, 10);
  EXPECT_EQ(Option("Display", "Trans"), "(none)");
}

TEST_F(PageSettingsTest, TheTopmostTwentyTransparenciesLeaveTheWindowsStyleAloneAndAreStored) {
  for (const int value : {256, 275}) {
    Desk().scrlTrans.Work(value);
    EXPECT_EQ(Feed().ExtendedStyle, 0);
    EXPECT_EQ(Option("Display", "Trans"), std::to_string(value));
  }
}

TEST_F(PageSettingsTest, AnAlphaThatNoWindowHasIsRefused) {
  EXPECT_EQ(SetPageAlpha(Feed(), -1), 1);
  EXPECT_EQ(SetPageAlpha(Feed(), 256), 1);
  EXPECT_EQ(Feed().ExtendedStyle, 0);
  EXPECT_EQ(SetPageAlpha(Feed(), 0), 0);
}

TEST_F(PageSettingsTest, WhatReachesForAClosedFeedBringsItToLifeHidden) {
  const std::vector<std::function<void()>> reaches{
      [this] { Desk().scrlTrans.Work(100); }, [this] { Desk().chkOntop.Toggle(); },
      [this] { Desk().chkEnable.Toggle(); },  [this] { Desk().btnLocation_0.Press(); },
      [this] { Desk().btnSave.Press(); },     [this] { Desk().vkCommand1.Press(); },
      [this] { Desk().vkCommand2.Press(); }};
  for (const auto& reach : reaches) {
    ASSERT_FALSE(station.forms.Loaded<FrmWeb>());
    reach();
    ASSERT_TRUE(station.forms.Loaded<FrmWeb>());
    EXPECT_FALSE(Feed().Visible);
    station.forms.Unload<FrmWeb>();
  }
}

TEST_F(PageSettingsTest, TheSpareButtonIsTheOperatorsMoveToTwoHundred) {
  Desk().Command2.Press();
  EXPECT_EQ(Desk().scrlTrans.Value, 200);
  EXPECT_EQ(Option("Display", "Trans"), "200");
}

TEST_F(PageSettingsTest, TheTextGrowsToItsLargestAndItsSizeIsTold) {
  Feed();
  Desk().vkCommand1.Press();
  EXPECT_EQ(LastBox(), "box \"The current font size is 2\" \"Corvanta 6.0\"");
  for (int i = 0; i < 5; ++i) Desk().vkCommand2.Press();
  EXPECT_EQ(LastBox(), "");
  EXPECT_EQ(Page().Looks().zoom, 150);
  EXPECT_EQ(Desk().WebPre.TextSize, 2) << "the preview's stays";
  Desk().vkCommand1.Press();
  EXPECT_EQ(LastBox(), "box \"The current font size is 4\" \"Corvanta 6.0\"");
  EXPECT_FALSE(sim.files.Read("/station/settings_page.ini")) << "it is stored nowhere";
  station.forms.Unload<FrmWeb>();
  EXPECT_EQ(Feed().Web.TextSize, 2);
}

TEST_F(PageSettingsTest, ExitStoresThePlaceAndEndsTheWholeProgramWithTheTaskbarAsItIs) {
  Store("news");
  SetStartUpPage("news");
  Feed().Left = 999;
  sim.desktop.taskbarVisible = false;
  Desk().vkCommand3.Press();
  EXPECT_EQ(PageKey("news", "FrmLeft"), "999");
  EXPECT_TRUE(sim.desktop.ended);
  EXPECT_FALSE(sim.desktop.taskbarVisible);
  EXPECT_TRUE(station.forms.Loaded<FrmWeb>() && station.forms.Loaded<frmPageSettings>()) << "no form is unloaded";
}

}  // namespace
