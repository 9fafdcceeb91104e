#include "tests/webfeed/WebFeedTest.h"

namespace {

using namespace std::chrono_literals;

class FrmWebTest : public WebFeedTest {
 protected:
  // Presses there with the left button, moves by that much and lets go.
  void Pull(Twips x, Twips y, Twips right, Twips down, int buttons = 1) {
    Feed().PressMouse({x, y, buttons});
    sim.windows.MovePointer(right, down);
    sim.windows.EndDrag();
  }
};

TEST_F(FrmWebTest, TheStartUpPageOpensAtItsPlace) {
  Store("news");
  SetStartUpPage("news");
  FrmWeb& feed = Feed();
  EXPECT_EQ(Page().Address(), "http://news.example");
  EXPECT_EQ(feed.Place(), (PagePlace{-3000, -600, 9000, 12000, 300, 450}));
  EXPECT_EQ(CurrentPageName(), "news");
  EXPECT_TRUE(feed.Web.Silent);
}

TEST_F(FrmWebTest, APageThatIsMovedUpHasItsBeginningOutOfSight) {
  Store("news", {-3000, 0, 9000, 12000, 0, 0});
  SetStartUpPage("news");
  EXPECT_EQ(Feed().Web.Top, -3000);
  EXPECT_EQ(Feed().picWeb.Top, 0);
}

TEST_F(FrmWebTest, ThePageIsAsLargeAsTheScreenWhateverTheWindowIs) {
  Store("news");
  SetStartUpPage("news");
  for (const Control* control :
       {static_cast<const Control*>(&Feed().picWeb), static_cast<const Control*>(&Feed().Web)}) {
    EXPECT_EQ(control->Width, kScreenWidth);
    EXPECT_EQ(control->Height, kScreenHeight);
  }
}

TEST_F(FrmWebTest, WithoutAPageThereIsNoAddressAndASmallWindow) {
  EXPECT_EQ(Feed().Place(), (PagePlace{0, 0, 2000, 3000, 3000, 3000}));
  EXPECT_EQ(Page().Address(), "");
  EXPECT_EQ(CurrentPageName(), "");
}

TEST_F(FrmWebTest, AStartUpPageThatIsDeletedOpensTheSmallWindowWithoutAnAddress) {
  SetStartUpPage("gone");
  EXPECT_EQ(Feed().Place(), (PagePlace{0, 0, 2000, 3000, 3000, 3000}));
  EXPECT_EQ(Page().Address(), "");
  EXPECT_EQ(CurrentPageName(), "gone");
}

TEST_F(FrmWebTest, TheLoadLeavesTheSharedFileOnTheOptionsAndAPageOnThePages) {
  Feed();
  EXPECT_EQ(station.stores.DataIni.Path(), "/station/settings_page.ini");
  Feed().LoadPage("news");
  EXPECT_EQ(station.stores.DataIni.Path(), "/station/Page.ini");
}

TEST_F(FrmWebTest, TheTextStandsInTheMiddleAndFollowsTheWindow) {
  FrmWeb& feed = Feed();
  const auto isCentred = [&] {
    return feed.picTxt.Top == (feed.Height - feed.picTxt.Height) / 2 &&
           feed.picTxt.Left == (feed.Width - feed.picTxt.Width) / 2;
  };
  EXPECT_TRUE(isCentred());
  feed.Show();
  feed.Width = 9000;
  feed.Height = 6000;
  Advance(1ms);
  EXPECT_TRUE(isCentred());
}

TEST_F(FrmWebTest, TheTextTellsWhatTheBrowserSays) {
  Store("news");
  SetStartUpPage("news");
  FrmWeb& feed = Feed();
  EXPECT_EQ(feed.lblNet.Text.Get(), "Loading..");
  EXPECT_EQ(feed.lblInfo.Text.Get(), "Loading..");
  Advance(1s);
  EXPECT_EQ(feed.lblInfo.Text.Get(), "Done");
  Page().Hover("http://news.example/today");
  EXPECT_EQ(feed.lblInfo.Text.Get(), "http://news.example/today");
}

TEST_F(FrmWebTest, TheTextStaysBehindThePageWhateverTheBrowserSays) {
  Store("news");
  SetStartUpPage("news");
  FrmWeb& feed = Feed();
  for (const char* said : {"Done", ""}) {
    feed.Web.StatusTextChange.Raise(said);
    EXPECT_EQ(feed.lblInfo.Text.Get(), said);
    EXPECT_EQ(feed.lblNet.Text.Get(), "Loading..");
    EXPECT_TRUE(feed.picTxt.Visible);
  }
  EXPECT_TRUE(feed.picWeb.SeeThrough) << "it is seen until the page is";
}

TEST_F(FrmWebTest, ThePageSounds) {
  Feed();
  EXPECT_TRUE(Page().Looks().sound);
}

TEST_F(FrmWebTest, AWindowStandsWhereItsPageHasItHoweverOddThatIs) {
  const PagePlace beyond{0, 0, 50000, 40000, -700, -500}, none{};
  SetStartUpPage("odd");
  for (const PagePlace& place : {none, beyond}) {
    station.forms.Unload<FrmWeb>();
    SavePagePlace(station.stores, "odd", place);
    EXPECT_EQ(Feed().Place(), place);
    EXPECT_EQ(Feed().picTxt.Top, (place.height - Feed().picTxt.Height) / 2);
  }
}

TEST_F(FrmWebTest, APageThatIsLoadedOnceMoreIsOpenedOnceMoreWithItsTextAsLargeAsItWas) {
  Store("news");
  SetStartUpPage("news");
  Feed().Web.TextSize = 4;
  sim.trace.Take();
  Feed().LoadPage("news");
  EXPECT_EQ(sim.trace.Take(), Names{"FrmWeb.Web open http://news.example"});
  EXPECT_EQ(Feed().Web.TextSize, 4);
}

TEST_F(FrmWebTest, APageWithoutAnAddressTakesTheFormerOneOffTheAir) {
  Store("news");
  SetStartUpPage("news");
  Feed();
  Advance(1s);
  Feed().LoadPage("gone");
  EXPECT_EQ(Page().Shown(), "");
}

TEST_F(FrmWebTest, HalfASecondBehindItsOpeningTheWindowIsNoMoreOnTop) {
  FrmWeb& feed = Feed();
  EXPECT_TRUE(feed.win.OnTop);
  Advance(499ms);
  EXPECT_TRUE(feed.win.OnTop);
  Advance(1ms);
  EXPECT_FALSE(feed.win.OnTop);
  EXPECT_FALSE(feed.Timer2.Enabled);
  EXPECT_EQ(station.stores.DataIni.Path(), "/station/settings.ini");
}

TEST_F(FrmWebTest, ASwitchThatSomebodyWroteIntoSettingsIniKeepsItOnTopIfItsNumberIsOne) {
  for (const auto& [text, stays] :
       {std::pair{"1", true}, {"1 always", true}, {"2", false}, {"-1", false}, {"True", false}, {"", false}}) {
    Set("Display", "OnTop", text);
    station.forms.Unload<FrmWeb>();
    FrmWeb& feed = Feed();
    Advance(1s);
    EXPECT_EQ(feed.win.OnTop, stays) << text;
  }
}

TEST_F(FrmWebTest, TheSwitchOfTheOptionsHasNoSayInIt) {
  SetOption("Display", "OnTop", "0");
  EXPECT_TRUE(Feed().win.OnTop);
  SetOption("Display", "OnTop", "1");
  Advance(1s);
  EXPECT_FALSE(Feed().win.OnTop);
}

TEST_F(FrmWebTest, TheStoredTransparencyIsNotAppliedAtTheOpening) {
  SetOption("Display", "Trans", "100");
  EXPECT_EQ(Feed().ExtendedStyle, 0);
}

TEST_F(FrmWebTest, NothingStartsTheTimerThatWouldBringTheLeftEdge) {
  Set("WebFeed", "Left", "77");
  FrmWeb& feed = Feed();
  Advance(10s);
  EXPECT_FALSE(feed.Timer1.Enabled);
  EXPECT_EQ(feed.Left, 3000);
  feed.Timer1.Enabled = true;
  Advance(500ms);
  EXPECT_EQ(feed.Left, 77);
  EXPECT_FALSE(feed.Timer1.Enabled);
  Set("WebFeed", "Left", "");
  feed.Timer1.Enabled = true;
  Advance(500ms);
  EXPECT_EQ(feed.Left, 0);
}

TEST_F(FrmWebTest, TheWindowIsMovedAndSizedByHandAndNothingIsStoredYet) {
  Store("news");
  SetStartUpPage("news");
  Feed().Show();
  const auto before = sim.files.Read("/station/Page.ini");
  Pull(6000, 4000, 150, 300);
  EXPECT_EQ(Feed().Place(), (PagePlace{-3000, -600, 9000, 12000, 600, 600}));
  Pull(11990, 4000, 300, 0);
  EXPECT_EQ(Feed().Width, 12300);
  Advance(10s);
  EXPECT_EQ(sim.files.Read("/station/Page.ini"), before);
  for (const char* places : {"/station/win.ini", "/station/Window.ini"}) EXPECT_FALSE(sim.files.Read(places)) << places;
}

TEST_F(FrmWebTest, TheWindowIsPulledByItsMiddleToo) {
  EXPECT_FALSE(Feed().picTxt.Enabled) << "or the window system would hand it the presses on it";
}

TEST_F(FrmWebTest, APressInACornerMovesBothItsEdges) {
  Pull(2990, 1990, 150, 300);
  EXPECT_EQ(Feed().Width, 2990 + 150) << "the pointer stands on the lower edge, beside this one";
  EXPECT_EQ(Feed().Height, 2300);
}

TEST_F(FrmWebTest, ANarrowWindowShrinksToJustOverTenPixels) {
  Feed().Width = 300;
  Pull(10, 700, 149, 0);
  EXPECT_EQ(Feed().Width, 151);
}

TEST_F(FrmWebTest, TheRightButtonDoesNothingAndBothDoWhatTheLeftDoes) {
  Pull(1000, 1000, 150, 150, 2);
  EXPECT_EQ(Feed().Left, 3000);
  Pull(1000, 1000, 150, 150, 3);
  EXPECT_EQ(Feed().Left, 3150);
}

TEST_F(FrmWebTest, ClosingStoresThePlaceUnderThePageThatWasLoadedLastAndTakesTheDeskAlong) {
  Store("news");
  Store("other");
  SetStartUpPage("news");
  Feed().LoadPage("other");
  Feed().Left = 1234;
  Feed().Web.Top = -4500;
  Desk().Show();
  station.forms.Unload<FrmWeb>();
  EXPECT_EQ(PageKey("other", "FrmLeft"), "1234");
  EXPECT_EQ(PageKey("other", "PageTop"), "-4500");
  EXPECT_EQ(PageKey("other", "URL"), "other.example");
  EXPECT_EQ(PageKey("news", "FrmLeft"), "450");
  EXPECT_FALSE(station.forms.Loaded<frmPageSettings>());
  EXPECT_FALSE(station.forms.Loaded<FrmWeb>()) << "the save has made no fresh one";
  EXPECT_EQ(sim.browser.Find("FrmWeb.Web"), nullptr);
}

TEST_F(FrmWebTest, ClosingStoresWithTheDeskClosedToo) {
  Store("news");
  SetStartUpPage("news");
  Feed().Top = 555;
  station.forms.Unload<FrmWeb>();
  EXPECT_EQ(PageKey("news", "FrmTop"), "555");
  EXPECT_FALSE(station.forms.Loaded<frmPageSettings>());
  EXPECT_EQ(Setting("WebFeed", "Show"), "(none)") << "it is the menu that turns the feed off";
}

TEST_F(FrmWebTest, ClosingWithoutAPageOrWithADeletedOneWritesItsSectionAllTheSame) {
  Feed();
  station.forms.Unload<FrmWeb>();
  EXPECT_EQ(PageKey("", "FrmWidth"), "3000");
  SetStartUpPage("gone");
  Feed();
  station.forms.Unload<FrmWeb>();
  EXPECT_EQ(PageKey("gone", "FrmWidth"), "3000");
  EXPECT_EQ(PageKey("gone", "URL"), "(none)");
}

TEST_F(FrmWebTest, ARestartShowsThePageWhereItWas) {
  Store("news");
  SetStartUpPage("news");
  Feed().Left = 1500;
  Feed().Web.Left = -900;
  station.forms.Unload<FrmWeb>();
  EXPECT_EQ(Feed().Place(), (PagePlace{-3000, -900, 9000, 12000, 300, 1500}));
}

}  // namespace
