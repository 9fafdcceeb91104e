#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QElapsedTimer>
#include <QTcpServer>
#include <functional>
#include <memory>
#include <vector>

#include "platform/qt/frames/FrameSource.h"
#include "platform/qt/media/MpvEngine.h"
#include "platform/qt/media/MpvRenderer.h"
#include "tests/platform/qt/TestMedia.h"

namespace {

using namespace std::chrono_literals;

class Heard : public MediaListener {
 public:
  void PlayStateChanged(PlayState state) override { states.push_back(state); }
  void MediaChanged() override { ++opened; }
  int Times(PlayState state) const { return static_cast<int>(std::ranges::count(states, state)); }

  std::vector<PlayState> states;
  int opened = 0;
};

class MpvPlayerTest : public testing::Test {
 protected:
  bool Reaches(PlayState state) {
    return Until([&] { return player->State() == state && (heard.states.empty() || heard.states.back() == state); });
  }
  // The colour at a place of the picture once it has become what is expected; otherwise what it is in the end.
  QColor ColourAt(QPoint place, const QColor& expected) {
    QColor seen;
    Until([&] {
      if (const auto frame = Source().Take(); frame && !frame->isNull()) seen = frame->pixelColor(place);
      return Near(seen, expected);
    });
    return seen;
  }
  static bool Near(const QColor& one, const QColor& other) {
    return one.isValid() && std::abs(one.red() - other.red()) < 24 && std::abs(one.green() - other.green()) < 24 &&
           std::abs(one.blue() - other.blue()) < 24;
  }
  FrameSource& Source() { return dynamic_cast<ShowsFrames&>(*player).Frames(); }

