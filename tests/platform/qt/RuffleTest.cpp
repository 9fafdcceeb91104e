#include <algorithm>
#include <vector>

#include "platform/qt/flash/QtFlash.h"
#include "platform/swf/Actions.h"
#include "platform/swf/Bytes.h"
#include "tests/platform/qt/Processes.h"
#include "tests/platform/qt/SeenPictures.h"
#include "tests/platform/qt/Worlds.h"

// What the real player does with real movies.

namespace {

using namespace std::chrono_literals;
using namespace test_movies;

std::string Background(unsigned red, unsigned green, unsigned blue) {
  return swf::WriteTag(swf::kSetBackgroundColor, swf::ByteWriter().U8(red).U8(green).U8(blue).Bytes());
}

// An action that never ends: a jump to itself.
std::string Endless() { return swf::DoActionTag(std::string("\x99\x02\0\xFB\xFF", 5)); }

std::string Stop() { return swf::DoActionTag("\x07"); }

std::string Shows(int count) {
  std::string tags;
  for (int i = 0; i < count; ++i) tags += Show();
  return tags;
}

// A green rectangle in the middle of the stage, there in every other frame.
std::string Blinking() {
  const std::string_view shape(
      "\x01\x00\x78\x7D\x04\x65\x00\xFA\x0D\xAC\x00\x01\x00\x00\xFF\x00\xFF\x00\x10\x15\x8F\xA0\x7D\x1F\x2D\xAC\x00\x01"
      "\xE4\x00\x05\xDC\x3C\xC9\x50\x00\x07\x90\x00\x28\x90\x00",
      42);
  return Background(255, 0, 0) + swf::WriteTag(32, std::string(shape)) + Place(1, 1) + Show() +
         swf::WriteTag(28, swf::ByteWriter().U8(1).U8(0).Bytes()) + Show();
}

constexpr char kSound[] = "audio.mojom.AudioService";

class Seen : public FlashListener, public SeenPictures {
 public:
  Seen(FlashEngine& flash, QSize size)
      : surface(flash.NewSurface("seen", *this)), source(dynamic_cast<ShowsFrames&>(*surface).Frames()) {
    Watch(source, size);
  }
  void FrameShown(int frame) override { frames.push_back(frame); }
  // Pixels that differ from the middle of the left edge.
  int Marks() const {
    int marks = 0;
    for (int y = 0; y < picture.height(); ++y) {
      for (int x = 0; x < picture.width(); ++x)
        marks += picture.pixel(x, y) != picture.pixel(0, picture.height() / 2) ? 1 : 0;
    }
    return marks;
  }
  std::size_t Pictures() const { return middles.size(); }
  bool WasEverBlank() const {
    return std::ranges::any_of(middles, [](const QColor& colour) { return colour.alpha() < 250; });
  }

  std::unique_ptr<FlashSurface> surface;
  FrameSource& source;
  std::vector<int> frames;
};

class RuffleTest : public testing::Test {
 protected:
  std::string File(const std::string& name, const std::string& tags, const Shape& shape = {}) {
    return test_media::Text(name, Plain(tags + End(), shape));
  }
  std::unique_ptr<Seen> Opaque(QSize size = {200, 100}) {
    auto seen = std::make_unique<Seen>(world.world.flash, size);
    seen->surface->SetLooks({FlashLooks::Back::kOpaque, FlashLooks::Fit::kFill, true});
    return seen;
  }

