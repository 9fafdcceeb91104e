#include <algorithm>
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

TYPED_TEST(FlashContractTest, EveryFrameIsToldInOrderRoundAndRound) {
  this->surface->Put(this->world.Movie("round.swf", 5));
  ASSERT_TRUE(this->world.Until([&] { return this->frames.size() >= 17; }));
  for (std::size_t i = 0; i < this->frames.size(); ++i) EXPECT_EQ(this->frames[i], static_cast<int>(i % 5) + 1);
}

TYPED_TEST(FlashContractTest, AMovieOfOneFrameIsToldOnce) {
  this->surface->Put(this->world.Movie("one.swf", 1));
  ASSERT_TRUE(this->Comes(1));
  this->world.Pass(700ms);
  EXPECT_EQ(this->frames, std::vector<int>{1});
}

TYPED_TEST(FlashContractTest, AMovieThatCannotBePlayedIsCountedByTheClockWhileWhatWasShownStays) {
  this->surface->Put(this->world.UnplayableMovie("unplayable.swf", 6));
  EXPECT_EQ(this->surface->TotalFrames(), 6);
  ASSERT_TRUE(this->world.Until([&] { return this->frames.size() >= 13; }));
  for (std::size_t i = 0; i < this->frames.size(); ++i) EXPECT_EQ(this->frames[i], static_cast<int>(i % 6) + 1);
  this->surface->Put(this->world.Movie("next.swf", 300));
  this->frames.clear();
  ASSERT_TRUE(this->Comes(20));
  for (std::size_t i = 0; i < this->frames.size(); ++i) EXPECT_EQ(this->frames[i], static_cast<int>(i) + 1);
}

TYPED_TEST(FlashContractTest, ThePutOfTheSamePathStartsTheMovieAgain) {
  const std::string movie = this->world.Movie("again.swf", 100);
  this->surface->Put(movie);
  ASSERT_TRUE(this->Comes(10));
  this->surface->Put(movie);
  this->frames.clear();
  ASSERT_TRUE(this->world.Until([&] { return this->frames.size() >= 3; }));
  EXPECT_EQ(this->frames[0], 1);
  EXPECT_EQ(this->frames[2], 3);
}

TYPED_TEST(FlashContractTest, NothingOfAFormerMovieIsToldAnyMore) {
  this->surface->Put(this->world.Movie("former.swf", 100));
  ASSERT_TRUE(this->Comes(20));
  this->surface->Put(this->world.Movie("latter.swf", 3));
  this->frames.clear();
  ASSERT_TRUE(this->world.Until([&] { return this->frames.size() >= 9; }));
  for (std::size_t i = 0; i < this->frames.size(); ++i) EXPECT_EQ(this->frames[i], static_cast<int>(i % 3) + 1);
  this->surface->Put(this->world.Absent());
  this->frames.clear();
  this->world.Pass(500ms);
  EXPECT_TRUE(this->frames.empty());
}

TYPED_TEST(FlashContractTest, OfPutsThatFollowFasterThanMoviesComeUpTheLastOnePlays) {
  const std::string three = this->world.Movie("three.swf", 3);
  const std::string four = this->world.Movie("four.swf", 4);
  for (int i = 0; i < 60; ++i) {
    this->surface->Put(i % 2 == 0 ? three : four);
    this->world.Pass(16ms);
  }
  this->frames.clear();
  EXPECT_TRUE(this->Comes(4));
  EXPECT_EQ(this->surface->TotalFrames(), 4);
}

TYPED_TEST(FlashContractTest, SurfacesOfTheSameFileAllCount) {
  class Counts : public FlashListener {
   public:
    void FrameShown(int frame) override { frames.push_back(frame); }
    std::vector<int> frames;
  } other;
  const std::string movie = this->world.Movie("shared.swf", 6);
  const auto second = this->world.world.flash.NewSurface("second", other);
  this->surface->Put(movie);
  second->Put(movie);
  ASSERT_TRUE(this->world.Until([&] { return this->frames.size() >= 8 && other.frames.size() >= 8; }));
  for (std::size_t i = 0; i < 8; ++i) EXPECT_EQ(other.frames[i], static_cast<int>(i % 6) + 1);
  // The one goes elsewhere: the other goes on.
  this->surface->Put("");
  other.frames.clear();
  EXPECT_TRUE(this->world.Until([&] { return other.frames.size() >= 8; }));
}

TYPED_TEST(FlashContractTest, AListenerMayPutTheNextMovieOrEndTheSurface) {
  class PutsNext : public FlashListener {
   public:
    void FrameShown(int frame) override {
      if (frame != 3) return;
      if (++rounds < 3) {
        surface->Put(movie);
      } else {
        surface.reset();
      }
    }
    std::unique_ptr<FlashSurface> surface;
    std::string movie;
    int rounds = 0;
  } listener;
  listener.movie = this->world.Movie("next.swf", 3);
  listener.surface = this->world.world.flash.NewSurface("chained", listener);
  listener.surface->Put(listener.movie);
  EXPECT_TRUE(this->world.Until([&] { return listener.rounds == 3; }));
  this->world.Pass(200ms);
  EXPECT_EQ(listener.rounds, 3);
}

}  // namespace
