#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <span>
#include <thread>

#include "platform/qt/media/FrameExchange.h"

namespace {

constexpr QSize kSize{64, 36};

class FrameExchangeTest : public testing::Test {
 protected:
  FrameExchangeTest() {
    exchange->SetTarget(kSize);
    exchange->SetLive(true);
  }

  // As the rendering side does. Returns where the frame stands.
  const uchar* Render(uchar value) {
    QImage* frame = exchange->Begin();
    if (frame == nullptr) return nullptr;
    std::fill_n(frame->bits(), frame->sizeInBytes(), value);
    exchange->Publish();
    return frame->constBits();
  }
  static bool IsAll(const QImage& frame, uchar value) {
    const std::span bytes(frame.constBits(), static_cast<std::size_t>(frame.sizeInBytes()));
    return std::ranges::all_of(bytes, [value](uchar byte) { return byte == value; });
  }

  std::unique_ptr<FrameExchange> exchange = std::make_unique<FrameExchange>();
};

TEST_F(FrameExchangeTest, TheNewestFrameIsGivenOnce) {
  Render(1);
  Render(2);
  const auto newest = exchange->Take();
  ASSERT_TRUE(newest.has_value());
  EXPECT_TRUE(IsAll(*newest, 2));
  EXPECT_FALSE(exchange->Take().has_value());
}

TEST_F(FrameExchangeTest, AFrameIsNotWrittenWhileACopyOfItLives) {
  Render(1);
  auto taken = exchange->Take();
  const QImage texture = *taken;
  taken.reset();
  for (uchar value = 2; value < 20; ++value) {
    EXPECT_NE(Render(value), texture.constBits());
    if (value % 2 == 0) exchange->Take();
  }
  EXPECT_TRUE(IsAll(texture, 1));
}

TEST_F(FrameExchangeTest, TheLastCopyFreesThePlace) {
  const uchar* place = Render(1);
  auto taken = exchange->Take();
  QImage texture = *taken;
  taken.reset();
  const uchar* second = Render(2);
  EXPECT_NE(second, place);
  texture = {};
  EXPECT_EQ(Render(3), place) << "the second one waits, and the first is free";
}

TEST_F(FrameExchangeTest, HoweverManyAreHeldThereIsOneToRenderInto) {
  std::vector<QImage> held;
  for (uchar value = 0; value < 12; ++value) {
    ASSERT_NE(Render(value), nullptr);
    held.push_back(exchange->Take().value());
  }
  for (uchar value = 0; value < 12; ++value) EXPECT_TRUE(IsAll(held[value], value));
}

TEST_F(FrameExchangeTest, WhoWritesToAFrameWritesToACopyOfHisOwn) {
  Render(1);
  QImage taken = exchange->Take().value();
  const QImage texture = taken;
  taken.fill(Qt::red);
  EXPECT_TRUE(IsAll(texture, 1));
}

TEST_F(FrameExchangeTest, AFrameMayOutliveTheExchange) {
  Render(1);
  const QImage taken = exchange->Take().value();
  exchange.reset();
  EXPECT_TRUE(IsAll(taken, 1));
}

TEST_F(FrameExchangeTest, AFrameOfAnotherSizeOrOfAnItemThatIsOverIsDropped) {
  Render(1);
  exchange->SetTarget({32, 18});
  EXPECT_FALSE(exchange->Take().has_value());
  Render(2);
  exchange->SetLive(false);
  EXPECT_FALSE(exchange->Take().has_value());
  EXPECT_EQ(exchange->Begin(), nullptr);
}

TEST_F(FrameExchangeTest, AFrameThatWasBegunForAnotherSizeIsDropped) {
  ASSERT_NE(exchange->Begin(), nullptr);
  exchange->SetTarget({32, 18});
  exchange->Publish();
  EXPECT_FALSE(exchange->Take().has_value());
}

// The renderer goes as fast as it can while the other side holds two frames, as an item and its texture do.
TEST_F(FrameExchangeTest, NoFrameChangesUnderItsViewerWhileAnotherThreadRenders) {
  std::atomic<bool> ready = false;
  std::atomic<bool> over = false;
  exchange->NotifyReady([&ready] { ready = true; });
  std::thread renderer([&] {
    for (uchar value = 0; !over; ++value) Render(value);
  });
  QImage shown;
  QImage before;
  int frames = 0;
  int torn = 0;
  while (frames < 300) {
    if (!ready.exchange(false)) continue;
    auto taken = exchange->Take();
    if (!taken) continue;
    ++frames;
    if (frames % 100 == 0) exchange->SetTarget(frames % 200 == 0 ? kSize : QSize(32, 18));
    before = std::exchange(shown, *std::move(taken));
    for (const QImage& frame : {shown, before}) {
      if (!frame.isNull() && !IsAll(frame, frame.constBits()[0])) ++torn;
    }
  }
  over = true;
  renderer.join();
  EXPECT_EQ(torn, 0);
}

}  // namespace