  RealWorld world;
};

TEST_F(RuffleTest, NoBrowserRunsBeforeTheFirstMovieAndNoneAfterTheLastSurface) {
  const std::string movie = File("first.swf", Shows(3));
  {
    RealWorld own;
    Seen seen(own.world.flash, {50, 50});
    seen.surface->Put(test_media::Picture("still.png", Qt::green, {10, 10}));
    EXPECT_TRUE(seen.Shows(Qt::green));
    EXPECT_TRUE(ProcessesWith(kBrowser).empty());
    seen.surface->Put(movie);
    ASSERT_TRUE(Until([&] { return seen.frames.size() > 3; }));
    EXPECT_FALSE(ProcessesWith(kBrowser).empty());
  }
  EXPECT_TRUE(Until([] { return ProcessesWith(kBrowser).empty(); }));
}

TEST_F(RuffleTest, OnlyAMovieWithSoundsHasAProcessForThem) {
  Seen seen(world.world.flash, {60, 60});
  seen.surface->Put(File("silent.swf", Shows(3)));
  ASSERT_TRUE(Until([&] { return seen.frames.size() > 30; }));
  EXPECT_TRUE(ProcessesWith(kSound).empty());
  constexpr char kUnpacked16Bits = 0x3e;  // at 44,100 a second, for one ear
  std::string sound("\1\0 \4\0\0\0abcdefgh", 15);
  sound[2] = kUnpacked16Bits;
  seen.surface->Put(File("heard.swf", swf::WriteTag(swf::kDefineSound, sound) + Shows(3)));
  EXPECT_TRUE(Until([&] { return !ProcessesWith(kSound).empty(); }));
}

TEST_F(RuffleTest, AMovieIsSeenInItsOwnBackgroundOrWithNothingBehind) {
  const auto opaque = Opaque();
  opaque->surface->Put(File("red.swf", Background(255, 0, 0) + Shows(2)));
  EXPECT_TRUE(opaque->Shows(QColor(255, 0, 0)));
  Seen seeThrough(world.world.flash, {60, 60});
  seeThrough.surface->Put(File("red.swf", Background(255, 0, 0) + Shows(2)));
  ASSERT_TRUE(Until([&] { return !seeThrough.frames.empty() && seeThrough.Pictures() > 0; }));
  EXPECT_EQ(seeThrough.picture.pixelColor(30, 30).alpha(), 0);
}

TEST_F(RuffleTest, OneMovieFollowsTheOtherWithoutABlankMoment) {
  const auto seen = Opaque();
  const std::string red = File("a.swf", Background(255, 0, 0) + Shows(9));
  const std::string blue = File("b.swf", Background(0, 0, 255) + Shows(9));
  seen->surface->Put(red);
  ASSERT_TRUE(seen->Shows(QColor(255, 0, 0)));
  seen->middles.clear();
  for (int i = 0; i < 6; ++i) {
    seen->surface->Put(i % 2 == 0 ? blue : red);
    ASSERT_TRUE(seen->Shows(i % 2 == 0 ? QColor(0, 0, 255) : QColor(255, 0, 0)));
  }
  EXPECT_FALSE(seen->WasEverBlank());
}

TEST_F(RuffleTest, TheOldMovieStaysUntilTheNewOneIsThere) {
  const auto seen = Opaque();
  seen->surface->Put(File("a.swf", Background(255, 0, 0) + Shows(9)));
  ASSERT_TRUE(seen->Shows(QColor(255, 0, 0)));
  seen->surface->Put(test_media::Text("damaged.swf", "CWS, but no movie follows"));
  Pass(500ms);
  EXPECT_TRUE(seen->Shows(QColor(255, 0, 0)));
  seen->surface->Put("");
  EXPECT_TRUE(Until([&] { return seen->picture.isNull() || seen->picture.pixelColor(100, 50).alpha() == 0; }));
}

// What follows takes something from a movie that is not there: it gives neither a first frame nor an error.
TEST_F(RuffleTest, TheOldMovieStandsStillWhileTheNextOneComesAndGoesOnWhereNoneDoes) {
  const auto seen = Opaque();
  seen->surface->Put(File("changes.swf", Blinking(), {.frameCount = 2}));
  ASSERT_TRUE(Until([&] { return seen->Pictures() > 5; }));
  const std::string_view nobody("missing.swf\0\1\0\1\0\1\0x\0", 20);
  seen->surface->Put(File("waits.swf", Background(0, 0, 255) + swf::WriteTag(71, std::string(nobody)) + Shows(20)));
  Pass(500ms);
  const std::size_t pictures = seen->Pictures();
  Pass(500ms);
  EXPECT_EQ(seen->Pictures(), pictures);
  EXPECT_TRUE(Until([&] { return seen->Pictures() > pictures + 5; }))
      << "nothing came, and what was there stands for good";
}

TEST_F(RuffleTest, AVariableReachesTheTextOfAMovieOfEveryVersion) {
  for (const int version : {4, 5, 6, 7, 8, 9, 10}) {
    SCOPED_TRACE(version);
    const auto seen = Opaque({300, 120});
    const std::string field = Background(0, 0, 64) + TextField(5, "text1") + Place(5, 1);
    seen->surface->Put(File("text" + std::to_string(version) + ".swf", field + Shows(2),
                            {.version = version, .width = 100, .height = 40}));
    seen->surface->SetVariable("_levelO.text1", "Hello Orlin");
    EXPECT_TRUE(Until([&] { return seen->Marks() > 100; })) << "set before the movie is up";
    seen->surface->SetVariable("_levelO.text1", "");
    EXPECT_TRUE(Until([&] { return seen->Marks() == 0; })) << "an empty text";
    seen->surface->SetVariable("text1", "Straße");
    EXPECT_TRUE(Until([&] { return seen->Marks() > 100; })) << "set later";
  }
}

TEST_F(RuffleTest, TextsThatThePlayerCannotJoinAreDrawnInTheFieldsPlace) {
  const auto seen = Opaque({300, 120});
  const std::string field = Background(0, 0, 64) + TextField(5, "text1") + Place(5, 1);
  seen->surface->Put(File("scripts.swf", field + Shows(4), {.width = 100, .height = 40}));
  for (const char* text : {"বাংলা", "سلام"}) {
    seen->surface->SetVariable("text1", text);
    EXPECT_TRUE(Until([&] { return seen->Marks() > 100; })) << text;
    seen->surface->SetVariable("text1", "");
    EXPECT_TRUE(Until([&] { return seen->Marks() == 0; })) << text;
  }
}

TEST_F(RuffleTest, AMovieIsToldHowWideTheTextOfItsFieldIs) {
  const auto seen = Opaque({300, 120});
  // Blanks show nothing, and are as wide as they are; the second field shows what is told of the first.
  const std::string fields = TextField(5, "text1") + TextField(6, "text1_width") + Place(5, 1) + Place(6, 2);
  seen->surface->Put(File("width.swf", Background(0, 0, 64) + fields + Shows(2), {.width = 100, .height = 40}));
  int before = 0;
  for (const int blanks : {1, 12, 120}) {
    seen->surface->SetVariable("text1", std::string(static_cast<std::size_t>(blanks), ' '));
    EXPECT_TRUE(Until([&] { return seen->Marks() > before; })) << "a digit more for " << blanks;
    before = seen->Marks() + 40;
  }
}

TEST_F(RuffleTest, AMovieThatStopsTellsNoMoreFrames) {
  Seen seen(world.world.flash, {60, 60});
  seen.surface->Put(File("stops.swf", Show() + Show() + Stop() + Shows(5)));
  ASSERT_TRUE(Until([&] { return seen.frames.size() == 3; }));
  Pass(1s);
  EXPECT_EQ(seen.frames, (std::vector<int>{1, 2, 3}));
}

TEST_F(RuffleTest, AMovieOfActionScript3TellsItsFrames) {
  Seen seen(world.world.flash, {60, 60});
  seen.surface->Put(File("script3.swf", Script3Attributes() + Shows(4), {.version = 10, .frameCount = 4}));
  ASSERT_TRUE(Until([&] { return seen.frames.size() >= 9; }));
  for (std::size_t i = 0; i < 9; ++i) EXPECT_EQ(seen.frames[i], static_cast<int>(i % 4) + 1);
}

TEST_F(RuffleTest, PackedMoviesPlay) {
  for (const auto& [name, pack] : {std::pair("zlib.swf", &WithZlib), std::pair("lzma.swf", &WithLzma)}) {
    Seen seen(world.world.flash, {60, 60});
    seen.surface->Put(test_media::Text(name, pack(Plain(Shows(4) + End(), {.version = 13, .frameCount = 4}))));
    EXPECT_TRUE(Until([&] { return seen.frames.size() >= 9; })) << name;
  }
}

TEST_F(RuffleTest, AnEndlessScriptIsCutOffAndAllOtherMoviesGoOn) {
  Seen other(world.world.flash, {60, 60});
  other.surface->Put(File("other.swf", Shows(1000), {.frameCount = 1000}));
  ASSERT_TRUE(Until([&] { return !other.frames.empty(); }));
  Seen endless(world.world.flash, {60, 60});
  endless.surface->Put(File("endless.swf", Shows(4) + Endless() + Shows(4), {.frameCount = 8}));
  ASSERT_TRUE(Until([&] { return endless.frames.size() >= 5; }));
  const std::size_t before = other.frames.size();
  EXPECT_TRUE(Until([&] { return other.frames.size() > before + 50; }));
  // Its scripts are off now, and it goes on: counted by the clock.
  EXPECT_TRUE(Until([&] { return endless.frames.size() >= 12; }));
}

TEST_F(RuffleTest, AllMoviesAreBackWhenTheRendererIsKilled) {
  const auto seen = Opaque();
  seen->surface->Put(File("back.swf", Background(0, 255, 0) + Shows(200), {.frameCount = 200}));
  ASSERT_TRUE(seen->Shows(QColor(0, 255, 0)));
  Pass(3500ms);
  KillTheRenderer();
  seen->frames.clear();
  ASSERT_TRUE(Until([&] { return std::ranges::find(seen->frames, 1) != seen->frames.end(); }));
  EXPECT_EQ(seen->picture.pixelColor(100, 50), QColor(0, 255, 0)) << "the last picture stays meanwhile";
}

TEST_F(RuffleTest, TheProgramThatPlaysMoviesComesBackWhenItIsKilled) {
  const auto seen = Opaque();
  seen->surface->Put(File("whole.swf", Background(0, 255, 0) + Shows(200), {.frameCount = 200}));
  ASSERT_TRUE(seen->Shows(QColor(0, 255, 0)));
  KillAll("corvanta-movies");
  seen->frames.clear();
  ASSERT_TRUE(Until([&] { return std::ranges::find(seen->frames, 1) != seen->frames.end(); }));
}

TEST_F(RuffleTest, AMovieThatBringsTheRendererDownTwiceStaysOutAndTheOthersPlay) {
  Seen good(world.world.flash, {60, 60});
  good.surface->Put(File("good.swf", Shows(500), {.frameCount = 500}));
  ASSERT_TRUE(Until([&] { return !good.frames.empty(); }));
  Seen bad(world.world.flash, {60, 60});
  bad.surface->Put(File("bad.swf", Blinking(), {.frameCount = 2}));
  for (int i = 0; i < 2; ++i) {
    ASSERT_TRUE(Until([&] { return !bad.frames.empty(); }));
    KillTheRenderer();
    Pass(100ms);
    bad.frames.clear();
    good.frames.clear();
    ASSERT_TRUE(Until([&] { return good.frames.size() > 3; }));
  }
  Pass(3s);
  const std::size_t pictures = bad.Pictures();
  bad.frames.clear();
  EXPECT_TRUE(Until([&] { return bad.frames.size() > 25; })) << "the clock counts it";
  EXPECT_EQ(bad.Pictures(), pictures);
  bad.surface->Put(test_media::PathOf("bad.swf"));
  EXPECT_TRUE(Until([&] { return bad.Pictures() > pictures + 3; })) << "until it is put again";
}

// A clip that holds itself takes the player's whole stack, in every tick anew.
TEST_F(RuffleTest, AMovieThatTakesThePlayersWholeStackLeavesAllOthersPlayingAndIsCountedByTheClock) {
  Seen first(world.world.flash, {60, 60});
  first.surface->Put(File("first.swf", Shows(5000), {.frameCount = 5000}));
  ASSERT_TRUE(Until([&] { return !first.frames.empty(); }));
  Seen bad(world.world.flash, {60, 60});
  const std::string itself = Sprite(1, Place(1, 1));
  bad.surface->Put(File("bad.swf", itself + Shows(10) + Place(1, 1) + Shows(30), {.frameCount = 40}));
  ASSERT_TRUE(Until([&] { return bad.frames.size() > 60; })) << "a rotation that waits for its end goes on";
  Seen next(world.world.flash, {60, 60});
  next.surface->Put(File("next.swf", Shows(5000), {.frameCount = 5000}));
  EXPECT_TRUE(Until([&] { return next.frames.size() > 50; }));
  for (std::size_t i = 0; i < first.frames.size(); ++i) ASSERT_EQ(first.frames[i], static_cast<int>(i) + 1);
  bad.surface->Put(File("good.swf", Background(0, 255, 0) + Shows(9), {.frameCount = 9}));
  bad.frames.clear();
  EXPECT_TRUE(Until([&] { return bad.frames.size() > 9; })) << "another movie plays in its place";
}

TEST_F(RuffleTest, HundredsOfChangesArePlayedAndTheLastPictureNeverGoes) {
  const auto seen = Opaque();
  const std::string red = File("a.swf", Background(255, 0, 0) + Shows(3));
  seen->surface->Put(red);
  ASSERT_TRUE(seen->Shows(QColor(255, 0, 0)));
  seen->middles.clear();
  for (int i = 0; i < 320; ++i) {
    seen->surface->Put(red);
    seen->frames.clear();
    ASSERT_TRUE(Until([&] { return !seen->frames.empty(); })) << i;
  }
  EXPECT_FALSE(seen->WasEverBlank());
}

// Each plays in the page that grows least with it, and goes over to the other one with its new size.
TEST_F(RuffleTest, WideAndHighMoviesPlayBesideEachOtherAndChangeTheirShapes) {
  const std::string red = File("a.swf", Background(255, 0, 0) + Shows(9));
  const std::string blue = File("b.swf", Background(0, 0, 255) + Shows(9));
  const auto strip = Opaque({1900, 60});
  const auto column = Opaque({60, 900});
  const auto sticker = Opaque({200, 100});
  strip->surface->Put(red);
  column->surface->Put(blue);
  sticker->surface->Put(red);
  for (const QSize size : {QSize(60, 900), QSize(1900, 60)}) {
    EXPECT_TRUE(strip->Shows(QColor(255, 0, 0)));
    EXPECT_TRUE(column->Shows(QColor(0, 0, 255)));
    EXPECT_TRUE(sticker->Shows(QColor(255, 0, 0)));
    strip->source.SetTarget(size);
    column->source.SetTarget(size.transposed());
    EXPECT_TRUE(Until([&] { return strip->picture.size() == size && column->picture.size() == size.transposed(); }));
  }
  EXPECT_TRUE(strip->Shows(QColor(255, 0, 0)));
  EXPECT_TRUE(column->Shows(QColor(0, 0, 255)));
}

TEST_F(RuffleTest, WhatNobodySeesGoesOnCounting) {
  Seen unseen(world.world.flash, {});
  unseen.surface->Put(File("unseen.swf", Shows(10), {.frameCount = 10}));
  ASSERT_TRUE(Until([&] { return unseen.frames.size() >= 25; }));
  for (std::size_t i = 0; i < unseen.frames.size(); ++i) EXPECT_EQ(unseen.frames[i], static_cast<int>(i % 10) + 1);
  EXPECT_EQ(unseen.Pictures(), 0U);
}

// The column on the air and the preview of its desk, which is opened in the middle of a movie.
TEST_F(RuffleTest, WhatBecomesSeenBesideAMovieThatFillsKeepsItsProportions) {
  using Looks = FlashLooks;
  Seen column(world.world.flash, {50, 200});
  Seen preview(world.world.flash, QSize());
  column.surface->SetLooks({.back = Looks::Back::kOpaque});
  preview.surface->SetLooks({.back = Looks::Back::kOpaque, .fit = Looks::Fit::kKeepProportions});
  const std::string path = File("wide.swf", Blinking(), {.frameCount = 2});
  preview.surface->Put(path);
  column.surface->Put(path);
  ASSERT_TRUE(Until([&] { return column.Pictures() > 2; }));
  preview.source.SetTarget({100, 100});
  ASSERT_TRUE(Until([&] { return preview.Pictures() > 2; }));
  EXPECT_EQ(preview.picture.pixelColor(2, 50), QColor(255, 0, 0));
  EXPECT_EQ(preview.picture.pixelColor(50, 2).alpha(), 0);
}

TEST_F(RuffleTest, MoviesAtTheLimitsOfTheFormatHarmNobody) {
  Seen good(world.world.flash, {60, 60});
  good.surface->Put(File("good.swf", Shows(500), {.frameCount = 500}));
  ASSERT_TRUE(Until([&] { return !good.frames.empty(); }));
  const std::string bomb = WithZlib(Plain(swf::WriteTag(999, std::string(200 << 20, '\0')) + Shows(2)));
  const std::string cut = Plain(Shows(20)).substr(0, 40);
  std::string harmed = WithZlib(Plain(swf::WriteTag(999, std::string(5000, 'x')) + Shows(9)));
  harmed[harmed.size() / 2] ^= 0x55;
  int number = 0;
  for (const std::string& bytes :
       {std::string(), cut, harmed, bomb, Plain(Shows(2), {.version = 0}), Plain(Shows(2), {.version = 255}),
        Plain(Shows(2), {.frameCount = 0}), Plain(Shows(2), {.frameCount = 65535})}) {
    Seen odd(world.world.flash, {60, 60});
    odd.surface->Put(test_media::Text("odd" + std::to_string(++number) + ".swf", bytes));
    Pass(300ms);
  }
  good.frames.clear();
  EXPECT_TRUE(Until([&] { return good.frames.size() > 10; }));
}

}  // namespace
