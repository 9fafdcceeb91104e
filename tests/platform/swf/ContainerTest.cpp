#include <gtest/gtest.h>

#include "platform/swf/Container.h"
#include "tests/platform/swf/MovieWriter.h"

namespace {

using namespace test_movies;

constexpr std::size_t kEnough = 1 << 20;

std::string Sample(const Shape& shape = {}) { return Plain(Show() + Show() + Show() + End(), shape); }

TEST(ContainerTest, TheHeaderIsTheSameInEveryPacking) {
  for (const std::string& file : {Sample(), WithZlib(Sample()), WithLzma(Sample())}) {
    const auto header = swf::ReadHeader(file);
    ASSERT_TRUE(header) << file[0];
    EXPECT_EQ(header->version, 8);
    EXPECT_EQ(header->frameCount, 3);
    EXPECT_EQ(header->framesPerSecond, 25);
    EXPECT_EQ(header->width, 550 * 20);
    EXPECT_EQ(header->height, 400 * 20);
    EXPECT_EQ(swf::Unpacked(file, kEnough), Sample());
  }
}

TEST(ContainerTest, VersionsAndFrameCountsAtTheirLimitsAreReadAsTheyStand) {
  for (const int version : {0, 1, 255}) {
    for (const int frames : {0, 1, 0x8000, 65535}) {
      const auto header = swf::ReadHeader(Sample({.version = version, .frameCount = frames}));
      ASSERT_TRUE(header);
      EXPECT_EQ(header->version, version);
      EXPECT_EQ(header->frameCount, frames);
    }
  }
}

TEST(ContainerTest, WhatIsNoMovieHasNoHeader) {
  for (const std::string& file :
       {std::string(), std::string("FWS"), std::string("FWS\x08\x20\0\0\0", 8),
        std::string("This is a text, whatever its name says."), std::string(100, '\0'),
        std::string("CWS\x08\x20\0\0\0no zlib at all", 22), std::string("ZWS\x08\x20\0\0\0", 8)}) {
    EXPECT_FALSE(swf::ReadHeader(file));
    EXPECT_FALSE(swf::Unpacked(file, kEnough));
  }
}

TEST(ContainerTest, TheFirstBytesOfAFileAreEnoughForItsHeader) {
  std::string noise;
  for (unsigned i = 0, state = 1; i < 400'000; ++i)
    noise.push_back(static_cast<char>((state = state * 1103515245 + 12345) >> 16));
  const std::string movie = Plain(swf::WriteTag(999, noise) + Show() + End());
  for (const std::string& file : {movie, WithZlib(movie), WithLzma(movie)}) {
    EXPECT_TRUE(swf::ReadHeader(std::string_view(file).substr(0, swf::kHeaderBytes)));
  }
}

TEST(ContainerTest, ACutMovieGivesWhatIsThere) {
  std::string tags;
  for (int i = 0; i < 2000; ++i) tags += swf::WriteTag(999, std::to_string(i * 7919)) + Show();
  const std::string plain = Plain(tags + End());
  for (const std::string& file : {plain, WithZlib(plain), WithLzma(plain)}) {
    const auto half = swf::Unpacked(std::string_view(file).substr(0, file.size() / 2), kEnough);
    ASSERT_TRUE(half) << file[0];
    EXPECT_GT(half->size(), 100u);
    EXPECT_LT(half->size(), plain.size());
    EXPECT_TRUE(plain.substr(8).starts_with(half->substr(8)));
  }
}

TEST(ContainerTest, DamageInThePackedPartGivesWhatStandsBeforeIt) {
  std::string tags;
  for (int i = 0; i < 2000; ++i) tags += swf::WriteTag(999, std::to_string(i * 7919)) + Show();
  std::string file = WithZlib(Plain(tags + End()));
  for (std::size_t at = file.size() / 2; at < file.size() / 2 + 50; ++at) file[at] = '\xFF';
  EXPECT_TRUE(swf::Unpacked(file, kEnough));
}

TEST(ContainerTest, AMovieThatUnpacksToMoreThanIsAllowedIsRefused) {
  const std::string bomb = Plain(swf::WriteTag(999, std::string(64 << 20, '\0')) + End());
  for (const std::string& file : {WithZlib(bomb), WithLzma(bomb), bomb}) {
    EXPECT_TRUE(swf::ReadHeader(std::string_view(file).substr(0, swf::kHeaderBytes)));
    EXPECT_FALSE(swf::Unpacked(file, 32 << 20));
  }
}

TEST(ContainerTest, ADictionaryOfGigabytesIsNotMade) {
  std::string file = WithLzma(Sample());
  for (std::size_t at = 13; at < 17; ++at) file[at] = '\xFF';
  EXPECT_EQ(swf::Unpacked(file, kEnough), Sample());
}

TEST(ContainerTest, AWrongLengthInTheHeaderIsMended) {
  for (const char length : {'\0', '\x7F'}) {
    std::string file = Sample();
    file[4] = length;
    EXPECT_EQ(swf::Unpacked(file, kEnough), Sample());
  }
}

}  // namespace
