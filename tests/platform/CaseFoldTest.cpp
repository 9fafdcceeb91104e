#include <gtest/gtest.h>

#include "platform/CaseFold.h"

namespace {

TEST(CaseFoldTest, LettersOfTheStationsScriptsAreFolded) {
  const std::pair<const char*, const char*> pairs[] = {
      {"Settings.INI", "settings.ini"}, {"ÀÉÎÕÜÞ", "àéîõüþ"}, {"ŁŻĄŹŸĞŽ", "łżąźÿğž"}, {"ΆΈΉΊΌΎΏΑΩΣ", "άέήίόύώαωσ"},
      {"ЀЁЂЖЯҐӁӐ", "ѐёђжяґӂӑ"},         {"ԱՖ", "աֆ"},         {"ẠỲ", "ạỳ"},
  };
  for (const auto& [upper, lower] : pairs) {
    EXPECT_EQ(FoldCase(upper), lower);
    EXPECT_EQ(FoldCase(lower), lower);
    EXPECT_TRUE(EqualIgnoringCase(upper, lower));
    EXPECT_EQ(HashIgnoringCase(upper, 1), HashIgnoringCase(lower, 1));
  }
}

TEST(CaseFoldTest, SignsThatAreNoLettersStayApart) {
  for (const auto& [left, right] : {std::pair{"×", "÷"}, {"[", "{"}, {"@", "`"}, {"新", "闻"}, {"ı", "i"}}) {
    EXPECT_FALSE(EqualIgnoringCase(left, right)) << left << right;
  }
  EXPECT_EQ(FoldCase("\xE9\xFF"), "\xE9\xFF");
  EXPECT_FALSE(EqualIgnoringCase("\xC9", "\xE9"));
}

TEST(CaseFoldTest, AShorterTextComesBeforeOneThatGoesOn) {
  EXPECT_LT(CompareIgnoringCase("News", "newsroom"), 0);
  EXPECT_GT(CompareIgnoringCase("newsroom", "News"), 0);
  EXPECT_EQ(CompareIgnoringCase("NEWS", "news"), 0);
}

TEST(CaseFoldTest, ListsAreOrderedWithoutRegardToCaseAndThenByBytes) {
  EXPECT_TRUE(LessIgnoringCase("a", "B"));
  EXPECT_TRUE(LessIgnoringCase("A", "a"));
  EXPECT_FALSE(LessIgnoringCase("a", "A"));
  EXPECT_FALSE(LessIgnoringCase("a", "a"));
}

}  // namespace
