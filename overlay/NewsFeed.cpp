#include "overlay/NewsFeed.h"

#include <algorithm>

#include "platform/Clock.h"
#include "platform/WebAddress.h"
#include "platform/WholeNumber.h"
#include "settings/IniText.h"
#include "settings/Numbers.h"
#include "settings/TimeTexts.h"

namespace {

constexpr char kSection[] = "Feed";
constexpr char kAddress[] = "URL";
constexpr char kInterval[] = "Min";
constexpr std::chrono::minutes kDefault{5};
constexpr std::chrono::minutes kLongest{24 * 60};
constexpr std::chrono::minutes kAfterFailure{1};

}  // namespace

FeedSettings::FeedSettings(Station& station) : file_(station.world.files) {
  file_.SetPath(station.dataFolder.Path("\\rss.ini"));
}

std::string FeedSettings::Address() { return std::string(TrimBlanks(file_.ReadValue(kSection, kAddress, ""))); }

std::chrono::minutes FeedSettings::Interval() { return Minutes(file_.ReadValue(kSection, kInterval, "")); }

std::chrono::minutes FeedSettings::Minutes(const std::string& text) {
  const int minutes = CutToWhole<int>(Val(text));
  return minutes < 1 ? kDefault : std::min(std::chrono::minutes(minutes), kLongest);
}

void FeedSettings::Store(const std::string& address, std::chrono::minutes interval) {
  file_.Rewrite([&](const IniDocument& before) {
    const IniDocument addressed = before.WithValue(kSection, kAddress, address);
    return addressed.WithValue(kSection, kInterval, std::to_string(interval.count()));
  });
}

NewsFeed::NewsFeed(Station& station, Form& owner)
    : world_(station.world), owner_(owner), settings_(station), news_(station.Shared<FeedNews>()) {}

NewsFeed::~NewsFeed() {
  if (!fetch_) return;
  news_.fetching = false;
  news_.Changed.Raise();
}

void NewsFeed::Look() {
  const std::string address = settings_.Address();
  if (address != news_.address) {
    fetch_.reset();
    begun_.reset();
    news_.address = address;
    news_.titles.clear();
    news_.time.clear();
    news_.fetching = news_.failed = false;
    news_.Changed.Raise();
  }
  if (address.empty() || fetch_) return;
  const std::chrono::minutes interval = settings_.Interval();
  const std::chrono::minutes pause = news_.failed ? std::min(interval, kAfterFailure) : interval;
  if (!begun_ || world_.clock.Steady() >= *begun_ + pause) Begin(address);
}

void NewsFeed::Begin(const std::string& address) {
  begun_ = world_.clock.Steady();
  news_.fetching = true;
  news_.Changed.Raise();
  fetch_ = world_.feeds.Fetch(WebAddress(address), [this](const std::optional<FeedTitles>& titles) {
    owner_.Handle({.event = "FeedFetched"}, [&] { Take(titles); });
  });
}

void NewsFeed::Take(const std::optional<FeedTitles>& titles) {
  fetch_.reset();
  news_.fetching = false;
  news_.failed = !titles;
  if (titles) {
    news_.titles = *titles;
    news_.time = TimeText(world_.clock.Now());
  }
  news_.Changed.Raise();
}