  Heard heard;
  MpvEngine engine;
  std::unique_ptr<MediaPlayer> player = engine.NewPlayer("player", heard);
};

TEST_F(MpvPlayerTest, AToneAlonePlaysAndEndsLikeAnyOtherItem) {
  player->Open(test_media::Tone("tone.wav", 0.4));
  EXPECT_TRUE(Reaches(PlayState::kMediaEnded));
  EXPECT_EQ(heard.Times(PlayState::kPlaying), 1);
}

TEST_F(MpvPlayerTest, APictureStandsForFiveSecondsAndEnds) {
  Source().SetTarget({64, 64});
  const std::string picture = test_media::Picture("picture.jpg", Qt::green, {64, 64});
  QElapsedTimer standing;
  standing.start();
  player->Open(picture);
  EXPECT_TRUE(Near(ColourAt({32, 32}, Qt::green), Qt::green));
  ASSERT_TRUE(Reaches(PlayState::kMediaEnded));
  EXPECT_GT(standing.elapsed(), 4900);
}

TEST_F(MpvPlayerTest, TheEndOfAFormerItemIsNotTakenForThatOfTheNext) {
  const std::string brief = test_media::Clip("brief.mp4", Qt::red, 0.2);
  const std::string lasting = test_media::Clip("lasting.mp4", Qt::blue, 20);
  for (int i = 0; i < 20; ++i) {
    player->Open(brief);
    Pass(std::chrono::milliseconds(20 * i));
    player->Open(lasting);
    heard = {};
    ASSERT_TRUE(Until([&] { return heard.opened == 1; }));
    EXPECT_EQ(heard.Times(PlayState::kMediaEnded), 0);
    EXPECT_NEAR(player->Duration(), 20, 0.2);
  }
}

TEST_F(MpvPlayerTest, AnEndThatIsNotHeardYetWhenTheNextItemIsOpenedIsNeverHeard) {
  const std::string lasting = test_media::Clip("lasting.mp4", Qt::blue, 20);
  player->Open(test_media::Clip("brief.mp4", Qt::red, 0.2));
  QObject queue;
  // Stands in the queue before whatever the player's next event brings.
  std::function<void()> lookAgain = [&] {
    if (player->State() == PlayState::kMediaEnded) {
      player->Open(lasting);
    } else {
      QMetaObject::invokeMethod(&queue, lookAgain, Qt::QueuedConnection);
    }
  };
  lookAgain();
  ASSERT_TRUE(Until([&] { return player->State() == PlayState::kPlaying && player->Duration() > 10; }));
  EXPECT_EQ(heard.Times(PlayState::kMediaEnded), 0);
}

TEST_F(MpvPlayerTest, WhatIsNoMediaRaisesNoEnd) {
  const std::string clip = test_media::Clip("whole.mp4", Qt::red, 2);
  const std::vector<std::string> files{
      test_media::PathOf("absent.mp4"),
      test_media::PathOf(""),
      test_media::Text("empty.mp4", ""),
      test_media::Text("text.mp4", "Nothing to see here.\nAnd nothing to hear.\n"),
      test_media::Text("text.txt", "Nothing to see here.\nAnd nothing to hear.\n"),
      test_media::Text("words.srt", "1\n00:00:01,000 --> 00:00:02,000\nWords alone.\n\n"),
      test_media::FirstPart("headless.mp4", clip, 0.3),
  };
  for (const std::string& file : files) {
    player->Open(file);
    EXPECT_TRUE(Reaches(PlayState::kReady)) << file;
    Pass(200ms);
    EXPECT_FALSE(player->IsOpen()) << file;
  }
  EXPECT_EQ(heard.Times(PlayState::kMediaEnded), 0);
  EXPECT_EQ(heard.opened, 0);
  player->Open(clip);
  EXPECT_TRUE(Reaches(PlayState::kPlaying)) << "a good item after bad ones";
}

TEST_F(MpvPlayerTest, APipeIsRefusedAtOnce) {
  const std::string pipe = test_media::PathOf("pipe.mp4");
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  player->Open(test_media::Clip("before.mp4", Qt::red, 5));
  ASSERT_TRUE(Reaches(PlayState::kPlaying));
  for (const std::string& name : {pipe, "file://" + pipe}) {
    player->Open(name);
    EXPECT_EQ(player->State(), PlayState::kReady);
  }
  Pass(200ms);
  EXPECT_EQ(heard.Times(PlayState::kMediaEnded), 0);
}

TEST_F(MpvPlayerTest, AFileCutShortPlaysWhatItHasAndEnds) {
  const std::string whole = test_media::Clip("whole.mkv", Qt::red, 4, {640, 360});
  player->Open(test_media::FirstPart("cut.mkv", whole, 0.4));
  EXPECT_TRUE(Reaches(PlayState::kMediaEnded));
}

TEST_F(MpvPlayerTest, NamesWithEverySignPlay) {
  for (const std::string name : {"100% a b.c.mp4", "-o.mp4", "Привет #1.mp4", "file:x.mp4", "a\\b.mp4"}) {
    player->Open(test_media::Clip(name, Qt::red, 1));
    EXPECT_TRUE(Until([&] { return player->IsOpen(); }, 5s)) << name;
  }
}

TEST_F(MpvPlayerTest, ThePictureIsRenderedAtTheSizeOfTheSurface) {
  Source().SetTarget({200, 200});
  player->SetStretchToFit(true);
  player->Open(test_media::Clip("sized.mp4", Qt::red, 10));
  EXPECT_TRUE(Near(ColourAt({100, 100}, Qt::red), Qt::red));
  EXPECT_TRUE(Near(ColourAt({100, 5}, Qt::black), Qt::black)) << "it keeps its proportions";
}

TEST_F(MpvPlayerTest, ASmallPictureIsScaledUpOnlyWhenStretched) {
  Source().SetTarget({320, 180});
  player->Open(test_media::Clip("small.mp4", Qt::red, 10, {160, 90}));
  ASSERT_TRUE(Near(ColourAt({160, 90}, Qt::red), Qt::red));
  EXPECT_TRUE(Near(ColourAt({10, 10}, Qt::black), Qt::black));
  player->SetStretchToFit(true);
  EXPECT_TRUE(Near(ColourAt({10, 10}, Qt::red), Qt::red));
}

TEST_F(MpvPlayerTest, ALargePictureIsAlwaysScaledDown) {
  Source().SetTarget({160, 90});
  player->Open(test_media::Clip("large.mp4", Qt::red, 10));
  EXPECT_TRUE(Near(ColourAt({80, 45}, Qt::red), Qt::red));
  EXPECT_TRUE(Near(ColourAt({2, 2}, Qt::red), Qt::red));
}

TEST_F(MpvPlayerTest, AnEndedItemLeavesBlack) {
  Source().SetTarget({64, 36});
  player->Open(test_media::Clip("black.mp4", Qt::red, 0.5));
  ASSERT_TRUE(Near(ColourAt({32, 18}, Qt::red), Qt::red));
  bool black = false;
  ASSERT_TRUE(Until([&] {
    if (const auto frame = Source().Take()) black = frame->isNull();
    return player->State() == PlayState::kMediaEnded && black;
  }));
  Pass(300ms);
  EXPECT_FALSE(Source().Take().has_value());
}

TEST_F(MpvPlayerTest, APausedPictureIsRenderedAnewForAnotherSize) {
  Source().SetTarget({64, 36});
  player->Open(test_media::Clip("resized.mp4", Qt::red, 10));
  ASSERT_TRUE(Near(ColourAt({32, 18}, Qt::red), Qt::red));
  player->Pause();
  ASSERT_TRUE(Reaches(PlayState::kPaused));
  Pass(200ms);
  Source().Take();
  Source().SetTarget({128, 72});
  EXPECT_TRUE(Near(ColourAt({100, 60}, Qt::red), Qt::red));
}

TEST_F(MpvPlayerTest, AnItemPlaysToItsEndWhileNobodyLooks) {
  Source().SetTarget({});
  player->Open(test_media::Clip("unseen.mp4", Qt::red, 2));
  ASSERT_TRUE(Reaches(PlayState::kPlaying));
  QElapsedTimer playing;
  playing.start();
  EXPECT_TRUE(Reaches(PlayState::kMediaEnded));
  EXPECT_LT(playing.elapsed(), 9000) << "each frame waited for somebody to fetch it";
}

TEST_F(MpvPlayerTest, APlayerMayGoInTheMidstOfAnItem) {
  for (int i = 0; i < 5; ++i) {
    const auto brief = engine.NewPlayer("player", heard);
    brief->Open(test_media::Clip("midst.mp4", Qt::red, 5));
    Pass(std::chrono::milliseconds(30 * i));
  }
}

TEST_F(MpvPlayerTest, AnAddressThatNeverAnswersHoldsUpNobody) {
  QTcpServer silent;  // takes the connection and says nothing
  ASSERT_TRUE(silent.listen(QHostAddress::LocalHost));
  QElapsedTimer call;
  call.start();
  player->Open("http://127.0.0.1:" + std::to_string(silent.serverPort()) + "/never.mp4");
  player->SetPosition(5);
  player->Pause();
  player->Play();
  EXPECT_EQ(player->State(), PlayState::kTransitioning);
  Pass(300ms);
  EXPECT_EQ(player->Status(), "Connecting...");
  player->Stop();
  player.reset();
  EXPECT_LT(call.elapsed(), 15000);
}

TEST_F(MpvPlayerTest, AMachineThatHasNoMemoryForPicturesSaysSoOnceAndPlaysOn) {
  Source().SetTarget({1 << 24, 1 << 22});  // more bytes than an address has
  testing::internal::CaptureStderr();
  player->Open(test_media::Clip("too large.mp4", Qt::red, 0.6));
  EXPECT_TRUE(Reaches(PlayState::kMediaEnded));
  const std::string said = testing::internal::GetCapturedStderr();  // the sound system has a word in it too
  const std::size_t first = said.find("player: There is no memory for pictures.\n");
  ASSERT_NE(first, std::string::npos) << said;
  EXPECT_EQ(said.find("player: ", first + 1), std::string::npos) << said;
}

TEST(MpvRendererTest, ARendererThatCannotStartSaysSoUnderThePlayersName) {
  const std::unique_ptr<mpv_handle, void (*)(mpv_handle*)> mpv(mpv_create(), mpv_terminate_destroy);
  mpv_set_option_string(mpv.get(), "vo", "libmpv");
  mpv_initialize(mpv.get());
  const MpvRenderer only("first", mpv.get(), std::make_shared<FrameExchange>());
  testing::internal::CaptureStderr();
  const MpvRenderer oneTooMany("frmPlayer.Player", mpv.get(), std::make_shared<FrameExchange>());
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "frmPlayer.Player: The renderer cannot start: there will be no pictures.\n");
}

}  // namespace
