#include <memory>
#include <vector>

#include "tests/platform/qt/Worlds.h"

// What every flash surface promises, in the virtual and the real world alike.

namespace {

using namespace std::chrono_literals;

template <typename AnyWorld>
class FlashContractTest : public testing::Test, public FlashListener {
 protected:
  void FrameShown(int frame) override { frames.push_back(frame); }

  bool Comes(int frame) {
    return world.Until([&] { return std::ranges::find(frames, frame) != frames.end(); });
  }

  AnyWorld world;
  std::vector<int> frames;
  std::unique_ptr<FlashSurface> surface = world.world.flash.NewSurface("surface", *this);
};

TYPED_TEST_SUITE(FlashContractTest, Worlds);

TYPED_TEST(FlashContractTest, AFreshSurfaceHasNoFrames) {
  EXPECT_EQ(this->surface->TotalFrames(), 0);
  this->surface->SetVariable("text1", "nobody there");
  this->surface->Put("");
  EXPECT_EQ(this->surface->TotalFrames(), 0);
}

TYPED_TEST(FlashContractTest, TheNumberOfFramesIsKnownWhenThePutReturns) {
  this->surface->Put(this->world.Movie("known.swf", 20));
  EXPECT_EQ(this->surface->TotalFrames(), 20);
  EXPECT_TRUE(this->frames.empty()) << "nothing is heard from inside a call";
  this->surface->Put(this->world.Picture("picture.png", {4, 4}));
  EXPECT_EQ(this->surface->TotalFrames(), 0);
  this->surface->Put(this->world.Movie("other.swf", 7));
  EXPECT_EQ(this->surface->TotalFrames(), 7);
  this->surface->Put(this->world.Absent());
  EXPECT_EQ(this->surface->TotalFrames(), 0);
}

}  // namespace
