#include "platform/sim/SimTime.h"

#include <algorithm>

using std::chrono::nanoseconds;

namespace {

constexpr nanoseconds kFrame(16'666'667);
constexpr nanoseconds kFrameFloor = std::chrono::milliseconds(16);
constexpr nanoseconds kSecond = std::chrono::seconds(1);
// Just after the second begins, so that the clock's text is the new one for certain.
constexpr nanoseconds kAfterSecond = std::chrono::milliseconds(5);

nanoseconds SinceEpoch(const DateTime& time) {
  const std::chrono::sys_days day = std::chrono::year(time.year) / time.month / time.day;
  return day.time_since_epoch() + std::chrono::hours(time.hour) + std::chrono::minutes(time.minute) +
         std::chrono::seconds(time.second) + std::chrono::milliseconds(time.millisecond);
}

}  // namespace

SimTime::SimTime(const DateTime& start) : wall_(SinceEpoch(start)) {}

DateTime SimTime::Now() const {
  const std::chrono::sys_time<nanoseconds> moment(wall_ + now_);
  const auto midnight = std::chrono::floor<std::chrono::days>(moment);
  const std::chrono::year_month_day date(midnight);
  const std::chrono::hh_mm_ss time(std::chrono::floor<std::chrono::milliseconds>(moment - midnight));
  return {.year = static_cast<int>(date.year()),
          .month = static_cast<int>(static_cast<unsigned>(date.month())),
          .day = static_cast<int>(static_cast<unsigned>(date.day())),
          .hour = static_cast<int>(time.hours().count()),
          .minute = static_cast<int>(time.minutes().count()),
          .second = static_cast<int>(time.seconds().count()),
          .millisecond = static_cast<int>(time.subseconds().count())};
}

SimTime::Id SimTime::Start(std::chrono::milliseconds interval, TickPhase phase, Tick tick) {
  const Id id = ++lastId_;
  Arm({id, interval <= kFrameFloor ? kFrame : nanoseconds(interval), phase, std::make_shared<Tick>(std::move(tick))});
  return id;
}

void SimTime::Arm(Armed armed) {
  nanoseconds wait = armed.interval;
  if (armed.phase == TickPhase::kWallSecond) {
    wait = kSecond - (wall_ + now_) % kSecond + kAfterSecond;
  }
  const Due due{now_ + wait, ++order_};
  byId_[armed.id] = due;
  due_.emplace(due, std::move(armed));
}

void SimTime::Cancel(Id id) {
  const auto found = byId_.find(id);
  if (found == byId_.end()) return;
  due_.erase(found->second);
  byId_.erase(found);
}

void SimTime::Post(Tick work) { posted_.push_back(std::move(work)); }

void SimTime::RunPosted() {
  while (!posted_.empty()) {
    const Tick work = std::move(posted_.front());
    posted_.pop_front();
    work();
  }
}

void SimTime::AdvanceTo(const DateTime& moment) { Advance(SinceEpoch(moment) - wall_ - now_); }

void SimTime::Advance(nanoseconds duration) {
  RunPosted();
  RunUntil(now_ + duration, Between::kPosted);
}

// The time has passed before any of the ticks runs: one that was missed is not made up.
void SimTime::Yield() {
  now_ += yieldTakes;
  RunUntil(now_, Between::kNothing);
}

void SimTime::RunUntil(nanoseconds target, Between ticks) {
  while (!due_.empty() && due_.begin()->first.first <= target) {
    Armed armed = std::move(due_.begin()->second);
    // A tick that came late, behind a dialog, counts from the moment it runs: the missed ones are not made up.
    now_ = std::max(now_, due_.begin()->first.first);
    due_.erase(due_.begin());
    const auto tick = armed.tick;
    Arm(std::move(armed));
    (*tick)();
    if (ticks == Between::kPosted) RunPosted();
  }
  now_ = std::max(now_, target);
}
