#include "platform/sim/SimNewsFeeds.h"

#include <utility>

#include "platform/CaseFold.h"

namespace {

class SimFetch : public FeedFetch {
 public:
  SimFetch(SimTime& time, std::chrono::milliseconds after, std::function<void()> answer) : time_(time) {
    waiting_ = time.Start(after, TickPhase::kFromStart, [this, answer = std::move(answer)] {
      time_.Cancel(std::exchange(waiting_, 0));
      answer();  // may drop this fetch
    });
  }
  ~SimFetch() override { time_.Cancel(waiting_); }

 private:
  SimTime& time_;
  Scheduler::Id waiting_ = 0;
};

bool MayBeFetched(const std::string& address) {
  for (const std::string_view scheme : {"http://", "https://", "file://"}) {
    if (EqualIgnoringCase(std::string_view(address).substr(0, scheme.size()), scheme)) return true;
  }
  return false;
}

}  // namespace

std::unique_ptr<FeedFetch> SimNewsFeeds::Fetch(const std::string& address, Fetched fetched) {
  trace_.Add("feed " + address);
  const bool answers = !hanging_.contains(address);
  const auto answer = [this, address, answers, fetched = std::move(fetched)] {
    const auto found = feeds_.find(address);
    const bool isThere = answers && found != feeds_.end() && MayBeFetched(address);
    fetched(isThere ? std::optional(TidyTitles(found->second)) : std::nullopt);
  };
  return std::make_unique<SimFetch>(time_, answers ? answersAfter : kFeedPatience, answer);
}
