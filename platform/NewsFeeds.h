#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

// The titles of a news feed, the newest first: plain text, each in one line and none of them blank.
using FeedTitles = std::vector<std::string>;

inline constexpr std::size_t kMostFeedTitles = 10;
// A longer title is cut.
inline constexpr std::size_t kMostFeedLetters = 500;
// What is larger is no feed.
inline constexpr std::size_t kMostFeedBytes = std::size_t{1} << 20;
// What has not come after that time is not waited for.
inline constexpr std::chrono::seconds kFeedPatience{30};

// These titles as FeedTitles are: line ends and other blanks become one blank each, and what is too much is left out.
FeedTitles TidyTitles(const std::vector<std::string>& titles);

// A feed that is being fetched. Nothing more is heard of one that is gone; it goes before the feeds do.
class FeedFetch {
 public:
  virtual ~FeedFetch() = default;
};

// News feeds, RSS or Atom, by their addresses.
class NewsFeeds {
 public:
  // Nothing where the feed cannot be had.
  using Fetched = std::function<void(const std::optional<FeedTitles>&)>;

  virtual ~NewsFeeds() = default;

  // Fetches the feed at an address, http, https or file, and calls `fetched` once, from the message loop; that call may
  // drop the fetch. Waits for nobody, and looks at nothing but that address. What cannot be had: any other scheme, what
  // is not there, no feed or a torn one, too large, too slow, behind a certificate that does not hold, or sent from one
  // address to the next too often.
  virtual std::unique_ptr<FeedFetch> Fetch(const std::string& address, Fetched fetched) = 0;
};
