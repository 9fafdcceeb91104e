#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

#include "overlay/clsSWFHeaderParser.h"
#include "platform/sim/SimFiles.h"

namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr char kNotOpened[] = "File could not be opened. | Error Opening File";
constexpr char kNotMapped[] = "Could not create mapping object. | Error Creating Mapping Object";
constexpr char kNotRead[] = "Failed to map the file into memory. | Error Mapping File";

class SwfHeaderTest : public testing::Test {
 protected:
  // Has the file of these bytes opened.
  void Open(const Bytes& bytes) {
    files.Put("/movie.swf", std::string(bytes.begin(), bytes.end()));
    parser.OpenFile("/movie.swf");
  }
  // A header of this version whose fields behind the frame size are told, with a frame size of four fields of `length`
  // bits each.
  static Bytes Header(std::uint8_t version, const Bytes& behind, unsigned length = 15,
                      const std::vector<unsigned long long>& fields = {0, 11000, 0, 8000}) {
    Bytes bytes{'F', 'W', 'S', version, 0x78, 0x56, 0x34, 0x12};
    std::string bits = Bits(length, 5);
    for (const unsigned long long field : fields) bits += Bits(field, length);
    bits.resize(72, '0');
    for (std::size_t at = 0; at < bits.size(); at += 8) {
      bytes.push_back(static_cast<std::uint8_t>(std::stoi(bits.substr(at, 8), nullptr, 2)));
    }
    bytes.insert(bytes.end(), behind.begin(), behind.end());
    return bytes;
  }
  static std::string Bits(unsigned long long number, unsigned count) {
    std::string bits;
    for (unsigned left = count; left-- > 0;) bits += (number >> left & 1) != 0 ? '1' : '0';
    return bits;
  }
  std::int32_t CountOf(std::uint8_t low, std::uint8_t high) {
    Open(Header(8, {0, 25, low, high}));
    return parser.FrameCount();
  }
  void ExpectNothing() const {
    EXPECT_FALSE(parser.CompressionState());
    EXPECT_EQ(parser.Version(), 0);
    EXPECT_EQ(parser.DecompressedLength(), 0U);
    EXPECT_EQ(parser.WidthDimension(), 0);
    EXPECT_EQ(parser.HeightDimension(), 0);
    EXPECT_EQ(parser.FrameRate(), 0);
    EXPECT_EQ(parser.FrameCount(), 0);
  }

  SimFiles files;
  std::vector<std::string> warnings;
  clsSWFHeaderParser parser{
      files, [this](const std::string& text, const std::string& title) { warnings.push_back(text + " | " + title); }};
};

TEST_F(SwfHeaderTest, TheFieldsStandAtTheirFixedOffsets) {
  Open(Header(8, {0x80, 25, 0x23, 0x01}));
  EXPECT_EQ(parser.Version(), 8);
  EXPECT_EQ(parser.DecompressedLength(), 0x12345678U);
  EXPECT_EQ(parser.FrameRate(), 25);
  EXPECT_EQ(parser.FrameCount(), 0x123);
  EXPECT_TRUE(warnings.empty());
}

TEST_F(SwfHeaderTest, TheLengthHasNoSign) {
  Open({'F', 'W', 'S', 8, 0xFF, 0xFF, 0xFF, 0xFF});
  EXPECT_EQ(parser.DecompressedLength(), 0xFFFFFFFFU);
}

TEST_F(SwfHeaderTest, AMovieOf550By400PixelsIsAsLargeAsThat) {
  Open(Header(8, {}));
  EXPECT_EQ(parser.WidthDimension(), 550);
  EXPECT_EQ(parser.HeightDimension(), 400);
}

TEST_F(SwfHeaderTest, ASignatureThatBeginsWithCIsPackedAndEveryOtherIsNot) {
  Open({'C', 'W', 'S'});
  EXPECT_TRUE(parser.CompressionState());
  Open({'C', 'x', 'y'});
  EXPECT_TRUE(parser.CompressionState()) << "the other letters are not looked at";
  Open({'F', 'W', 'S'});
  EXPECT_FALSE(parser.CompressionState());
  Open({'Z', 'W', 'S'});
  EXPECT_FALSE(parser.CompressionState());
}

TEST_F(SwfHeaderTest, AShortFileReadsAsZerosBeyondItsEnd) {
  Open({'F', 'W', 'S', 6});
  EXPECT_TRUE(warnings.empty());
  EXPECT_EQ(parser.Version(), 6);
  EXPECT_EQ(parser.DecompressedLength(), 0U);
  EXPECT_EQ(parser.WidthDimension(), 0);
  EXPECT_EQ(parser.FrameRate(), 0);
  EXPECT_EQ(parser.FrameCount(), 0);
}

TEST_F(SwfHeaderTest, ATextThatIsCalledAMovieGivesNumbersWithoutAWord) {
  const std::string text = "The quick brown fox jumps over the lazy dog";
  Open(Bytes(text.begin(), text.end()));
  EXPECT_TRUE(warnings.empty());
  EXPECT_FALSE(parser.CompressionState());
  EXPECT_EQ(parser.Version(), ' ');
}

