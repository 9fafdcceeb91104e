#pragma once

#include <chrono>
#include <memory>
#include <optional>
#include <string>

#include "platform/NewsFeeds.h"
#include "platform/toolkit/Event.h"
#include "platform/toolkit/Form.h"
#include "settings/IniFile.h"
#include "settings/Station.h"

// Where the news feed is: section Feed of rss.ini, keys URL and Min. The file is read as it stands at each call.
class FeedSettings {
 public:
  explicit FeedSettings(Station& station);

  // As the operator typed it, without blanks around it; empty: there is no feed.
  std::string Address();
  // Between two fetches: of the minutes in Min, 1 to 1440. Anything less, or no number, is 5.
  std::chrono::minutes Interval();
  // The minutes that such a text stands for.
  static std::chrono::minutes Minutes(const std::string& text);
  void Store(const std::string& address, std::chrono::minutes interval);

 private:
  IniFile file_;
};

// What came of the feed, for the strip and its desk. It outlives both, so that a strip that comes on again has the
// titles that it had.
struct FeedNews {
  std::string address;  // what the titles are from
  FeedTitles titles;    // of the last fetch that went well
  std::string time;     // of that fetch, as a time text; empty before the first
  bool fetching = false;
  bool failed = false;  // the latest fetch
  Event<> Changed;
};

// Keeps the titles of the feed fresh while the strip is there. Without an address nothing is ever fetched; a feed that
// fails leaves the titles that there are, and is tried again after a minute.
class NewsFeed {
 public:
  // `owner` is the form that it ends with.
  NewsFeed(Station& station, Form& owner);
  ~NewsFeed();

  // Fetches where it is time for it. To be called once a second: another address counts at once.
  void Look();
  const FeedTitles& Titles() const { return news_.titles; }

 private:
  void Begin(const std::string& address);
  void Take(const std::optional<FeedTitles>& titles);

  World& world_;
  Form& owner_;
  FeedSettings settings_;
  FeedNews& news_;
  std::unique_ptr<FeedFetch> fetch_;
  std::optional<std::chrono::nanoseconds> begun_;  // the latest fetch
};
