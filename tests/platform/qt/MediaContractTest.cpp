#include <algorithm>
#include <memory>
#include <vector>

#include "tests/platform/qt/Worlds.h"

// What every player promises, in the virtual and the real world alike.

namespace {

using namespace std::chrono_literals;

using States = std::vector<PlayState>;

template <typename AnyWorld>
class MediaContractTest : public testing::Test, public MediaListener {
 protected:
  void PlayStateChanged(PlayState state) override { states.push_back(state); }
  void MediaChanged() override { durations.push_back(player->Duration()); }

  bool Reaches(PlayState state) {
    return world.Until([&] { return player->State() == state && !states.empty() && states.back() == state; });
  }
  int Times(PlayState state) const { return static_cast<int>(std::ranges::count(states, state)); }

  AnyWorld world;
  States states;
  std::vector<double> durations;  // one for each media change
  std::unique_ptr<MediaPlayer> player = world.media.NewPlayer("player", *this);
};

TYPED_TEST_SUITE(MediaContractTest, Worlds);

TYPED_TEST(MediaContractTest, AFreshPlayerIsIdle) {
  EXPECT_EQ(this->player->State(), PlayState::kUndefined);
  EXPECT_EQ(this->player->Status(), "");
  EXPECT_EQ(this->player->Position(), 0);
  EXPECT_EQ(this->player->Duration(), 0);
  EXPECT_FALSE(this->player->IsOpen());
  this->player->Play();
  this->player->SetPosition(5);
  this->world.Pass(50ms);
  EXPECT_EQ(this->player->State(), PlayState::kUndefined);
  EXPECT_EQ(this->player->Position(), 0);
}

TYPED_TEST(MediaContractTest, AnItemPlaysToItsEndAndIsReportedEndedOnce) {
  this->player->Open(this->world.Clip("short.mp4", 0.6));
  EXPECT_TRUE(this->states.empty()) << "nothing is heard from inside a call";
  ASSERT_TRUE(this->Reaches(PlayState::kMediaEnded));
  this->world.Pass(100ms);
  EXPECT_EQ(this->states, (States{PlayState::kTransitioning, PlayState::kPlaying, PlayState::kMediaEnded}));
  EXPECT_EQ(this->player->Status(), "Finished");
}

TYPED_TEST(MediaContractTest, TheDurationIsKnownWhenTheMediaChangeIsHeard) {
  this->player->Open(this->world.Clip("ten.mp4", 10));
  ASSERT_TRUE(this->world.Until([&] { return !this->durations.empty(); }));
  EXPECT_NEAR(this->durations[0], 10, 0.2);
  EXPECT_TRUE(this->player->IsOpen());
}

TYPED_TEST(MediaContractTest, AnotherItemInItsPlaceIsNoEnd) {
  this->player->Open(this->world.Clip("first.mp4", 5));
  ASSERT_TRUE(this->Reaches(PlayState::kPlaying));
  this->player->Open(this->world.Clip("second.mp4", 0.5));
  EXPECT_EQ(this->player->State(), PlayState::kTransitioning);
  ASSERT_TRUE(this->Reaches(PlayState::kMediaEnded));
  EXPECT_EQ(this->Times(PlayState::kMediaEnded), 1);
  EXPECT_EQ(this->Times(PlayState::kPlaying), 2);
}

TYPED_TEST(MediaContractTest, AnEndedItemMayBeFollowedByTheSameOneAgain) {
  const std::string clip = this->world.Clip("once more.mp4", 0.4);
  this->player->Open(clip);
  ASSERT_TRUE(this->Reaches(PlayState::kMediaEnded));
  this->player->Open(clip);
  ASSERT_TRUE(this->Reaches(PlayState::kMediaEnded));
  EXPECT_TRUE(this->world.Until([&] { return this->Times(PlayState::kMediaEnded) == 2; }));
}

TYPED_TEST(MediaContractTest, AStopIsNoEnd) {
  this->player->Open(this->world.Clip("stopped.mp4", 5));
  ASSERT_TRUE(this->Reaches(PlayState::kPlaying));
  this->player->Stop();
  EXPECT_EQ(this->player->State(), PlayState::kStopped);
  EXPECT_EQ(this->player->Status(), "Stopped");
  EXPECT_EQ(this->player->Position(), 0);
  this->world.Pass(300ms);
  EXPECT_EQ(this->Times(PlayState::kMediaEnded), 0);
}

TYPED_TEST(MediaContractTest, PlayAfterAStopStartsTheItemAgain) {
  this->player->Open(this->world.Clip("again.mp4", 5));
  ASSERT_TRUE(this->Reaches(PlayState::kPlaying));
  this->player->Stop();
  this->player->Play();
  EXPECT_TRUE(this->Reaches(PlayState::kPlaying));
}

TYPED_TEST(MediaContractTest, AnItemStaysOpenBehindItsEndWithItsDuration) {
  this->player->Open(this->world.Clip("ended.mp4", 0.6));
  EXPECT_FALSE(this->player->IsOpen());
  ASSERT_TRUE(this->Reaches(PlayState::kMediaEnded));
  EXPECT_TRUE(this->player->IsOpen());
  EXPECT_NEAR(this->player->Duration(), 0.6, 0.2);
  EXPECT_EQ(this->player->Position(), 0);
  this->player->Open(this->world.Clip("other.mp4", 5));
  EXPECT_FALSE(this->player->IsOpen());
  EXPECT_EQ(this->player->Duration(), 0);
}

TYPED_TEST(MediaContractTest, AnItemStaysOpenBehindAStopUntilItIsClosed) {
  this->player->Open(this->world.Clip("kept.mp4", 5));
  ASSERT_TRUE(this->Reaches(PlayState::kPlaying));
  this->player->Stop();
  EXPECT_TRUE(this->player->IsOpen());
  EXPECT_NEAR(this->player->Duration(), 5, 0.2);
  this->player->Open("");
  EXPECT_FALSE(this->player->IsOpen());
  EXPECT_EQ(this->player->Duration(), 0);
}

TYPED_TEST(MediaContractTest, AStopBehindTheEndIsAStop) {
  this->player->Open(this->world.Clip("over.mp4", 0.4));
  ASSERT_TRUE(this->Reaches(PlayState::kMediaEnded));
  this->player->Stop();
  EXPECT_EQ(this->player->State(), PlayState::kStopped);
  ASSERT_TRUE(this->Reaches(PlayState::kStopped));
  this->player->Stop();
  this->world.Pass(100ms);
  EXPECT_EQ(this->Times(PlayState::kStopped), 1);
  EXPECT_EQ(this->Times(PlayState::kMediaEnded), 1);
}

TYPED_TEST(MediaContractTest, AStopWhereNothingHasBegunDoesNothing) {
  this->player->Stop();
  EXPECT_EQ(this->player->State(), PlayState::kUndefined);
  this->player->Open(this->world.Absent());
  EXPECT_EQ(this->player->State(), PlayState::kReady);
  this->player->Stop();
  EXPECT_EQ(this->player->State(), PlayState::kReady);
}

TYPED_TEST(MediaContractTest, AStopWhileTheItemIsBeingOpenedKeepsItShut) {
  this->player->Open(this->world.Clip("early.mp4", 5));
  this->player->Stop();
  this->world.Pass(400ms);
  EXPECT_EQ(this->player->State(), PlayState::kStopped);
  EXPECT_EQ(this->Times(PlayState::kPlaying), 0);
  EXPECT_FALSE(this->player->IsOpen());
}

TYPED_TEST(MediaContractTest, PlayBehindTheEndStartsTheItemAgain) {
  this->player->Open(this->world.Clip("twice.mp4", 0.5));
  ASSERT_TRUE(this->Reaches(PlayState::kMediaEnded));
  this->player->Play();
  EXPECT_EQ(this->player->State(), PlayState::kTransitioning);
  ASSERT_TRUE(this->Reaches(PlayState::kMediaEnded));
  EXPECT_TRUE(this->world.Until([&] { return this->Times(PlayState::kMediaEnded) == 2; }));
  EXPECT_EQ(this->Times(PlayState::kPlaying), 2);
}

TYPED_TEST(MediaContractTest, APauseBeforeTheFileIsOpenOpensItPaused) {
  this->player->Open(this->world.Clip("held.mp4", 10));
  this->player->Pause();
  ASSERT_TRUE(this->Reaches(PlayState::kPaused));
  EXPECT_TRUE(this->player->IsOpen());
  EXPECT_EQ(this->Times(PlayState::kPlaying), 0);
  this->player->Play();
  EXPECT_TRUE(this->Reaches(PlayState::kPlaying));
}

TYPED_TEST(MediaContractTest, TheEmptyTextClosesWhatIsOpen) {
  this->player->Open(this->world.Clip("closed.mp4", 0.5));
  ASSERT_TRUE(this->Reaches(PlayState::kPlaying));
  this->player->Open("");
  EXPECT_EQ(this->player->State(), PlayState::kUndefined);
  EXPECT_FALSE(this->player->IsOpen());
  this->world.Pass(800ms);
  EXPECT_EQ(this->Times(PlayState::kMediaEnded), 0);
}

TYPED_TEST(MediaContractTest, APausedItemGoesOnFromWhereItStood) {
  this->player->Open(this->world.Clip("pause.mp4", 10));
  this->player->SetPosition(4);
  ASSERT_TRUE(this->Reaches(PlayState::kPlaying));
  this->player->Pause();
  ASSERT_TRUE(this->Reaches(PlayState::kPaused));
  EXPECT_EQ(this->player->Status(), "Paused");
  this->world.Pass(200ms);
  const double stood = this->player->Position();
  this->world.Pass(400ms);
  EXPECT_EQ(this->player->Position(), stood);
  this->player->Play();
  ASSERT_TRUE(this->Reaches(PlayState::kPlaying));
  ASSERT_TRUE(this->world.Until([&] { return this->player->Position() > stood; }));
  EXPECT_LT(this->player->Position(), stood + 5);
}

TYPED_TEST(MediaContractTest, ASeekBeforeTheFileIsOpenIsKeptAndCarriedOut) {
  this->player->Open(this->world.Clip("resume.mp4", 30));
  this->player->SetPosition(20);
  EXPECT_EQ(this->player->Position(), 20);
  bool wentBack = false;
  ASSERT_TRUE(this->world.Until([&] {
    wentBack = wentBack || this->player->Position() < 19.9;
    return this->player->Position() > 20.3;
  }));
  EXPECT_FALSE(wentBack) << "who records the position meanwhile would record the start";
  EXPECT_LT(this->player->Position(), 29);
}

TYPED_TEST(MediaContractTest, ASeekDoesNotOutliveItsItem) {
  this->player->Open(this->world.Clip("sought.mp4", 30));
  this->player->SetPosition(20);
  this->player->Open(this->world.Clip("fresh.mp4", 30));
  EXPECT_EQ(this->player->Position(), 0);
  ASSERT_TRUE(this->Reaches(PlayState::kPlaying));
  EXPECT_LT(this->player->Position(), 15);
}

TYPED_TEST(MediaContractTest, ASeekBeyondTheEndEndsTheItem) {
  this->player->Open(this->world.Clip("beyond.mp4", 10));
  ASSERT_TRUE(this->Reaches(PlayState::kPlaying));
  this->player->SetPosition(1000);
  EXPECT_TRUE(this->Reaches(PlayState::kMediaEnded));
}

TYPED_TEST(MediaContractTest, WhatIsAbsentRaisesNoEnd) {
  this->player->Open(this->world.Absent());
  this->world.Pass(300ms);
  EXPECT_EQ(this->Times(PlayState::kMediaEnded), 0);
  EXPECT_TRUE(this->durations.empty());
  EXPECT_FALSE(this->player->IsOpen());
}

TYPED_TEST(MediaContractTest, AListenerMayOpenTheNextItemAtTheEnd) {
  class OpensNext : public MediaListener {
   public:
    void PlayStateChanged(PlayState state) override {
      if (state == PlayState::kMediaEnded && ++ends < 3) player->Open(clip);
    }
    void MediaChanged() override {}
    MediaPlayer* player = nullptr;
    std::string clip;
    int ends = 0;
  } listener;
  listener.clip = this->world.Clip("next.mp4", 0.2);
  const auto chained = this->world.media.NewPlayer("chained", listener);
  listener.player = chained.get();
  chained->Open(listener.clip);
  EXPECT_TRUE(this->world.Until([&] { return listener.ends == 3; }));
}

}  // namespace
