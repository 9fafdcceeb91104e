#include <gtest/gtest.h>

#include <algorithm>

#include "platform/swf/Actions.h"
#include "platform/swf/Bytes.h"
#include "platform/swf/Container.h"
#include "platform/swf/HelperMovie.h"
#include "platform/swf/MakeReporting.h"
#include "platform/swf/Placements.h"
#include "platform/swf/ReportClass.h"
#include "tests/platform/swf/MovieWriter.h"

namespace {

using namespace test_movies;

constexpr char kHelper[] = "station://helper.swf";

std::vector<swf::Tag> TagsOf(const std::string& movie) { return swf::ReadTags(movie, swf::ReadHeader(movie)->tagsAt); }

std::vector<int> CodesOf(const std::string& movie) {
  std::vector<int> codes;
  for (const swf::Tag& tag : TagsOf(movie)) codes.push_back(tag.code);
  return codes;
}

swf::ReportingMovie Made(const std::string& tags, const Shape& shape = {}) {
  return *swf::MakeReporting(Plain(tags, shape), kHelper);
}

// The actions of the frame, from 0.
std::string ActionsOf(const swf::ReportingMovie& movie, int frame) {
  for (const swf::Tag& tag : TagsOf(movie.bytes)) {
    if (tag.code == swf::kDoAction && frame-- == 0) return std::string(tag.body);
  }
  return {};
}

bool Has(std::string_view bytes, std::string_view part) { return bytes.find(part) != std::string_view::npos; }

TEST(MakeReportingTest, EachFrameTellsItsNumberBeforeAnythingElseHappensInIt) {
  const std::string own = swf::DoActionTag("");
  const auto movie = Made(own + Show() + own + Show() + Show() + End());
  EXPECT_EQ(movie.frames, 3);
  EXPECT_EQ(CodesOf(movie.bytes), (std::vector<int>{12, 12, 1, 12, 12, 1, 12, 1, 0}));
  EXPECT_TRUE(Has(ActionsOf(movie, 0), std::string("FSCommand:frame\0001\0", 18)));
  EXPECT_TRUE(Has(ActionsOf(movie, 2), std::string("FSCommand:frame\0002\0", 18)));
  EXPECT_TRUE(Has(ActionsOf(movie, 4), std::string("FSCommand:frame\0003\0", 18)));
}

TEST(MakeReportingTest, OnlyTheFirstFrameLoadsTheHelper) {
  const auto movie = Made(Show() + Show() + End());
  EXPECT_TRUE(Has(ActionsOf(movie, 0), kHelper));
  EXPECT_FALSE(Has(ActionsOf(movie, 1), kHelper));
}

TEST(MakeReportingTest, WhatMustStandFirstGoesOnStandingFirst) {
  const std::string head = swf::WriteTag(swf::kFileAttributes, std::string(4, '\0')) +
                           swf::WriteTag(swf::kMetadata, "about") + swf::WriteTag(swf::kSetBackgroundColor, "abc");
  const auto movie = Made(head + Show() + End());
  EXPECT_EQ(CodesOf(movie.bytes), (std::vector<int>{69, 77, 9, 12, 1, 0}));
}

TEST(MakeReportingTest, AMovieSoundsWithASoundInItOrInOneOfItsClips) {
  const std::string sound = swf::WriteTag(swf::kDefineSound, std::string(20, '\1'));
  const std::string stream = swf::WriteTag(swf::kSoundStreamBlock, "abcd");
  EXPECT_TRUE(Made(sound + Show() + End()).sounds);
  EXPECT_TRUE(Made(Show() + stream + Show() + End()).sounds);
  EXPECT_TRUE(Made(Sprite(1, stream + Show() + End()) + Show() + End()).sounds);
}

TEST(MakeReportingTest, AMovieWithoutSoundsIsSilentThoughItSaysHowTheyWouldSound) {
  constexpr int kSoundStreamHead2 = 45;
  const std::string head = swf::WriteTag(kSoundStreamHead2, std::string(4, '\0'));
  EXPECT_FALSE(Made(head + Sprite(1, head + Show() + End()) + Show() + End()).sounds);
}

TEST(MakeReportingTest, WhatCannotBeLookedIntoMaySound) {
  EXPECT_TRUE(Made(Script3Attributes() + Show() + End()).sounds);
  EXPECT_TRUE(Made(Sprite(1, Sprite(2, Show() + End()) + End()) + Show() + End()).sounds);
}

TEST(MakeReportingTest, TheLengthInTheHeaderIsRight) {
  const auto movie = Made(Show() + End());
  EXPECT_EQ(swf::ByteReader(movie.bytes, 4).U32(), movie.bytes.size());
  EXPECT_EQ(movie.bytes.substr(0, 4), "FWS\x08");
}

TEST(MakeReportingTest, NoEndIsPutWhereThereWasNone) {
  EXPECT_EQ(CodesOf(Made(Show() + Show()).bytes), (std::vector<int>{12, 1, 12, 1}));
}

TEST(MakeReportingTest, ALastTagThatRunsPastTheEndIsCutAndItsLengthSet) {
  std::string tags = Show() + swf::WriteTag(999, std::string(200, 'x'));
  tags.resize(tags.size() - 150);
  const auto movie = Made(tags);
  const auto read = TagsOf(movie.bytes);
  EXPECT_EQ(read.back().code, 999);
  EXPECT_EQ(read.back().body, std::string(50, 'x'));
  EXPECT_FALSE(read.back().cut);
}

TEST(MakeReportingTest, AMovieWithoutFramesStaysWithoutReports) {
  const auto movie = Made(End(), {.frameCount = 0});
  EXPECT_EQ(movie.frames, 0);
  EXPECT_EQ(CodesOf(movie.bytes), std::vector<int>{0});
}

TEST(MakeReportingTest, WhatIsNoMovieIsRefused) {
  EXPECT_FALSE(swf::MakeReporting("", kHelper));
  EXPECT_FALSE(swf::MakeReporting("a text", kHelper));
  EXPECT_FALSE(swf::MakeReporting(WithZlib(Plain(Show())), kHelper)) << "it is to be unpacked first";
}

TEST(MakeReportingTest, AFieldThatShowsAVariableStandsInAClipOfItsNumber) {
  const auto movie = Made(TextField(21, "text1") + Place(21, 3) + Show() + End());
  ASSERT_EQ(movie.fields.size(), 1u);
  EXPECT_EQ(movie.fields[0].variable, "text1");
  EXPECT_EQ(movie.fields[0].clips, std::vector<std::string>{"_level0.T3"});
  const auto tags = TagsOf(movie.bytes);
  const auto sprite = std::ranges::find_if(tags, [](const swf::Tag& tag) {
    return tag.code == swf::kDefineSprite && swf::ByteReader(tag.body).U16() == 21;
  });
  ASSERT_NE(sprite, tags.end());
  const auto moved = std::ranges::find(tags, int{swf::kDefineEditText}, &swf::Tag::code);
  EXPECT_EQ(swf::ReadTextField(*moved)->variable, "../:text1");
  const auto placed = std::ranges::find(tags, int{swf::kPlaceObject2}, &swf::Tag::code);
  EXPECT_TRUE(swf::ReadPlacement(*placed)->named);
  EXPECT_TRUE(Has(placed->body, "T3"));
}

TEST(MakeReportingTest, TheLooksOfAFieldAreKept) {
  const auto movie = Made(TextField(21, "text1") + Place(21, 3) + Show() + End());
  const swf::TextLooks& looks = movie.fields.at(0).looks;
  EXPECT_EQ(looks.width, 2000);
  EXPECT_EQ(looks.top, 40);
  EXPECT_EQ(looks.height, 560);
  EXPECT_EQ(looks.fontHeight, 480);
  EXPECT_EQ(looks.colour, 0xFF8000FFu);
  EXPECT_EQ(looks.align, 2);
  EXPECT_EQ(looks.leftMargin, 10);
  EXPECT_EQ(looks.rightMargin, 20);
}

TEST(MakeReportingTest, NamesReachTheRootFromOneClipBelow) {
  const std::pair<std::string, std::string> names[] = {
      {"text1", "../:text1"}, {"_root.a", "_root.a"},       {"_level0.a", "_level0.a"}, {"/:a", "/:a"},
      {"this.a", "../:a"},    {"clip.a", "_parent.clip.a"}, {"../a", "../../a"},        {"clip:a", "../clip:a"}};
  for (const auto& [own, moved] : names) {
    const auto movie = Made(TextField(5, own) + Place(5, 1) + Show());
    const auto tags = TagsOf(movie.bytes);
    const auto field = std::ranges::find(tags, int{swf::kDefineEditText}, &swf::Tag::code);
    EXPECT_EQ(swf::ReadTextField(*field)->variable, moved);
  }
}

TEST(MakeReportingTest, FieldsThatTheMovieReachesForStayAsTheyWere) {
  const std::string field = TextField(5, "a");
  for (const std::string& tags :
       {field + Place(5, 1, "mine") + Show(), field + Export(5, "mine") + Place(5, 1) + Show(),
        field + Sprite(6, Place(5, 1)) + Place(5, 1) + Show(), field + Show(),
        TextField(5, "") + Place(5, 1) + Show()}) {
    const auto movie = Made(tags);
    EXPECT_TRUE(movie.fields.empty());
    EXPECT_TRUE(Has(movie.bytes, tags.substr(0, field.size())));
  }
}

TEST(MakeReportingTest, ANewCharacterIsNeverOneThatTheMovieUses) {
  const auto movie = Made(Sprite(65000, "") + Sprite(64999, "") + TextField(5, "a") + Place(5, 1) + Show());
  std::vector<int> characters;
  for (const swf::Tag& tag : TagsOf(movie.bytes)) {
    if (tag.code == swf::kDefineSprite || tag.code == swf::kDefineEditText) {
      characters.push_back(swf::ByteReader(tag.body).U16());
    }
  }
  std::ranges::sort(characters);
  EXPECT_EQ(std::ranges::adjacent_find(characters), characters.end());
}

TEST(MakeReportingTest, TheOldestPlacementBecomesOneWithANameAndKeepsItsColours) {
  // Depth 4, no matrix; colours: twice the red, nothing added.
  swf::ByteWriter body;
  body.U16(5).U16(4).U8(0).Bits(0, 1).Bits(1, 1).Bits(11, 4).Bits(512, 11).Bits(256, 11).Bits(128, 11);
  const auto movie = Made(TextField(5, "a") + swf::WriteTag(swf::kPlaceObject, body.Bytes()) + Show());
  const auto tags = TagsOf(movie.bytes);
  // The last placement: those before are inside the clip, which is one tag.
  const auto placed = std::ranges::find(tags, int{swf::kPlaceObject2}, &swf::Tag::code);
  ASSERT_NE(placed, tags.end());
  swf::ByteReader reader(placed->body);
  EXPECT_EQ(reader.U8(), 0x02 | 0x04 | 0x08 | 0x20);
  EXPECT_EQ(reader.U16(), 4);
  EXPECT_EQ(reader.U16(), 5);
  EXPECT_EQ(reader.U8(), 0);
  EXPECT_EQ(reader.Bits(2), 1u);
  const int width = static_cast<int>(reader.Bits(4));
  EXPECT_EQ(reader.SignedBits(width), 512);
  EXPECT_EQ(reader.SignedBits(width), 256);
  EXPECT_EQ(reader.SignedBits(width), 128);
  EXPECT_EQ(reader.SignedBits(width), 256) << "alpha as it was: whole";
  EXPECT_EQ(reader.Text(), "T4");
}

TEST(MakeReportingTest, AMovieOfActionScript3GetsAClassOverItsOwn) {
  const auto movie = Made(Script3Attributes() + Symbol(0, "ads.Main") + Show() + Show() + End());
  EXPECT_TRUE(movie.script3);
  EXPECT_EQ(movie.frames, 2);
  EXPECT_EQ(CodesOf(movie.bytes), (std::vector<int>{69, 82, 76, 1, 1, 0}));
  const auto tags = TagsOf(movie.bytes);
  EXPECT_TRUE(Has(tags[1].body, "ads"));
  EXPECT_TRUE(Has(tags[2].body, "station__.Main"));
  EXPECT_FALSE(Has(tags[2].body, "ads.Main"));
}

TEST(MakeReportingTest, WithoutAClassOfItsOwnItGetsOneOverThePlayersClip) {
  const auto movie = Made(Script3Attributes() + Symbol(7, "Other") + Show() + Show());
  EXPECT_EQ(CodesOf(movie.bytes), (std::vector<int>{69, 76, 82, 76, 1, 1}));
  EXPECT_TRUE(Has(TagsOf(movie.bytes)[3].body, "station__.MovieClip"));
}

TEST(MakeReportingTest, TheKindIsToldByTheFirstTagAlone) {
  const auto movie = Made(swf::WriteTag(swf::kSetBackgroundColor, "abc") + Script3Attributes() + Show());
  EXPECT_FALSE(movie.script3);
}

TEST(MakeReportingTest, TheHelperIsAMovieOfVersionEightWithOneFrame) {
  const std::string helper = swf::HelperMovie();
  const auto header = swf::ReadHeader(helper);
  ASSERT_TRUE(header);
  EXPECT_EQ(header->version, 8);
  EXPECT_EQ(header->frameCount, 1);
  EXPECT_EQ(swf::ByteReader(helper, 4).U32(), helper.size());
  EXPECT_EQ(CodesOf(helper), (std::vector<int>{69, 12, 1, 0}));
}

TEST(ReportClassTest, TheLocalNameOfTheClassStays) {
  EXPECT_EQ(swf::ReportClassName("Main"), "station__.Main");
  EXPECT_EQ(swf::ReportClassName("a.b.Main"), "station__.Main");
  EXPECT_EQ(swf::ReportClassName("a.b::Main"), "station__.Main");
}

}  // namespace
