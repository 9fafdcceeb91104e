#include <gtest/gtest.h>

#include <QEventLoop>
#include <QThread>
#include <algorithm>
#include <vector>

#include "platform/qt/QtClock.h"
#include "platform/qt/QtScheduler.h"
#include "tests/platform/qt/TestMedia.h"

namespace {

using namespace std::chrono_literals;

TEST(QtSchedulerTest, TicksComeAtTheirInterval) {
  QtScheduler scheduler;
  int ticks = 0;
  scheduler.Start(50ms, TickPhase::kFromStart, [&] { ++ticks; });
  EXPECT_EQ(ticks, 0);
  Pass(1000ms);
  EXPECT_GT(ticks, 0);
  EXPECT_LE(ticks, 20);
}

TEST(QtSchedulerTest, TheFastestTimersTickSixtyTimesASecondAndNeverInBursts) {
  QtScheduler scheduler;
  std::vector<std::chrono::steady_clock::time_point> ticks;
  scheduler.Start(1ms, TickPhase::kFromStart, [&] { ticks.push_back(std::chrono::steady_clock::now()); });
  int slower = 0;
  scheduler.Start(16ms, TickPhase::kFromStart, [&] { ++slower; });
  Pass(1000ms);
  EXPECT_LE(ticks.size(), 61u);
  EXPECT_GT(ticks.size(), 0u);
  EXPECT_NEAR(slower, static_cast<int>(ticks.size()), 1);
}

TEST(QtSchedulerTest, ALateTickIsLeftOut) {
  QtScheduler scheduler;
  int ticks = 0;
  scheduler.Start(20ms, TickPhase::kFromStart, [&] { ++ticks; });
  QThread::msleep(300);
  Pass(1ms);
  EXPECT_EQ(ticks, 1);
}

TEST(QtSchedulerTest, ACancelledTimerTicksNoMoreAlsoFromItsOwnTick) {
  QtScheduler scheduler;
  int ticks = 0;
  Scheduler::Id id = 0;
  id = scheduler.Start(10ms, TickPhase::kFromStart, [&] {
    ++ticks;
    scheduler.Cancel(id);
  });
  Pass(200ms);
  EXPECT_EQ(ticks, 1);
  scheduler.Cancel(id);
  scheduler.Cancel(12345);
}

TEST(QtSchedulerTest, ATimerTicksOnWhileAnEarlierTickOfItStandsInADialog) {
  QtScheduler scheduler;
  int ticks = 0;
  QEventLoop dialog;
  scheduler.Start(20ms, TickPhase::kFromStart, [&] {
    ++ticks;
    if (ticks == 1) dialog.exec();
    if (ticks == 5) dialog.quit();
  });
  EXPECT_TRUE(Until([&] { return ticks > 5; }));
}

TEST(QtSchedulerTest, ATickThatStandsInADialogHoldsUpNoneThatWasDueWithIt) {
  QtScheduler scheduler;
  QEventLoop dialog;
  bool other = false;
  bool standing = false;
  scheduler.Start(20ms, TickPhase::kFromStart, [&] {
    if (standing) return;
    standing = true;
    dialog.exec();
  });
  scheduler.Start(20ms, TickPhase::kFromStart, [&] {
    other = true;
    dialog.quit();
  });
  QThread::msleep(60);
  EXPECT_TRUE(Until([&] { return other; }));
}

TEST(QtSchedulerTest, TimersThatAreDueTogetherTickInTheOrderStarted) {
  QtScheduler scheduler;
  std::string order;
  const auto a = scheduler.Start(1ms, TickPhase::kFromStart, [&] { order += 'a'; });
  const auto b = scheduler.Start(5ms, TickPhase::kFromStart, [&] { order += 'b'; });
  const auto c = scheduler.Start(16ms, TickPhase::kFromStart, [&] { order += 'c'; });
  EXPECT_TRUE(Until([&] { return order.size() >= 12; }));
  for (const auto id : {a, b, c}) scheduler.Cancel(id);
  // A frame may begin between the starts.
  EXPECT_EQ(order.substr(order.find('c') + 1, 6), "abcabc");
}

TEST(QtSchedulerTest, TicksOfTheWallSecondComeJustAfterItBegins) {
  QtScheduler scheduler;
  const QtClock clock;
  std::vector<DateTime> ticks;
  scheduler.Start(1000ms, TickPhase::kWallSecond, [&] { ticks.push_back(clock.Now()); });
  ASSERT_TRUE(Until([&] { return ticks.size() == 3; }));
  const auto intoTheSecond = std::ranges::min(ticks, {}, &DateTime::millisecond).millisecond;
  EXPECT_GE(intoTheSecond, 4) << "a clock that is slewed must not read the former second";
  EXPECT_LT(intoTheSecond, 500);
}

TEST(QtSchedulerTest, PostedWorkRunsAfterTheHandlerInTheOrderPosted) {
  QtScheduler scheduler;
  std::string order;
  scheduler.Post([&] {
    scheduler.Post([&] { order += '3'; });
    order += '1';
  });
  scheduler.Post([&] { order += '2'; });
  EXPECT_EQ(order, "");
  EXPECT_TRUE(Until([&] { return order == "123"; }));
}

TEST(QtSchedulerTest, WorkForTheNextFrameRunsOnceAfterThatFramesTicks) {
  QtScheduler scheduler;
  std::string order;
  scheduler.OnNextFrame([&] { order += 'w'; });
  scheduler.Start(1ms, TickPhase::kFromStart, [&] { order += 't'; });
  EXPECT_TRUE(Until([&] { return order.size() >= 4; }));
  EXPECT_EQ(std::ranges::count(order, 'w'), 1);
  EXPECT_NE(order[0], 'w');
}

}  // namespace
