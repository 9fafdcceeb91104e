#include <algorithm>
#include <chrono>
#include <string>
#include <vector>

#include "tests/platform/qt/Worlds.h"

// What every scheduler promises, in the virtual and the real world alike.

namespace {

using namespace std::chrono_literals;

template <typename AnyWorld>
class SchedulerContractTest : public testing::Test {
 protected:
  AnyWorld world;
  Scheduler& scheduler = world.scheduler;
};

TYPED_TEST_SUITE(SchedulerContractTest, Worlds);

TYPED_TEST(SchedulerContractTest, TheFirstTickComesAnIntervalFromTheStart) {
  int ticks = 0;
  this->scheduler.Start(50ms, TickPhase::kFromStart, [&] { ++ticks; });
  EXPECT_EQ(ticks, 0);
  this->world.Pass(1000ms);
  EXPECT_GT(ticks, 0);
  EXPECT_LE(ticks, 20);
}

TYPED_TEST(SchedulerContractTest, TheFastestTimersTickOnceAFrameAndTogether) {
  int fastest = 0;
  int fast = 0;
  this->scheduler.Start(1ms, TickPhase::kFromStart, [&] { ++fastest; });
  this->scheduler.Start(16ms, TickPhase::kFromStart, [&] { ++fast; });
  this->world.Pass(1000ms);
  EXPECT_GT(fastest, 0);
  EXPECT_LE(fastest, 61);
  EXPECT_NEAR(fast, fastest, 1);
}

TYPED_TEST(SchedulerContractTest, ACancelledTimerTicksNoMoreAlsoFromItsOwnTick) {
  int ticks = 0;
  Scheduler::Id id = 0;
  id = this->scheduler.Start(20ms, TickPhase::kFromStart, [&] {
    ++ticks;
    this->scheduler.Cancel(id);
  });
  this->world.Pass(200ms);
  EXPECT_EQ(ticks, 1);
  this->scheduler.Cancel(id);
  this->scheduler.Cancel(12345);
}

TYPED_TEST(SchedulerContractTest, ATickMayEndAnotherThatIsDueWithIt) {
  std::string order;
  Scheduler::Id second = 0;
  const auto first = this->scheduler.Start(1ms, TickPhase::kFromStart, [&] {
    order += '1';
    this->scheduler.Cancel(second);
  });
  second = this->scheduler.Start(1ms, TickPhase::kFromStart, [&] { order += '2'; });
  EXPECT_TRUE(this->world.Until([&] { return order.size() >= 3; }));
  this->scheduler.Cancel(first);
  EXPECT_EQ(order.find('2'), std::string::npos);
}

TYPED_TEST(SchedulerContractTest, ATimerTicksOnWhileAnEarlierTickOfItStandsInADialog) {
  int ticks = 0;
  bool standing = false;
  bool heldUp = false;
  this->scheduler.Start(20ms, TickPhase::kFromStart, [&] {
    if (++ticks != 1) return;
    standing = true;
    heldUp = !this->world.Until([&] { return ticks >= 5; });
    standing = false;
  });
  EXPECT_TRUE(this->world.Until([&] { return ticks >= 6 && !standing; }));
  EXPECT_FALSE(heldUp);
}

TYPED_TEST(SchedulerContractTest, ATickThatStandsInADialogHoldsUpNoneThatIsDueWithIt) {
  bool stood = false;
  bool other = false;
  this->scheduler.Start(100ms, TickPhase::kFromStart, [&] {
    if (stood) return;
    stood = true;
    EXPECT_TRUE(this->world.Until([&] { return other; }));
  });
  this->scheduler.Start(100ms, TickPhase::kFromStart, [&] { other = true; });
  EXPECT_TRUE(this->world.Until([&] { return other; }));
}

TYPED_TEST(SchedulerContractTest, TimersThatAreDueTogetherTickInTheOrderStarted) {
  std::string order;
  std::vector<Scheduler::Id> ids;
  for (const char name : {'a', 'b', 'c'}) {
    ids.push_back(this->scheduler.Start(1ms, TickPhase::kFromStart, [&order, name] { order += name; }));
  }
  EXPECT_TRUE(this->world.Until([&] { return order.size() >= 12; }));
  for (const auto id : ids) this->scheduler.Cancel(id);
  // A frame may begin between the starts.
  EXPECT_EQ(order.substr(order.find('c') + 1, 6), "abcabc");
}

TYPED_TEST(SchedulerContractTest, AYieldRunsTheTicksThatAreDueAndNothingThatWasPosted) {
  int ticks = 0;
  bool posted = false;
  int during = 0;
  this->scheduler.Start(20ms, TickPhase::kFromStart, [&] { ++ticks; });
  this->scheduler.Post([&] {
    this->scheduler.Post([&] { posted = true; });
    this->scheduler.Yield();
    EXPECT_EQ(ticks, 0) << "nothing is due yet";
    this->world.BeBusy(50ms);
    EXPECT_EQ(ticks, 0) << "a handler that is at work is not interrupted";
    this->scheduler.Yield();
    during = ticks;
    EXPECT_FALSE(posted);
  });
  EXPECT_TRUE(this->world.Until([&] { return posted; }));
  EXPECT_EQ(during, 1) << "ticks that were missed are not made up";
}

TYPED_TEST(SchedulerContractTest, AYieldInsideATickRunsTheOthersAndMayRunTheSameTick) {
  int depth = 0, deepest = 0, others = 0;
  const auto id = this->scheduler.Start(20ms, TickPhase::kFromStart, [&] {
    deepest = std::max(deepest, ++depth);
    if (depth == 1) {
      this->world.BeBusy(50ms);
      this->scheduler.Yield();
    }
    --depth;
  });
  this->scheduler.Start(20ms, TickPhase::kFromStart, [&] { others += depth > 0; });
  EXPECT_TRUE(this->world.Until([&] { return others > 0 && deepest > 1; }));
  this->scheduler.Cancel(id);
}

TYPED_TEST(SchedulerContractTest, PostedWorkRunsAfterTheHandlerInTheOrderPosted) {
  std::string order;
  this->scheduler.Post([&] {
    this->scheduler.Post([&] { order += '3'; });
    order += '1';
  });
  this->scheduler.Post([&] { order += '2'; });
  EXPECT_EQ(order, "");
  EXPECT_TRUE(this->world.Until([&] { return order == "123"; }));
}

}  // namespace
