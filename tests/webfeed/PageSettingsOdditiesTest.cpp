// What looks like a fault at the desk of the web feed and is none.
#include "tests/webfeed/PageSettingsTest.h"

namespace {

using namespace std::chrono_literals;
using PageSettingsOdditiesTest = PageSettingsTest;

TEST_F(PageSettingsOdditiesTest, EachOperationLeavesTheSharedFileForTheOneBehindIt) {
  Store("news");
  Feed();
  Advance(1s);
  const auto isOn = [this](const char* name) {
    return station.stores.DataIni.Path() == std::string("/station/") + name;
  };
  Desk();
  EXPECT_TRUE(isOn("settings_page.ini")) << "at the opening";
  Desk().cmbMin.Pick(6);
  EXPECT_EQ(Option("Settings", "Min"), "7 Min");
  const struct {
    CommandButton& button;
    const char* file;
  } presses[] = {{Desk().btnAdd, "Page.ini"},    {Desk().btnStartUPpage, "settings_page.ini"},
                 {Desk().btnDelete, "Page.ini"}, {Desk().Command2, "settings_page.ini"},
                 {Desk().btnGo, "Page.ini"},     {Desk().btnLocation_0, "Page.ini"},
                 {Desk().vkCommand2, "Page.ini"}};
  for (const auto& press : presses) {
    press.button.Press();
    EXPECT_TRUE(isOn(press.file)) << press.button.Name();
  }
  for (CheckBox* box : {&Desk().chkOntop, &Desk().chkRefresh}) {
    Desk().btnSave.Press();
    EXPECT_TRUE(isOn("Page.ini"));
    box->Toggle();
    EXPECT_TRUE(isOn("settings_page.ini")) << box->Name();
  }
  Pick("news");
  EXPECT_TRUE(isOn("Page.ini"));
}

TEST_F(PageSettingsOdditiesTest, HalfASecondBehindTheFeedsOpeningThePeriodGoesIntoTheSettingsOfTheStation) {
  Desk();
  Feed();
  Advance(1s);
  Desk().cmbMin.Pick(4);
  EXPECT_EQ(Setting("Settings", "Min"), "5 Min");
  EXPECT_EQ(Option("Settings", "Min"), "(none)");
}

TEST_F(PageSettingsOdditiesTest, TheListShowsTheSectionsOfTheFileThatIsMeantJustNow) {
  Store("news");
  SetStartUpPage("news");
  Desk();
  Desk().LoadPageLisy();
  EXPECT_EQ(Listed(), Names{"StartUpPage"});
}

TEST_F(PageSettingsOdditiesTest, BehindASaveNoRowIsChosenAndAStartUpPageThatIsSetThenIsNone) {
  Store("news");
  SetStartUpPage("news");
  Feed();
  Pick("news");
  Desk().btnSave.Press();
  EXPECT_EQ(Desk().listPage.Text(), "");
  Desk().btnStartUPpage.Press();
  EXPECT_EQ(Option("StartUpPage", "PageName"), "");
}

TEST_F(PageSettingsOdditiesTest, DeleteAndThePreviewTakeTheRowAndLoadTakesThePageThatWasAdded) {
  Store("board");
  sim.dialogs.inputs = {"news", "news.example"};
  Desk().btnAdd.Press();
  Desk().btnDelete.Press();
  Desk().vkCommand4.Press();
  EXPECT_EQ(Listed(), (Names{"board", "news"}));
  EXPECT_EQ(sim.browser.Find("frmPageSettings.WebPre")->Address(), "");
  Desk().btnGo.Press();
  EXPECT_EQ(Page().Address(), "http://news.example");
}

TEST_F(PageSettingsOdditiesTest, APageThatIsDeletedStaysOnTheAirAndAtTheDeskUntilItIsLoadedAgain) {
  Store("news");
  SetStartUpPage("news");
  Feed();
  Pick("news");
  Desk().btnDelete.Press();
  EXPECT_EQ(Page().Address(), "http://news.example");
  EXPECT_EQ(Option("StartUpPage", "PageName"), "news");
  EXPECT_EQ(Desk().txtURL.Text.Get(), "news.example");
  Desk().btnGo.Press();
  EXPECT_EQ(Page().Address(), "");
  EXPECT_EQ(CurrentPageName(), "news");
  EXPECT_EQ(Feed().Height, 2000);
}

TEST_F(PageSettingsOdditiesTest, LoadGivesTheButtonOfTheStartUpPageBack) {
  EXPECT_TRUE(Desk().btnStartUPpage.Enabled) << "nothing takes it";
  Desk().btnStartUPpage.Enabled = false;
  Desk().btnGo.Press();
  EXPECT_TRUE(Desk().btnStartUPpage.Enabled);
}

TEST_F(PageSettingsOdditiesTest, TheStoredOptionsDoNothingToAFeedThatIsThere) {
  SetOption("Display", "OnTop", "1");
  SetOption("Display", "Trans", "120");
  Feed();
  Advance(1s);
  Desk();
  EXPECT_FALSE(Feed().win.OnTop);
  EXPECT_EQ(Feed().ExtendedStyle, 0);
}

TEST_F(PageSettingsOdditiesTest, ABoxIsTickedByTheNumberOneAlone) {
  for (const auto& [text, ticked] : {std::pair{"1", 1}, {"1 always", 1}, {"2", 0}, {"-1", 0}, {"True", 0}}) {
    SetOption("Display", "OnTop", text);
    SetOption("Settings", "Refresh", text);
    Desk().LoadSettings();
    EXPECT_EQ(Desk().chkOntop.Value, ticked) << text;
    EXPECT_EQ(Desk().chkRefresh.Value, ticked) << text;
    EXPECT_EQ(Desk().Timer5.Enabled, ticked == 1) << text;
  }
}

TEST_F(PageSettingsOdditiesTest, ThePeriodCanBeChosenWhileTheBoxIsTicked) {
  Desk().chkRefresh.Toggle();
  EXPECT_TRUE(Desk().cmbMin.Enabled);
  Desk().chkRefresh.Toggle();
  EXPECT_FALSE(Desk().cmbMin.Enabled);
}

TEST_F(PageSettingsOdditiesTest, APeriodThatIsTypedIsNotTaken) {
  Desk().cmbMin.Type("1 Min");
  Desk().chkRefresh.Toggle();
  EXPECT_EQ(Desk().RefreshSeconds, 0);
  EXPECT_EQ(Option("Settings", "Min"), "(none)");
}

TEST_F(PageSettingsOdditiesTest, SwitchingTheRefreshOffAndOnLetsTheSecondsThatHavePassedCount) {
  SetOption("Settings", "Refresh", "1");
  SetOption("Settings", "Min", "1 Min");
  Feed();
  Desk();
  Advance(30s);
  Desk().chkRefresh.Toggle();
  Advance(1h);
  Desk().chkRefresh.Toggle();
  sim.trace.Take();
  Advance(30s);
  EXPECT_EQ(Reloads(), 1);
}

TEST_F(PageSettingsOdditiesTest, ARefreshBringsAClosedFeedToLifeHidden) {
  Desk().chkRefresh.Toggle();
  Advance(1s);
  ASSERT_TRUE(station.forms.Loaded<FrmWeb>());
  EXPECT_FALSE(Feed().Visible);
}

TEST_F(PageSettingsOdditiesTest, TheDeskIsRememberedInAFileOfItsOwn) {
  Desk().Show();
  Desk().Left = 150;
  Advance(1s);
  EXPECT_TRUE(sim.files.Read("/station/win.ini").value_or("").starts_with("[frmPageSettings]\r\nLeft=150\r\n"));
  EXPECT_FALSE(sim.files.Read("/station/Window.ini"));
}

}  // namespace
