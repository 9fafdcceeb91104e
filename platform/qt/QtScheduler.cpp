#include "platform/qt/QtScheduler.h"

#include <QTimerEvent>
#include <algorithm>

namespace {

using std::chrono::milliseconds;
using std::chrono::nanoseconds;

constexpr milliseconds kLongestFrameInterval{16};
constexpr double kStandardFrameRate = 60;
// A tick of the wall second comes this much after the second has begun, so that a clock that is slewed meanwhile still
// reads the new second.
constexpr milliseconds kIntoTheSecond{5};
// A second that seems to begin again so soon after its tick has had its tick: the clock was slewed back a little.
constexpr milliseconds kSlewed{100};
constexpr nanoseconds kSecond = std::chrono::seconds(1);

nanoseconds SteadyNow() { return std::chrono::steady_clock::now().time_since_epoch(); }

nanoseconds ToNextWallSecond() {
  const nanoseconds wall = std::chrono::system_clock::now().time_since_epoch();
  const nanoseconds into = (wall - kIntoTheSecond) % kSecond;
  return kSecond - into;
}

}  // namespace

QtScheduler::QtScheduler(QObject* parent) : QObject(parent) { SetFrameRate(kStandardFrameRate); }

QtScheduler::~QtScheduler() = default;

Scheduler::Id QtScheduler::Start(milliseconds interval, TickPhase phase, Tick tick) {
  Entry entry{std::max(interval, milliseconds(1)), phase, std::make_shared<Tick>(std::move(tick)), {}};
  entry.due = FirstDue(entry, SteadyNow());
  entries_.emplace(++lastId_, std::move(entry));
  Arm();
  return lastId_;
}

void QtScheduler::Cancel(Id id) {
  entries_.erase(id);
  Arm();
}

void QtScheduler::Yield() {
  QueueWhatIsDue(SteadyNow());
  RunQueue();
  Arm();  // what is to follow the ticks of a frame waits for the handler
}

void QtScheduler::Post(Tick work) { QMetaObject::invokeMethod(this, std::move(work), Qt::QueuedConnection); }

void QtScheduler::OnNextFrame(Tick work) {
  if (frameWork_.empty()) frameDue_ = NextFrame(SteadyNow());
  frameWork_.push_back(std::move(work));
  Arm();
}

void QtScheduler::SetFrameRate(double framesPerSecond) {
  const bool usable = framesPerSecond >= 49 && framesPerSecond <= 61;
  framePeriod_ = nanoseconds(static_cast<std::int64_t>(1e9 / (usable ? framesPerSecond : kStandardFrameRate)));
}

// Frames stand on one grid, so that all timers of a frame tick together and are painted at once.
QtScheduler::Nanoseconds QtScheduler::NextFrame(Nanoseconds now) const {
  return (now / framePeriod_ + 1) * framePeriod_;
}

QtScheduler::Nanoseconds QtScheduler::FirstDue(const Entry& entry, Nanoseconds now) const {
  if (entry.interval <= kLongestFrameInterval) return NextFrame(now);
  if (entry.phase == TickPhase::kWallSecond) {
    const nanoseconds further = entry.interval > kSecond ? entry.interval - kSecond : nanoseconds(0);
    return now + ToNextWallSecond() + further;
  }
  return now + entry.interval;
}

QtScheduler::Nanoseconds QtScheduler::NextDue(const Entry& entry, Nanoseconds now) const {
  if (entry.interval <= kLongestFrameInterval) return NextFrame(now);
  if (entry.phase == TickPhase::kWallSecond) {
    const Nanoseconds due = FirstDue(entry, now);
    return due - now < kSlewed ? due + kSecond : due;
  }
  const auto passed = (now - entry.due) / nanoseconds(entry.interval);
  return entry.due + (passed + 1) * nanoseconds(entry.interval);
}

void QtScheduler::timerEvent(QTimerEvent* event) {
  // A fresh Qt timer is armed before any tick runs: Qt holds back a timer whose own event is still being handled.
  killTimer(event->timerId());
  if (event->timerId() != wakeUp_) return;
  wakeUp_ = 0;
  QueueWhatIsDue(SteadyNow());
  RunQueue();
  RunFrameWork();
  Arm();
}

void QtScheduler::QueueWhatIsDue(Nanoseconds now) {
  std::vector<std::pair<Nanoseconds, Id>> due;
  for (auto& [id, entry] : entries_) {
    if (entry.due > now) continue;
    if (!entry.queued) due.emplace_back(entry.due, id);
    entry.queued = true;
    entry.due = NextDue(entry, now);
  }
  std::ranges::sort(due);
  for (const auto& [when, id] : due) queue_.push_back(id);
  if (!frameWork_.empty() && frameDue_ <= now) frameWorkIsDue_ = true;
}

void QtScheduler::RunQueue() {
  while (!queue_.empty()) {
    const auto entry = entries_.find(queue_.front());
    queue_.pop_front();
    if (entry == entries_.end()) continue;
    entry->second.queued = false;
    const std::shared_ptr<Tick> tick = entry->second.tick;
    Arm();
    (*tick)();
  }
}

void QtScheduler::RunFrameWork() {
  if (!frameWorkIsDue_) return;
  frameWorkIsDue_ = false;
  const std::vector<Tick> work = std::exchange(frameWork_, {});
  for (const Tick& one : work) one();
}

void QtScheduler::Arm() {
  const Nanoseconds now = SteadyNow();
  Nanoseconds due = Nanoseconds::max();
  if (!queue_.empty() || frameWorkIsDue_) due = Nanoseconds(0);  // for a dialog that the next tick opens
  for (const auto& [id, entry] : entries_) due = std::min(due, entry.due);
  if (!frameWork_.empty()) due = std::min(due, frameDue_);
  if (wakeUp_ != 0) {
    if (due == wakeUpDue_) return;
    killTimer(std::exchange(wakeUp_, 0));
  }
  if (due == Nanoseconds::max()) return;
  const auto wait = std::chrono::ceil<milliseconds>(std::max(due - now, Nanoseconds(0)));
  wakeUpDue_ = due;
  wakeUp_ = startTimer(wait, Qt::PreciseTimer);
}
