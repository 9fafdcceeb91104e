#include "tests/webfeed/WebFeedTest.h"

namespace {

constexpr char kOfflineBox[] = "box \"Your PC is not cinnected to internet. Please try again later.\" \"Corvanta 6.0\"";

class WebFeedMenuTest : public WebFeedTest {
 protected:
  bool IsTold(const std::string& line) {
    const Names lines = sim.trace.Take();
    return std::ranges::find(lines, line) != lines.end();
  }
};

TEST_F(WebFeedMenuTest, TheEntryShowsTheFeedAndTakesItOffAgain) {
  ControlWindow().mnuShowWebFeed.Choose();
  ASSERT_TRUE(station.forms.Loaded<FrmWeb>());
  EXPECT_TRUE(Feed().Visible);
  EXPECT_TRUE(ControlWindow().mnuShowWebFeed.Checked);
  EXPECT_EQ(Setting("WebFeed", "Show"), "True");
  ControlWindow().mnuShowWebFeed.Choose();
  EXPECT_FALSE(station.forms.Loaded<FrmWeb>());
  EXPECT_FALSE(ControlWindow().mnuShowWebFeed.Checked);
  EXPECT_EQ(Setting("WebFeed", "Show"), "False");
}

TEST_F(WebFeedMenuTest, OffLineTheEntryChangesNothing) {
  ControlWindow();
  sim.network.SetOnline(false);
  ControlWindow().mnuShowWebFeed.Choose();
  EXPECT_TRUE(IsTold(kOfflineBox));
  EXPECT_FALSE(station.forms.Loaded<FrmWeb>());
  EXPECT_FALSE(ControlWindow().mnuShowWebFeed.Checked);
  EXPECT_EQ(Setting("WebFeed", "Show"), "(none)");
}

TEST_F(WebFeedMenuTest, OffLineAFeedThatIsOnCannotBeTurnedOffEither) {
  ControlWindow().mnuShowWebFeed.Choose();
  sim.network.SetOnline(false);
  ControlWindow().mnuShowWebFeed.Choose();
  EXPECT_TRUE(IsTold(kOfflineBox));
  EXPECT_TRUE(Feed().Visible);
  EXPECT_TRUE(ControlWindow().mnuShowWebFeed.Checked);
  EXPECT_EQ(Setting("WebFeed", "Show"), "True");
}

TEST_F(WebFeedMenuTest, TheDeskOpensOnLineAlone) {
  ControlWindow();
  sim.network.SetOnline(false);
  ControlWindow().mnuWebfeedSetttings.Choose();
  EXPECT_TRUE(IsTold(kOfflineBox));
  EXPECT_FALSE(station.forms.Loaded<frmPageSettings>());
  sim.network.SetOnline(true);
  ControlWindow().mnuWebfeedSetttings.Choose();
  EXPECT_TRUE(Desk().Visible);
}

TEST_F(WebFeedMenuTest, AtTheStartTheFeedIsBackWithoutTheNetworkToo) {
  Store("news");
  SetStartUpPage("news");
  Set("WebFeed", "Show", "True");
  sim.network.SetOnline(false);
  ControlWindow();
  ASSERT_TRUE(station.forms.Loaded<FrmWeb>());
  EXPECT_EQ(Page().Address(), "http://news.example");
  EXPECT_TRUE(Feed().Visible);
  EXPECT_TRUE(ControlWindow().mnuShowWebFeed.Checked);
  EXPECT_FALSE(IsTold(kOfflineBox));
}

TEST_F(WebFeedMenuTest, AnythingButTrueLeavesItOffAndTakesOffOneThatIsThere) {
  for (const char* value : {"true", "1", "False", ""}) {
    Set("WebFeed", "Show", value);
    Feed();
    ControlWindow().LoadSett();
    EXPECT_FALSE(station.forms.Loaded<FrmWeb>()) << value;
  }
}

TEST_F(WebFeedMenuTest, MaskingTheOutputBringsTheFeedInFront) {
  ControlWindow().mnuShowWebFeed.Choose();
  Advance(std::chrono::seconds(1));
  EXPECT_FALSE(Feed().win.OnTop);
  ControlWindow().mnuMasking.Choose();
  EXPECT_TRUE(Feed().win.OnTop);
}

TEST_F(WebFeedMenuTest, TheFeedIsTheLastThatAMaskedOutputBringsForward) {
  for (const char* section : {"Output", "logo", "FlashAd", "WebFeed"}) Set(section, "Show", "True");
  ControlWindow();
  Advance(std::chrono::seconds(1));
  ControlWindow().mnuMasking.Choose();
  const Names stack = sim.windows.Stack();
  EXPECT_EQ(Names(stack.begin(), stack.begin() + 4), (Names{"FrmWeb", "frmFlashAdShow", "FrmLogoShow", "frmPlayer"}));
}

TEST_F(WebFeedMenuTest, MaskingLeavesAFeedThatIsOffAsItIs) {
  ControlWindow().mnuMasking.Choose();
  EXPECT_FALSE(station.forms.Loaded<FrmWeb>());
  ControlWindow().mnuMasking.Choose();
  ASSERT_TRUE(Feed().win.OnTop);
  ControlWindow().mnuMasking.Choose();
  EXPECT_TRUE(Feed().win.OnTop);
}

}  // namespace