TEST_F(SwfHeaderTest, ALowByteOfTheFrameCountBelow16LosesADigit) {
  EXPECT_EQ(CountOf(0x23, 0x01), 0x123);
  EXPECT_EQ(CountOf(0x03, 0x01), 19);
  EXPECT_EQ(CountOf(0x05, 0x01), 21);
  EXPECT_EQ(CountOf(0x00, 0x01), 16);
  EXPECT_EQ(CountOf(0x05, 0x00), 5);
  EXPECT_EQ(CountOf(0x00, 0x00), 0);
}

TEST_F(SwfHeaderTest, AFrameCountFrom0x8000OnHasNoSign) {
  EXPECT_EQ(CountOf(0x00, 0x80), 0x800) << "a digit is lost here too";
  EXPECT_EQ(CountOf(0x10, 0x80), 0x8010);
  EXPECT_EQ(CountOf(0xFF, 0xFF), 65535);
}

TEST_F(SwfHeaderTest, UpToVersion4RateAndCountAreOneByteEachOneFurtherToTheFront) {
  Open(Header(4, {12, 34, 56, 78}));
  EXPECT_EQ(parser.FrameRate(), 12);
  EXPECT_EQ(parser.FrameCount(), 34);
  Open(Header(5, {12, 34, 56, 0}));
  EXPECT_EQ(parser.FrameRate(), 34);
  EXPECT_EQ(parser.FrameCount(), 56);
}

TEST_F(SwfHeaderTest, AFrameSizeOfAnotherLengthMovesNothing) {
  Open(Header(8, {0, 25, 0x23, 0x01}, 4, {0, 15, 0, 15}));
  EXPECT_EQ(parser.FrameRate(), 25);
  EXPECT_EQ(parser.FrameCount(), 0x123);
}

TEST_F(SwfHeaderTest, AFieldOfNoLengthIsNothing) {
  Open(Header(8, {}, 0, {}));
  EXPECT_EQ(parser.WidthDimension(), 0);
  EXPECT_EQ(parser.HeightDimension(), 0);
}

TEST_F(SwfHeaderTest, HalvesOfAPixelGoToTheEvenNeighbour) {
  Open(Header(8, {}, 15, {0, 10, 0, 30}));
  EXPECT_EQ(parser.WidthDimension(), 0);
  EXPECT_EQ(parser.HeightDimension(), 2);
}

TEST_F(SwfHeaderTest, FieldsHaveNoSign) {
  Open(Header(8, {}, 15, {0x7FFF, 0, 0, 0x4000}));
  EXPECT_EQ(parser.WidthDimension(), -1638);
  EXPECT_EQ(parser.HeightDimension(), 819);
}

TEST_F(SwfHeaderTest, WhatRunsPastTheNineBytesIsCutOff) {
  Open(Header(8, {}, 17, {0, 20, 0, 0x1FFFF}));
  EXPECT_EQ(parser.WidthDimension(), 1);
  EXPECT_EQ(parser.HeightDimension(), 3277) << "16 of 17 digits";
  Open(Header(8, {}, 23, {0, 20, 0, 20}));
  EXPECT_EQ(parser.WidthDimension(), 1);
  EXPECT_EQ(parser.HeightDimension(), 0) << "the last field begins past the end";
}

TEST_F(SwfHeaderTest, ASizeThatDoesNotFitIn16BitsIsNone) {
  Open(Header(8, {}, 31, {0, 0x7FFFFFFF}));
  EXPECT_EQ(parser.WidthDimension(), 0);
}

TEST_F(SwfHeaderTest, BeforeAFileIsOpenedEverythingIsNothing) { ExpectNothing(); }

TEST_F(SwfHeaderTest, AFileThatCannotBeOpenedBringsAWarning) {
  files.CreateFolder("/folder");
  Open({'F', 'W', 'S', 8});
  for (const char* path : {"/absent.swf", "", "/folder"}) {
    parser.OpenFile(path);
    ASSERT_EQ(warnings, std::vector<std::string>{kNotOpened}) << path;
    warnings.clear();
    ExpectNothing();
  }
}

TEST_F(SwfHeaderTest, AnEmptyFileCannotBeMapped) {
  Open({});
  EXPECT_EQ(warnings, std::vector<std::string>{kNotMapped});
  ExpectNothing();
}

TEST_F(SwfHeaderTest, AFileThatTheMediumDoesNotGiveBringsAWarningOfItsOwn) {
  Open({'F', 'W', 'S', 8});
  files.SetFault("/movie.swf", FileFault::kBroken);
  parser.OpenFile("/movie.swf");
  EXPECT_EQ(warnings, std::vector<std::string>{kNotRead});
  ExpectNothing();
}

TEST_F(SwfHeaderTest, EachReaderReadsItsOwnFile) {
  Open({'F', 'W', 'S', 8});
  files.Put("/other.swf", "CWS\x06");
  clsSWFHeaderParser other(files, [](const std::string&, const std::string&) {});
  other.OpenFile("/other.swf");
  EXPECT_TRUE(other.CompressionState());
  EXPECT_EQ(other.Version(), 6);
  EXPECT_EQ(parser.Version(), 8);
}

}  // namespace
