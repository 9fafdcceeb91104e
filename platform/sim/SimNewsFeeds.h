#pragma once

#include <chrono>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "platform/NewsFeeds.h"
#include "platform/sim/SimTime.h"
#include "platform/sim/SimTrace.h"

// Feeds that hold what the test has put there; every other address cannot be had. Each fetch is a line of the trace.
class SimNewsFeeds : public NewsFeeds {
 public:
  SimNewsFeeds(SimTime& time, SimTrace& trace) : time_(time), trace_(trace) {}

  std::unique_ptr<FeedFetch> Fetch(const std::string& address, Fetched fetched) override;

  // The titles, the newest first.
  void Put(const std::string& address, std::vector<std::string> titles) { feeds_[address] = std::move(titles); }
  // The fault: it cannot be had any more.
  void Remove(const std::string& address) { feeds_.erase(address); }
  // The fault: it is there, and never answers.
  void Hang(const std::string& address) { hanging_.insert(address); }
  // How long a feed takes to answer.
  std::chrono::milliseconds answersAfter{50};

 private:
  SimTime& time_;
  SimTrace& trace_;
  std::map<std::string, std::vector<std::string>> feeds_;
  std::set<std::string> hanging_;
};
