#include <gtest/gtest.h>

#include <QThread>
#include <algorithm>
#include <new>
#include <vector>

#include "platform/qt/QtClock.h"
#include "platform/qt/QtScheduler.h"
#include "tests/platform/qt/TestMedia.h"

namespace {

using namespace std::chrono_literals;

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

TEST(QtSchedulerTest, WorkForTheNextFrameRunsOnceAfterThatFramesTicks) {
  QtScheduler scheduler;
  std::string order;
  scheduler.OnNextFrame([&] { order += 'w'; });
  scheduler.Start(1ms, TickPhase::kFromStart, [&] { order += 't'; });
  EXPECT_TRUE(Until([&] { return order.size() >= 4; }));
  EXPECT_EQ(std::ranges::count(order, 'w'), 1);
  EXPECT_NE(order[0], 'w');
}

// A fault in one tick ends that tick: neither the others of the moment nor the program.
TEST(QtSchedulerTest, ATickThatGoesWrongTakesNoOtherWithIt) {
  QtScheduler scheduler;
  scheduler.Start(10ms, TickPhase::kFromStart, [] { throw std::bad_alloc(); });
  int ticks = 0, frames = 0;
  scheduler.Start(10ms, TickPhase::kFromStart, [&] { ++ticks; });
  scheduler.OnNextFrame([&] { ++frames; });
  testing::internal::CaptureStderr();
  EXPECT_TRUE(Until([&] { return ticks == 5 && frames == 1; }));
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "QtScheduler: std::bad_alloc\n");
}

}  // namespace
