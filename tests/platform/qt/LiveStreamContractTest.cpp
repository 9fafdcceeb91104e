#include <algorithm>
#include <map>
#include <memory>
#include <vector>

#include "tests/platform/qt/LiveSource.h"
#include "tests/platform/qt/Worlds.h"

// What every player promises of streams, in the virtual and the real world alike.

namespace {

using namespace std::chrono_literals;

class VirtualStreams : public VirtualWorld {
 public:
  // Two seconds of a stream that goes on for ever; a whole film.
  std::string Live() { return Stream(0); }
  std::string Film(double seconds) { return Stream(seconds); }
  std::string Silent() {
    sim.media.NeverAnswers("http://host/silent");
    return "http://host/silent";
  }
  // The source gives nothing more.
  void StandStill(const std::string& address) { sim.media.Stall(address); }
  void Break(const std::string& address) { sim.media.Break(address); }
  void Mend(const std::string& address) { sim.media.Mend(address); }

 private:
  std::string Stream(double seconds) {
    const std::string address = "http://host/" + std::to_string(++count_);
    sim.media.SetDuration(address, seconds);
    return address;
  }
  int count_ = 0;
};

class RealStreams : public RealWorld {
 public:
  std::string Live() { return Served(Clip("live.ts", 2), LiveSource::Kind::kLive); }
  std::string Film(double seconds) { return Served(Clip("film.mkv", seconds), LiveSource::Kind::kWhole); }
  std::string Silent() { return Served(Clip("live.ts", 2), LiveSource::Kind::kSilent); }
  // By itself, when its two seconds are over.
  void StandStill(const std::string&) {}
  void Break(const std::string& address) { sources_.at(address)->Break(); }
  void Mend(const std::string& address) { sources_.at(address)->Mend(); }

 private:
  std::string Served(const std::string& file, LiveSource::Kind kind) {
    auto source = std::make_unique<LiveSource>(file, kind);
    const std::string address = source->Address();
    sources_[address] = std::move(source);
    return address;
  }
  std::map<std::string, std::unique_ptr<LiveSource>> sources_;
};

template <typename AnyWorld>
class LiveStreamContractTest : public testing::Test, public MediaListener {
 protected:
  void PlayStateChanged(PlayState state) override { states.push_back(state); }
  void MediaChanged() override {}

  bool Reaches(PlayState state) {
    return world.Until([&] { return player->State() == state && !states.empty() && states.back() == state; });
  }
  // A live stream on a player that takes it up again, playing.
  std::string OnAir() {
    player->SetTakesLiveUpAgain(true);
    const std::string stream = world.Live();
    player->Open(stream);
    EXPECT_TRUE(Reaches(PlayState::kPlaying));
    return stream;
  }
  int Times(PlayState state) const { return static_cast<int>(std::ranges::count(states, state)); }

