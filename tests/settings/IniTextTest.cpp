#include <gtest/gtest.h>

#include "settings/IniText.h"

namespace {

TEST(IniTextTest, EveryByteOfWindows1252HasItsLetter) {
  std::string bytes = "x";
  for (int byte = 0x80; byte < 0x100; ++byte) bytes += static_cast<char>(byte);
  EXPECT_EQ(CleanValue(bytes),
            "x\u20AC\u0081\u201A\u0192\u201E\u2026\u2020\u2021\u02C6\u2030\u0160\u2039\u0152\u008D\u017D\u008F"
            "\u0090\u2018\u2019\u201C\u201D\u2022\u2013\u2014\u02DC\u2122\u0161\u203A\u0153\u009D\u017E\u0178"
            "\u00A0\u00A1\u00A2\u00A3\u00A4\u00A5\u00A6\u00A7\u00A8\u00A9\u00AA\u00AB\u00AC\u00AD\u00AE\u00AF"
            "\u00B0\u00B1\u00B2\u00B3\u00B4\u00B5\u00B6\u00B7\u00B8\u00B9\u00BA\u00BB\u00BC\u00BD\u00BE\u00BF"
            "\u00C0\u00C1\u00C2\u00C3\u00C4\u00C5\u00C6\u00C7\u00C8\u00C9\u00CA\u00CB\u00CC\u00CD\u00CE\u00CF"
            "\u00D0\u00D1\u00D2\u00D3\u00D4\u00D5\u00D6\u00D7\u00D8\u00D9\u00DA\u00DB\u00DC\u00DD\u00DE\u00DF"
            "\u00E0\u00E1\u00E2\u00E3\u00E4\u00E5\u00E6\u00E7\u00E8\u00E9\u00EA\u00EB\u00EC\u00ED\u00EE\u00EF"
            "\u00F0\u00F1\u00F2\u00F3\u00F4\u00F5\u00F6\u00F7\u00F8\u00F9\u00FA\u00FB\u00FC\u00FD\u00FE\u00FF");
  EXPECT_EQ(DecodeIni(bytes + "\r\n"), CleanValue(bytes) + "\r\n");
}

std::string Utf16(std::initializer_list<unsigned> units, bool bigEndian) {
  std::string bytes;
  for (const unsigned unit : units) {
    const char high = static_cast<char>(unit >> 8), low = static_cast<char>(unit & 0xFF);
    bytes += bigEndian ? high : low;
    bytes += bigEndian ? low : high;
  }
  return bytes;
}

TEST(IniTextTest, AFileInEitherUtf16IsReadAndHalfALetterOfItIsMarked) {
  for (const bool bigEndian : {false, true}) {
    const auto read = [bigEndian](std::initializer_list<unsigned> units, const std::string& more = "") {
      return DecodeIni(Utf16({0xFEFF}, bigEndian) + Utf16(units, bigEndian) + more);
    };
    EXPECT_EQ(read({'a', 0x20AC, 0xD7FF, 0xE000, 0xFFFD}), "a\u20AC\uD7FF\uE000\uFFFD\r\n");
    EXPECT_EQ(read({0xD800, 0xDC00, 'b'}), "\U00010000b\r\n");
    EXPECT_EQ(read({0xDBFF, 0xDFFF}), "\U0010FFFF\r\n");
    EXPECT_EQ(read({0xD83D, 0xDE00, 0xD83D, 0xDE01}), "\U0001F600\U0001F601\r\n");
    EXPECT_EQ(read({0xD800, 'b'}), "\uFFFDb\r\n");
    EXPECT_EQ(read({0xD800, 0xE000}), "\uFFFD\uE000\r\n");
    EXPECT_EQ(read({0xDC00, 'b'}), "\uFFFDb\r\n");
    EXPECT_EQ(read({'a', 0xDFFF}), "a\uFFFD\r\n");
    EXPECT_EQ(read({'a', 0xD800}), "a\uFFFD\r\n");
    EXPECT_EQ(read({'a', 'b'}, "c"), "ab\r\n");  // the last letter was cut in two
    EXPECT_EQ(read({'a', 0xD83D}, "c"), "a\uFFFD\r\n");
  }
}

TEST(IniTextTest, EveryLineEndsInOneReturnAndOneFeed) {
  for (const char* text : {"a\nb", "a\nb\n", "a\r\nb", "a\r\nb\r\n", "a\r\r\nb\r\r\r\n", "a\nb\r", "a\r\r\nb\n"}) {
    EXPECT_EQ(DecodeIni(text), "a\r\nb\r\n") << text;
  }
  EXPECT_EQ(DecodeIni(""), "");
  EXPECT_EQ(DecodeIni("\n"), "\r\n");
  EXPECT_EQ(DecodeIni("\r\n"), "\r\n");
  EXPECT_EQ(DecodeIni("\r\r\n"), "\r\n");
  EXPECT_EQ(DecodeIni("a\rb\r\n"), "a\rb\r\n");
}

TEST(IniTextTest, ALineOfItsOwnDecidesAboutItsLetters) {
  EXPECT_EQ(DecodeIni("\xC3\xA9\n\xE9\n\xC3\xA9\n"), "\u00E9\r\n\u00E9\r\n\u00E9\r\n");
}

TEST(IniTextTest, AMarkAtTheBeginningIsDropped) {
  EXPECT_EQ(DecodeIni("\xEF\xBB\xBF[a]\r\n"), "[a]\r\n");
  EXPECT_EQ(DecodeIni("[a]\xEF\xBB\xBF\r\n"), "[a]\xEF\xBB\xBF\r\n");
}

TEST(IniTextTest, AControlCharacterBecomesABlankAndATabStays) {
  EXPECT_EQ(CleanValue(std::string("a\x01\x1F\x7F\tb\r\nc\0d e", 13)), "a   \tb  c d e");
  EXPECT_EQ(CleanSectionName("a\nb"), "a b");
}

TEST(IniTextTest, AKeyNameHasNoSignThatWouldEndOrHideIt) {
  EXPECT_EQ(CleanKeyName(" a=b=c\t"), "a-b-c");
  EXPECT_EQ(CleanKeyName("[a[;"), "(a[;");
  EXPECT_EQ(CleanKeyName(";a;["), ",a;[");
  EXPECT_EQ(CleanKeyName(""), "");
}

TEST(IniTextTest, BlanksAndTabsAreTrimmedAtBothEnds) {
  EXPECT_EQ(TrimBlanks(" \ta b\t "), "a b");
  EXPECT_EQ(TrimBlanks(" \t"), "");
  EXPECT_EQ(TrimBlanks("\ra\n"), "\ra\n");
}

}  // namespace
