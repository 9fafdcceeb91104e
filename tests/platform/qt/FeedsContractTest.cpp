#include <memory>
#include <vector>

#include "platform/qt/feeds/QtNewsFeeds.h"
#include "tests/platform/qt/FeedServer.h"
#include "tests/platform/qt/Worlds.h"

// What the feeds promise, in the virtual and the real world alike.

namespace {

using namespace std::chrono_literals;

class VirtualFeeds : public VirtualWorld {
 public:
  std::string Put(const FeedTitles& titles) {
    sim.feeds.Put("http://host/feed", titles);
    return "http://host/feed";
  }
  std::string PutFile(const FeedTitles& titles) {
    sim.feeds.Put("file:///feed.xml", titles);
    return "file:///feed.xml";
  }
  void Remove() { sim.feeds.Remove("http://host/feed"); }
  std::string Hanging() {
    sim.feeds.Hang("http://host/hangs");
    return "http://host/hangs";
  }
  int Asked() {
    const auto lines = sim.trace.Take();
    return static_cast<int>(std::ranges::count_if(lines, [](auto& line) { return line.starts_with("feed http:"); }));
  }

  NewsFeeds& feeds = sim.feeds;
};

class RealFeeds : public RealWorld {
 public:
  std::string Put(const FeedTitles& titles) {
    server_.Put("/feed", Feed(titles));
    return server_.At("/feed");
  }
  static std::string PutFile(const FeedTitles& titles) {
    return "file://" + test_media::Text("feed.xml", Feed(titles).toStdString());
  }
  void Remove() { server_.Remove("/feed"); }
  std::string Hanging() {
    server_.Hang("/hangs");
    return server_.At("/hangs");
  }
  int Asked() { return static_cast<int>(std::exchange(server_.asked, {}).size()); }

 private:
  static QByteArray Feed(const FeedTitles& titles) {
    QString items;
    for (const std::string& title : titles) {
      items += "<item><title>" + QString::fromStdString(title).toHtmlEscaped() + "</title></item>";
    }
    return ("<rss version=\"2.0\"><channel><title>News</title>" + items + "</channel></rss>").toUtf8();
  }

  FeedServer server_;
  QtNewsFeeds feeds_{2s};

 public:
  NewsFeeds& feeds = feeds_;
};

template <typename AnyWorld>
class FeedsContractTest : public testing::Test {
 protected:
  // What the feed at an address holds; nothing where it cannot be had.
  std::optional<FeedTitles> Fetched(const std::string& address) {
    int calls = 0;
    std::optional<FeedTitles> titles;
    const auto fetch = world.feeds.Fetch(address, [&](const std::optional<FeedTitles>& found) {
      ++calls;
      titles = found;
    });
    EXPECT_EQ(calls, 0) << "from the message loop, never from inside the call";
    EXPECT_TRUE(world.Until([&] { return calls > 0; }));
    world.Pass(100ms);
    EXPECT_EQ(calls, 1);
    return titles;
  }

  AnyWorld world;
};

using FeedWorlds = testing::Types<VirtualFeeds, RealFeeds>;
TYPED_TEST_SUITE(FeedsContractTest, FeedWorlds);

TYPED_TEST(FeedsContractTest, TheTitlesComeInTheirOrder) {
  const FeedTitles titles = {"One", "Größe", "বাংলা", "أخبار", "\U0001F4F0 news", "1 < 2 & 3 > 2"};
  EXPECT_EQ(this->Fetched(this->world.Put(titles)), titles);
}

TYPED_TEST(FeedsContractTest, OfMoreThanTenTitlesTheFirstTenCome) {
  FeedTitles titles;
  for (int i = 0; i < 50; ++i) titles.push_back("title " + std::to_string(i));
  const std::string address = this->world.Put(titles);
  titles.resize(10);
  EXPECT_EQ(this->Fetched(address), titles);
}

TYPED_TEST(FeedsContractTest, EachTitleIsOneLineBlankOnesAreLeftOutAndLongOnesAreCut) {
  std::string long_;
  for (int i = 0; i < 2000; ++i) long_ += "ö";
  const auto titles = this->Fetched(this->world.Put({" one\r\n  two\tthree ", "", " \n ", long_}));
  ASSERT_TRUE(titles);
  ASSERT_EQ(titles->size(), 2u);
  EXPECT_EQ(titles->front(), "one two three");
  EXPECT_EQ(titles->back(), long_.substr(0, 2 * kMostFeedLetters));
}

TYPED_TEST(FeedsContractTest, AFeedWithoutTitlesIsThereAndEmpty) {
  EXPECT_EQ(this->Fetched(this->world.Put({})), FeedTitles{});
}

TYPED_TEST(FeedsContractTest, AFeedThatIsNotThereCannotBeHadAndCanOnceItIs) {
  const std::string address = this->world.Put({"one"});
  this->world.Remove();
  EXPECT_EQ(this->Fetched(address), std::nullopt);
  this->world.Put({"two"});
  EXPECT_EQ(this->Fetched(address), FeedTitles{"two"});
}

TYPED_TEST(FeedsContractTest, AFileIsAFeedToo) {
  EXPECT_EQ(this->Fetched(this->world.PutFile({"one"})), FeedTitles{"one"});
  EXPECT_EQ(this->Fetched("file://" + this->world.Absent()), std::nullopt);
}

TYPED_TEST(FeedsContractTest, AFeedThatNeverAnswersIsGivenUp) {
  EXPECT_EQ(this->Fetched(this->world.Hanging()), std::nullopt);
}

TYPED_TEST(FeedsContractTest, AnAddressOfAnyOtherSchemeCannotBeHadAndNobodyIsAsked) {
  for (const char* address : {"", "ftp://127.0.0.1/feed", "data:text/xml,<rss/>", "javascript:alert(1)", "qrc:/a", "/a",
                              "127.0.0.1/feed", "http", "://"}) {
    EXPECT_EQ(this->Fetched(address), std::nullopt) << address;
  }
  EXPECT_EQ(this->world.Asked(), 0);
}

TYPED_TEST(FeedsContractTest, OfAFetchThatIsGoneNothingMoreIsHeard) {
  int calls = 0;
  auto fetch = this->world.feeds.Fetch(this->world.Put({"one"}), [&](const auto&) { ++calls; });
  fetch.reset();
  this->world.Pass(500ms);
  EXPECT_EQ(calls, 0);
}

TYPED_TEST(FeedsContractTest, TheOneThatIsToldMayDropTheFetchAndBeginAnother) {
  const std::string address = this->world.Put({"one"});
  std::unique_ptr<FeedFetch> fetch;
  int calls = 0;
  const auto told = [&](const auto& self) -> void {
    ++calls;
    fetch.reset();
    if (calls < 3) fetch = this->world.feeds.Fetch(address, [&](const auto&) { self(self); });
  };
  fetch = this->world.feeds.Fetch(address, [&](const auto&) { told(told); });
  EXPECT_TRUE(this->world.Until([&] { return calls == 3; }));
}

TYPED_TEST(FeedsContractTest, SeveralMayBeUnderWayAtOnce) {
  const std::string slow = this->world.Hanging(), quick = this->world.Put({"one"});
  std::vector<std::string> order;
  const auto first = this->world.feeds.Fetch(slow, [&](const auto&) { order.emplace_back("slow"); });
  const auto second = this->world.feeds.Fetch(quick, [&](const auto&) { order.emplace_back("quick"); });
  EXPECT_TRUE(this->world.Until([&] { return order.size() == 2; }));
  EXPECT_EQ(order, (std::vector<std::string>{"quick", "slow"}));
}

}  // namespace