  AnyWorld world;
  std::vector<PlayState> states;
  std::unique_ptr<MediaPlayer> player = world.media.NewPlayer("player", *this);
};

using Streams = testing::Types<VirtualStreams, RealStreams>;
TYPED_TEST_SUITE(LiveStreamContractTest, Streams);

TYPED_TEST(LiveStreamContractTest, ALiveStreamPlaysAndHasNoDuration) {
  this->player->SetTakesLiveUpAgain(true);
  this->player->Open(this->world.Live());
  EXPECT_EQ(this->player->Status(), "Connecting...");
  ASSERT_TRUE(this->Reaches(PlayState::kPlaying));
  this->world.Pass(300ms);
  EXPECT_EQ(this->player->Duration(), 0);
}

TYPED_TEST(LiveStreamContractTest, WithoutThatALiveStreamIsAsLongAsWhatHasComeOfIt) {
  this->player->Open(this->world.Live());
  ASSERT_TRUE(this->Reaches(PlayState::kPlaying));
  EXPECT_TRUE(this->world.Until([this] { return this->player->Duration() > 1; }));
}

TYPED_TEST(LiveStreamContractTest, ASourceThatTakesTheQuestionAndNeverAnswersHoldsNothingUp) {
  const std::string silent = this->world.Silent();
  this->player->SetTakesLiveUpAgain(true);
  this->player->Open(silent);
  this->world.Pass(300ms);
  EXPECT_EQ(this->player->Status(), "Connecting...");
  this->player->SetPosition(5);
  this->player->SetMute(true);
  this->player->Pause();
  this->player->Play();
  this->player->Stop();
  EXPECT_EQ(this->player->State(), PlayState::kStopped);
  this->player->Open(silent);
  this->world.Pass(300ms);
  this->player->Open(this->world.Live());
  EXPECT_TRUE(this->Reaches(PlayState::kPlaying)) << "the next item need not wait for it";
  this->player->Open(silent);
  this->world.Pass(300ms);
  this->player.reset();
}

TYPED_TEST(LiveStreamContractTest, AStreamThatGivesNothingMoreIsBuffering) {
  const std::string stream = this->world.Live();
  this->player->Open(stream);
  ASSERT_TRUE(this->Reaches(PlayState::kPlaying));
  this->world.StandStill(stream);
  ASSERT_TRUE(this->Reaches(PlayState::kBuffering));
  EXPECT_EQ(this->player->Status(), "Buffering");
}

TYPED_TEST(LiveStreamContractTest, ABrokenStreamIsTakenUpAgainWhenItIsThereAgain) {
  const std::string stream = this->OnAir();
  this->world.Break(stream);
  ASSERT_TRUE(this->Reaches(PlayState::kReady));
  EXPECT_EQ(this->player->Status(), "Cannot be played");
  this->world.Pass(1500ms);  // an attempt that fails, too
  this->world.Mend(stream);
  EXPECT_TRUE(this->Reaches(PlayState::kPlaying));
  EXPECT_EQ(this->Times(PlayState::kMediaEnded), 0);
  EXPECT_EQ(this->player->Duration(), 0);
}

TYPED_TEST(LiveStreamContractTest, AStreamThatStandsStillForTooLongIsTakenUpAgain) {
  const std::string stream = this->OnAir();
  this->world.StandStill(stream);
  ASSERT_TRUE(this->Reaches(PlayState::kBuffering));
  ASSERT_TRUE(this->Reaches(PlayState::kReady));
  EXPECT_TRUE(this->Reaches(PlayState::kPlaying));
}

TYPED_TEST(LiveStreamContractTest, AStreamThatCannotBeHadIsTriedAgain) {
  const std::string stream = this->world.Live();
  this->world.Break(stream);
  this->player->SetTakesLiveUpAgain(true);
  this->player->Open(stream);
  ASSERT_TRUE(this->Reaches(PlayState::kReady));
  EXPECT_EQ(this->player->Status(), "Cannot be played");
  EXPECT_FALSE(this->player->IsOpen());
  this->world.Mend(stream);
  EXPECT_TRUE(this->Reaches(PlayState::kPlaying));
}

TYPED_TEST(LiveStreamContractTest, AStopEndsTheAttempts) {
  const std::string stream = this->OnAir();
  this->world.Break(stream);
  ASSERT_TRUE(this->Reaches(PlayState::kReady));
  this->player->Stop();
  EXPECT_EQ(this->player->State(), PlayState::kStopped);
  this->world.Mend(stream);
  this->world.Pass(2500ms);
  EXPECT_EQ(this->player->State(), PlayState::kStopped);
  EXPECT_EQ(this->Times(PlayState::kPlaying), 1);
}

TYPED_TEST(LiveStreamContractTest, AnotherItemEndsTheAttempts) {
  const std::string stream = this->OnAir();
  this->world.Break(stream);
  ASSERT_TRUE(this->Reaches(PlayState::kReady));
  this->world.Mend(stream);
  this->player->Open("");
  this->world.Pass(2500ms);
  EXPECT_EQ(this->player->State(), PlayState::kUndefined);
  EXPECT_EQ(this->Times(PlayState::kPlaying), 1);
}

TYPED_TEST(LiveStreamContractTest, APlayAskedForInThePauseStartsTheAttemptAtOnce) {
  const std::string stream = this->OnAir();
  this->world.Break(stream);
  ASSERT_TRUE(this->Reaches(PlayState::kReady));
  this->world.Mend(stream);
  this->player->Play();
  EXPECT_EQ(this->player->State(), PlayState::kTransitioning);
  EXPECT_TRUE(this->Reaches(PlayState::kPlaying));
}

TYPED_TEST(LiveStreamContractTest, AStreamIsNotTakenUpAgainUnlessThePlayerIsToldTo) {
  const std::string stream = this->world.Live();
  this->player->Open(stream);
  ASSERT_TRUE(this->Reaches(PlayState::kPlaying));
  this->world.Break(stream);
  ASSERT_TRUE(this->Reaches(PlayState::kMediaEnded));
  this->world.Mend(stream);
  this->world.Pass(1500ms);
  EXPECT_EQ(this->player->State(), PlayState::kMediaEnded);
}

TYPED_TEST(LiveStreamContractTest, TheEndOfAStreamThatHasOneIsAnEnd) {
  this->player->SetTakesLiveUpAgain(true);
  this->player->Open(this->world.Film(1));
  ASSERT_TRUE(this->Reaches(PlayState::kMediaEnded));
  this->world.Pass(1500ms);
  EXPECT_EQ(this->player->State(), PlayState::kMediaEnded);
  EXPECT_NEAR(this->player->Duration(), 1, 0.2);
}

TYPED_TEST(LiveStreamContractTest, AnAddressOfAnyOtherSchemeIsRefusedAtOnceAndForGood) {
  this->player->SetTakesLiveUpAgain(true);
  for (const char* address : {"ftp://127.0.0.1/a.mp4", "av://lavfi:testsrc", "memory://a", "edl://a", "smb://host/a",
                              "lavf://http://127.0.0.1/", "dvd://", "fd://0", "httpx://host/a", "javascript://a"}) {
    this->player->Open(address);
    EXPECT_EQ(this->player->State(), PlayState::kReady) << address;
    EXPECT_EQ(this->player->Status(), "Cannot be played") << address;
    this->world.Pass(50ms);
    EXPECT_EQ(this->player->State(), PlayState::kReady) << address;
  }
  this->world.Pass(1500ms);
  EXPECT_EQ(this->Times(PlayState::kTransitioning), 0);
}

TYPED_TEST(LiveStreamContractTest, AFileIsPlayedByItsAddressToo) {
  const std::string clip = this->world.Clip("by-address.mp4", 5);
  for (const char* scheme : {"file://", "FILE://"}) {
    this->player->Open(scheme + clip);
    EXPECT_TRUE(this->Reaches(PlayState::kPlaying)) << scheme;
  }
  this->player->Open("file://" + this->world.Absent());
  EXPECT_EQ(this->player->State(), PlayState::kReady);
}

TYPED_TEST(LiveStreamContractTest, TheSchemeOfAStreamMayBeInCapitals) {
  const std::string stream = this->world.Live();
  this->player->Open("HTTP" + stream.substr(4));
  EXPECT_TRUE(this->Reaches(PlayState::kPlaying));
}

TEST(SourcesTest, TheSchemesThatPlayAreTheseAlone) {
  for (const char* scheme : {"http", "https", "rtsp", "rtmp", "mms", "rtp", "udp", "srt", "RTSP"}) {
    EXPECT_EQ(SourceOf(std::string(scheme) + "://host/a"), MediaSource::kStream) << scheme;
  }
  for (const char* scheme : {"ftp", "rtsps", "tcp", "httpproxy", "concat", "data", "subfile"}) {
    EXPECT_EQ(SourceOf(std::string(scheme) + "://host/a"), MediaSource::kRefused) << scheme;
  }
  EXPECT_EQ(SourceOf("file:///a"), MediaSource::kFileAddress);
  for (const char* path : {"", "/a", "C:\\a", "data:text"}) EXPECT_EQ(SourceOf(path), MediaSource::kPath) << path;
}

class TimedStates : public MediaListener {
 public:
  explicit TimedStates(SimTime& time) : time_(time) {}
  void PlayStateChanged(PlayState state) override {
    if (state == PlayState::kTransitioning)
      attempts.push_back(std::chrono::floor<std::chrono::seconds>(time_.Steady()));
  }
  void MediaChanged() override {}
  std::vector<std::chrono::seconds> attempts;

