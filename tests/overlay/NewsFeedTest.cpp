// The feed whose titles follow the operator's own headlines on the strip.
#include "overlay/NewsFeed.h"
#include "overlay/frmBreakingNewsSett.h"
#include "tests/overlay/BreakingNewsTest.h"

using namespace std::chrono_literals;

namespace {

constexpr char kFeed[] = "http://news/feed";

class NewsFeedTest : public BreakingNewsTest {
 protected:
  void Choose(const std::string& address, const std::string& minutes = "5") {
    IniFile rss(sim.files);
    rss.SetPath("/station/rss.ini");
    rss.WriteValue("Feed", "URL", address);
    rss.WriteValue("Feed", "Min", minutes);
  }
  // How often a feed was asked for, and which, since the last call.
  Names Fetched() {
    Names lines = sim.trace.Take();
    std::erase_if(lines, [](const std::string& line) { return !line.starts_with("feed "); });
    return lines;
  }
  // What the strip shows in the next loops.
  Names Next(int loops) {
    Given();
    Advance(loops * kLoop);
    return Given();
  }
  FeedNews& News() { return station.Shared<FeedNews>(); }
  frmBreakingNewsSett& Desk() { return station.forms.Get<frmBreakingNewsSett>(); }
};

TEST_F(NewsFeedTest, WithoutAnAddressNothingIsEverFetched) {
  Store({{"a", true}});
  Strip().Show();
  Desk().Show();
  Advance(10min);
  EXPECT_EQ(Fetched(), Names{});
  for (const char* blank : {"", "   ", "\t"}) {
    Choose(blank);
    Advance(2min);
    EXPECT_EQ(Fetched(), Names{});
  }
}

TEST_F(NewsFeedTest, WithTheStripOffNothingIsFetched) {
  Choose(kFeed);
  ControlWindow();
  Advance(20min);
  EXPECT_EQ(Fetched(), Names{});
}

TEST_F(NewsFeedTest, ItsTitlesFollowTheOperatorsOwnHeadlinesRoundAndRound) {
  sim.feeds.Put(kFeed, {"f1", "f2"});
  Choose(kFeed);
  Store({{"a", true}, {"off", false}, {"b", true}});
  Strip();
  Advance(kLoop + 1s);
  EXPECT_EQ(Next(6), (Names{"b", "f1", "f2", "a", "b", "f1"}));
}

TEST_F(NewsFeedTest, AFeedAloneIsEnough) {
  sim.feeds.Put(kFeed, {"f1", "f2"});
  Choose(kFeed);
  Strip();
  EXPECT_EQ(Next(4), (Names{"f1", "f2", "f1", "f2"}));
}

TEST_F(NewsFeedTest, ItIsFetchedASecondAfterTheStripHasComeAndThenEachSoManyMinutes) {
  sim.feeds.Put(kFeed, {"f1"});
  Choose(kFeed, "3");
  Strip();
  EXPECT_EQ(Fetched(), Names{});
  Advance(1s);
  EXPECT_EQ(Fetched(), Names{"feed http://news/feed"});
  Advance(3min - 1s);
  EXPECT_EQ(Fetched(), Names{});
  Advance(1s);
  EXPECT_EQ(Fetched().size(), 1u);
  Advance(30min);
  EXPECT_EQ(Fetched().size(), 10u);
}

TEST_F(NewsFeedTest, MinutesThatAreMissingNoNumberOrTooFewAreFiveAndTooManyAreADay) {
  EXPECT_EQ(FeedSettings(station).Interval(), 5min);
  for (const char* text : {"", "often", "0", "-3", "0.9", "nan"}) {
    Choose(kFeed, text);
    EXPECT_EQ(FeedSettings(station).Interval(), 5min) << text;
  }
  for (const char* text : {"1441", "99999999999999999999"}) {
    Choose(kFeed, text);
    EXPECT_EQ(FeedSettings(station).Interval(), 24h) << text;
  }
  Choose(kFeed, "7 minutes");
  EXPECT_EQ(FeedSettings(station).Interval(), 7min);
}

TEST_F(NewsFeedTest, AFeedThatFailsLeavesTheLastGoodTitlesAndIsTriedAgainAfterAMinute) {
  sim.feeds.Put(kFeed, {"f1", "f2"});
  Choose(kFeed, "10");
  Strip();
  Advance(2s);
  sim.feeds.Remove(kFeed);
  Advance(10min);
  EXPECT_TRUE(News().failed);
  EXPECT_EQ(News().titles, (Names{"f1", "f2"}));
  EXPECT_EQ(Next(2).size(), 2u) << "the strip goes on with them";
  Fetched();
  Advance(5min);
  EXPECT_EQ(Fetched().size(), 5u);
  sim.feeds.Put(kFeed, {"f3"});
  Advance(1min + 1s);
  EXPECT_FALSE(News().failed);
  EXPECT_EQ(News().titles, Names{"f3"});
  Fetched();
  Advance(9min);
  EXPECT_EQ(Fetched(), Names{});
}

TEST_F(NewsFeedTest, AStartBeforeTheNetworkIsThereHasTheTitlesAMinuteLater) {
  Choose(kFeed, "60");
  Strip();
  Advance(30s);
  sim.feeds.Put(kFeed, {"f1"});
  Advance(40s);
  EXPECT_EQ(News().titles, Names{"f1"});
}

TEST_F(NewsFeedTest, AFeedThatNeverAnswersIsGivenUpAndTheStripGoesOnMeanwhile) {
  sim.feeds.Hang(kFeed);
  Choose(kFeed);
  Store({{"a", true}});
  Strip();
  Advance(25s);
  EXPECT_TRUE(News().fetching);
  EXPECT_EQ(Fetched().size(), 1u);
  EXPECT_EQ(Line(), "a");
  Advance(10s);
  EXPECT_FALSE(News().fetching);
  EXPECT_TRUE(News().failed);
}

TEST_F(NewsFeedTest, AnEmptyFeedIsNoFailureAndLeavesTheOperatorsOwnHeadlines) {
  sim.feeds.Put(kFeed, {});
  Choose(kFeed);
  Store({{"a", true}});
  Strip();
  Advance(kLoop + 1s);
  EXPECT_FALSE(News().failed);
  EXPECT_EQ(Next(2), (Names{"a", "a"}));
}

TEST_F(NewsFeedTest, OfMoreTitlesTheNewestTenAreShown) {
  Names many;
  for (int i = 1; i <= 30; ++i) many.push_back("f" + std::to_string(i));
  sim.feeds.Put(kFeed, many);
  Choose(kFeed);
  Strip();
  Advance(2s);
  EXPECT_EQ(News().titles, Names(many.begin(), many.begin() + 10));
}

TEST_F(NewsFeedTest, WithNewTitlesTheStripGoesOnBehindTheOneThatItShows) {
  sim.feeds.Put(kFeed, {"f1", "f2", "f3"});
  Choose(kFeed, "1");
  Strip();
  Advance(kLoop + 1s);
  EXPECT_EQ(Line(), "f1");
  sim.feeds.Put(kFeed, {"f0", "f1", "f2"});
  Advance(1min);
  const Names after = Next(3);
  EXPECT_EQ(std::ranges::count(after, "f3"), 0);
  EXPECT_EQ(after.size(), 3u);
}

TEST_F(NewsFeedTest, ATitleThatIsGoneIsFollowedByWhatStandsInItsPlace) {
  Headlines own(sim.files, station.dataFolder);
  own.Store({{"a", true}});
  EXPECT_EQ(own.NextRSS({"f1", "f2"}), "a");
  EXPECT_EQ(own.NextRSS({"f1", "f2"}), "f1");
  EXPECT_EQ(own.NextRSS({"f0", "f1", "f2"}), "f2");
  EXPECT_EQ(own.NextRSS({"x", "y", "z"}), "z");
  EXPECT_EQ(own.NextRSS({}), "a");
}

TEST_F(NewsFeedTest, AnotherAddressCountsWithinASecondAndTheTitlesOfTheFormerOneGo) {
  sim.feeds.Put(kFeed, {"f1"});
  sim.feeds.Put("http://other/", {"g1"});
  Choose(kFeed);
  Strip();
  Advance(2s);
  Choose("http://other/");
  Fetched();
  Advance(1s);
  EXPECT_EQ(News().titles, Names{});
  Advance(1s);
  EXPECT_EQ(Fetched(), Names{"feed http://other/"});
  EXPECT_EQ(News().titles, Names{"g1"});
}

TEST_F(NewsFeedTest, AnAddressThatIsTakenAwayEndsTheFetchUnderWayAndTheTitles) {
  sim.feeds.Put(kFeed, {"f1"});
  Choose(kFeed, "1");
  Strip();
  Advance(2s);
  sim.feeds.answersAfter = 10s;
  Advance(1min);
  ASSERT_TRUE(News().fetching);
  Choose("");
  Advance(1min);
  EXPECT_FALSE(News().fetching);
  EXPECT_EQ(News().titles, Names{});
}

TEST_F(NewsFeedTest, AStripThatComesOnAgainHasTheTitlesThatItHad) {
  sim.feeds.Put(kFeed, {"f1"});
  Choose(kFeed);
  Strip();
  Advance(2s);
  station.forms.Unload<frmBreakingNews>();
  sim.feeds.Remove(kFeed);
  Strip();
  EXPECT_EQ(Next(2), (Names{"f1", "f1"}));
}

TEST_F(NewsFeedTest, AStripThatGoesWhileTheFeedIsFetchedHearsOfItNoMore) {
  sim.feeds.Put(kFeed, {"f1"});
  sim.feeds.answersAfter = 10s;
  Choose(kFeed);
  Strip();
  Advance(2s);
  ASSERT_TRUE(News().fetching);
  station.forms.Unload<frmBreakingNews>();
  Advance(20s);
  EXPECT_FALSE(News().fetching);
  EXPECT_EQ(News().titles, Names{});
}

TEST_F(NewsFeedTest, AnAddressIsTakenAsBrowsersTakeIt) {
  for (const auto& [typed, meant] :
       std::vector<std::pair<std::string, std::string>>{{"news.example/rss", "http://news.example/rss"},
                                                        {"  https://news.example/rss ", "https://news.example/rss"},
                                                        {"/srv/my feed.xml", "file:///srv/my%20feed.xml"}}) {
    Choose(typed);
    Strip();
    Advance(1s);
    EXPECT_EQ(Fetched(), Names{"feed " + meant});
    station.forms.Unload<frmBreakingNews>();
  }
}

TEST_F(NewsFeedTest, AnAddressOfAnyOtherSchemeFailsAndTheStripGoesOn) {
  Store({{"a", true}});
  for (const char* address : {"ftp://host/feed", "javascript:alert(1)", "mailto:a@b", "http://"}) {
    Choose(address);
    Strip();
    Advance(kLoop + 1s);
    EXPECT_TRUE(News().failed) << address;
    EXPECT_EQ(Line(), "a");
  }
}

TEST_F(NewsFeedTest, TheClockOnTheWallMayStepWithoutAFetchMoreOrLess) {
  sim.feeds.Put(kFeed, {"f1"});
  Choose(kFeed, "5");
  Strip();
  Advance(2s);
  Fetched();
  sim.time.StepWall(-24h);
  Advance(4min);
  sim.time.StepWall(48h);
  EXPECT_EQ(Fetched(), Names{});
  Advance(1min);
  EXPECT_EQ(Fetched().size(), 1u);
}

TEST_F(NewsFeedTest, TheDeskStoresAddressAndMinutesAndTellsWhatComesOfThem) {
  sim.feeds.Put(kFeed, {"f1", "f2"});
  Desk().Show();
  EXPECT_EQ(Desk().txtFeed.Text.Get(), "");
  EXPECT_EQ(Desk().txtFeedMin.Text.Get(), "5");
  EXPECT_EQ(Desk().lblFeed.Caption.Get(), "No feed");
  Desk().txtFeed.Type(kFeed);
  Desk().txtFeedMin.Type("12");
  Advance(5s);
  EXPECT_EQ(sim.files.Kind("/station/rss.ini"), FileKind::kAbsent) << "typed is not saved";
  Desk().btnFeed.Press();
  EXPECT_EQ(sim.files.Read("/station/rss.ini"), "[Feed]\r\nURL=http://news/feed\r\nMin=12\r\n");
  Advance(1s);
  EXPECT_EQ(Desk().lblFeed.Caption.Get(), "Being fetched...");
  Advance(1s);
  EXPECT_EQ(Desk().lblFeed.Caption.Get(), "2 titles of " + News().time);
  sim.feeds.Remove(kFeed);
  Advance(12min);
  EXPECT_EQ(Desk().lblFeed.Caption.Get(), "Cannot be fetched; 2 titles of " + News().time + " stay");
  Desk().txtFeed.Type("http://nobody/");
  Desk().btnFeed.Press();
  Advance(2s);
  EXPECT_EQ(Desk().lblFeed.Caption.Get(), "Cannot be fetched");
  Desk().txtFeed.Type("");
  Desk().btnFeed.Press();
  Advance(2s);
  EXPECT_EQ(Desk().lblFeed.Caption.Get(), "No feed");
}

TEST_F(NewsFeedTest, TheDeskShowsTheMinutesThatCountWhateverWasTyped) {
  for (const auto& [typed, counts] : std::vector<std::pair<std::string, std::string>>{
           {"often", "5"}, {"", "5"}, {"0", "5"}, {"2.7", "2"}, {"5000", "1440"}}) {
    Desk().txtFeedMin.Type(typed);
    Desk().btnFeed.Press();
    EXPECT_EQ(Desk().txtFeedMin.Text.Get(), counts) << typed;
  }
}

TEST_F(NewsFeedTest, AnAddressWithBracketsAndLineEndsIsOneLineAndTouchesNoHeadline) {
  Store({{"a", true}});
  Desk().txtFeed.Type("http://[::1]/feed?a=b;c#d\r\n[1]\r\nText=x");
  Desk().btnFeed.Press();
  EXPECT_EQ(FeedSettings(station).Address(), "http://[::1]/feed?a=b;c#d  [1]  Text=x");
  EXPECT_EQ(Headlines(sim.files, station.dataFolder).All(), (std::vector<Headline>{{"a", true}}));
}

TEST_F(NewsFeedTest, HeadlinesThatAreStoredLeaveTheFeed) {
  Choose(kFeed, "7");
  Store({{"a", true}});
  Store({});
  EXPECT_EQ(FeedSettings(station).Address(), kFeed);
  EXPECT_EQ(FeedSettings(station).Interval(), 7min);
}

TEST_F(NewsFeedTest, ClosingTheDeskWhileTheFeedIsFetchedIsNoHarm) {
  sim.feeds.answersAfter = 10s;
  Choose(kFeed);
  Desk().Show();
  Advance(2s);
  ASSERT_TRUE(News().fetching);
  Desk().Close();
  Advance(1min);
  EXPECT_FALSE(station.forms.Loaded<frmBreakingNews>());
  EXPECT_FALSE(News().fetching);
}

}  // namespace
