#include <gtest/gtest.h>

#include "platform/Utf8.h"

namespace {

TEST(Utf8Test, EveryCodePointIsWrittenAndReadBack) {
  for (char32_t point = 0; point <= 0x10FFFF; point += point < 0x3000 ? 1 : 97) {
    if (point >= 0xD800 && point < 0xE000) continue;
    std::string text;
    AppendCodePoint(text, point);
    std::size_t at = 0;
    ASSERT_EQ(NextCodePoint(text, at), point);
    ASSERT_EQ(at, text.size());
    ASSERT_TRUE(IsUtf8(text));
  }
}

TEST(Utf8Test, BrokenSequencesAreNoUtf8) {
  for (const char* text : {"\x80", "\xC3", "\xC0\x80", "\xE0\x80\x80", "\xED\xA0\x80", "\xF5\x80\x80\x80", "\xC3(",
                           "plain text and caf\xE9", "\xF4\x90\x80\x80", "\xE2\x82"}) {
    EXPECT_FALSE(IsUtf8(text)) << text;
  }
  EXPECT_TRUE(IsUtf8("plain text and café, 新闻, 😀"));
  EXPECT_TRUE(IsUtf8(""));
}

TEST(Utf8Test, AStrayByteStandsForItself) {
  std::size_t at = 0;
  EXPECT_EQ(NextCodePoint("\xE9x", at), kStrayByte + 0xE9);
  EXPECT_EQ(at, 1u);
}

}  // namespace