 private:
  SimTime& time_;
};

TEST(LivePausesTest, ThePausesGrowToThirtySecondsAndBeginAnewOnceItPlays) {
  SimWorld sim;
  sim.media.openingTime = 1ms;
  TimedStates heard(sim.time);
  const auto player = sim.media.NewPlayer("player", heard);
  player->SetTakesLiveUpAgain(true);
  sim.media.SetDuration("http://host/live", 0);
  sim.media.Break("http://host/live");
  player->Open("http://host/live");
  sim.time.Advance(125s);
  EXPECT_EQ(heard.attempts, (std::vector<std::chrono::seconds>{0s, 1s, 3s, 7s, 15s, 31s, 61s, 91s, 121s}));
  sim.media.Mend("http://host/live");
  sim.time.Advance(30s);
  ASSERT_EQ(player->State(), PlayState::kPlaying);
  sim.media.Break("http://host/live");
  heard.attempts.clear();
  sim.time.Advance(4s);
  EXPECT_EQ(heard.attempts, (std::vector<std::chrono::seconds>{156s, 158s}));
}

TEST(LivePausesTest, AnAttemptThatNeverAnswersIsGivenUpAndMadeAgain) {
  SimWorld sim;
  sim.media.openingTime = std::chrono::hours(1);
  TimedStates heard(sim.time);
  const auto player = sim.media.NewPlayer("player", heard);
  player->SetTakesLiveUpAgain(true);
  player->Open("http://host/live");
  sim.time.Advance(60s);
  EXPECT_EQ(heard.attempts, (std::vector<std::chrono::seconds>{0s, 26s, 53s}));
}

}  // namespace
