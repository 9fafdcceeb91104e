// The operator's headlines in rss.ini, and which of them comes next on the strip.
#include <gtest/gtest.h>

#include "overlay/Headlines.h"
#include "platform/sim/SimFiles.h"

namespace {

using All = std::vector<Headline>;

class HeadlinesTest : public testing::Test {
 protected:
  HeadlinesTest() { files.CreateFolder("/station"); }

  void Put(const std::string& content) { files.Put(kPath, content); }
  std::string Content() { return files.Read(kPath).value_or("(absent)"); }
  std::string Next() { return news.NextRSS().value_or("(none)"); }
  std::vector<std::string> Next(int count) {
    std::vector<std::string> texts;
    for (int i = 0; i < count; ++i) texts.push_back(Next());
    return texts;
  }

  static constexpr const char* kPath = "/station/rss.ini";
  SimFiles files;
  DataFolder folder{"/station"};
  Headlines news{files, folder};
};

using Texts = std::vector<std::string>;

TEST_F(HeadlinesTest, WithoutAFileThereAreNoneAndAskingMakesNone) {
  EXPECT_EQ(news.All(), All{});
  EXPECT_EQ(news.NextRSS(), std::nullopt);
  EXPECT_EQ(Content(), "(absent)");
}

TEST_F(HeadlinesTest, EachHasASectionOfItsNumberWithTextAndActive) {
  news.Store({{"First", true}, {"Second", false}});
  EXPECT_EQ(Content(), "[1]\r\nText=First\r\nActive=1\r\n\r\n[2]\r\nText=Second\r\nActive=0\r\n");
  EXPECT_EQ(news.All(), (All{{"First", true}, {"Second", false}}));
}

TEST_F(HeadlinesTest, TheyTakeTurnsInTheirOrderRoundAndRound) {
  news.Store({{"a", true}, {"b", true}, {"c", true}});
  EXPECT_EQ(Next(5), (Texts{"a", "b", "c", "a", "b"}));
}

TEST_F(HeadlinesTest, WhatIsOffOrBlankIsPassedOver) {
  news.Store({{"a", false}, {"b", true}, {"  \t", true}, {"", true}, {"c", true}});
  EXPECT_EQ(Next(3), (Texts{"b", "c", "b"}));
}

TEST_F(HeadlinesTest, TheOnlyOneThatIsOnComesEachTime) {
  news.Store({{"a", false}, {"b", true}});
  EXPECT_EQ(Next(2), (Texts{"b", "b"}));
}

TEST_F(HeadlinesTest, WithAllOffThereIsNoneAndTheRoundGoesOnWhereItWasWhenOneIsOnAgain) {
  news.Store({{"a", true}, {"b", true}, {"c", true}});
  Next(1);
  news.Store({{"a", false}, {"b", false}, {"c", false}});
  EXPECT_EQ(Next(), "(none)");
  news.Store({{"a", true}, {"b", true}, {"c", true}});
  EXPECT_EQ(Next(), "b");
}

TEST_F(HeadlinesTest, AMovedHeadlineIsFollowedByWhatStandsBehindItNow) {
  news.Store({{"a", true}, {"b", true}, {"c", true}});
  Next(1);
  news.Store({{"b", true}, {"a", true}, {"c", true}});
  EXPECT_EQ(Next(), "c");
}

TEST_F(HeadlinesTest, AfterTheHeadlineOnTheStripWasDeletedItsFollowerComes) {
  news.Store({{"a", true}, {"b", true}, {"c", true}});
  Next(2);
  news.Store({{"a", true}, {"c", true}});
  EXPECT_EQ(Next(), "c");
  news.Store({{"a", true}});
  EXPECT_EQ(Next(), "a");
}

TEST_F(HeadlinesTest, AHeadlineCorrectedWhileOnTheStripComesOnceMore) {
  news.Store({{"Mayer resigns", true}, {"b", true}});
  Next(1);
  news.Store({{"Meyer resigns", true}, {"b", true}});
  EXPECT_EQ(Next(2), (Texts{"Meyer resigns", "b"}));
}

TEST_F(HeadlinesTest, TwoOfTheSameTextBothTakeTheirTurn) {
  news.Store({{"a", true}, {"a", true}, {"b", true}});
  EXPECT_EQ(Next(4), (Texts{"a", "a", "b", "a"}));
}

TEST_F(HeadlinesTest, AFileEditedByHandIsReadByItsNumbersWhateverTheirOrderAndGaps) {
  Put("[10]\nText=ten\nActive=1\n\n[2]\nText = two\nActive = 1\n; a comment\n[7]\nActive=1\nText=seven\n");
  EXPECT_EQ(news.All(), (All{{"two", true}, {"seven", true}, {"ten", true}}));
}

TEST_F(HeadlinesTest, SectionsThatAreNoNumberAreNoHeadlinesAndAreKept) {
  const std::string other =
      "[Notes]\r\nText=mine\r\nActive=1\r\n\r\n[01]\r\nText=x\r\n\r\n[0]\r\n\r\n[-1]\r\n\r\n[1a]\r\n";
  Put(other);
  EXPECT_EQ(news.All(), All{});
  news.Store({{"a", true}});
  EXPECT_EQ(Content(), other + "\r\n[1]\r\nText=a\r\nActive=1\r\n");
}

TEST_F(HeadlinesTest, AStoredListClosesGapsAndKeepsCommentsAndUnknownKeys) {
  Put("; mine\r\n[1]\r\nSource=town hall\r\nText=one\r\nActive=1\r\n[4]\r\nText=four\r\nActive=1\r\n");
  news.Store(news.All());
  EXPECT_EQ(Content(),
            "; mine\r\n[1]\r\nSource=town hall\r\nText=one\r\nActive=1\r\n\r\n[2]\r\nText=four\r\nActive=1\r\n");
}

TEST_F(HeadlinesTest, ADeletedHeadlineDoesNotComeBackByATwinOfItsSection) {
  Put("[1]\r\nText=a\r\nActive=1\r\n[2]\r\nText=b\r\nActive=1\r\n[2]\r\nText=twin\r\nActive=1\r\n");
  EXPECT_EQ(news.All(), (All{{"a", true}, {"b", true}}));
  news.Store({{"a", true}});
  EXPECT_EQ(news.All(), (All{{"a", true}}));
}

TEST_F(HeadlinesTest, WhatIsNotActive1IsOff) {
  Put("[1]\r\nText=a\r\n[2]\r\nText=b\r\nActive=\r\n[3]\r\nText=c\r\nActive=yes\r\n[4]\r\nText=d\r\nActive=11\r\n"
      "[5]\r\nText=e\r\nActive=True\r\n[6]\r\nText=f\r\nActive=01\r\n");
  EXPECT_EQ(Next(), "(none)");
  EXPECT_EQ(news.All().size(), 6u);
}

TEST_F(HeadlinesTest, ATornFileGivesWhatIsLeftOfIt) {
  const std::string whole = "[1]\r\nText=first\r\nActive=1\r\n\r\n[2]\r\nText=second\r\nActive=1\r\n";
  for (std::size_t cut = 0; cut <= whole.size(); ++cut) {
    Put(whole.substr(0, cut));
    const All all = news.All();
    ASSERT_LE(all.size(), 2u);
    if (cut >= whole.find("\r\n\r\n")) {
      EXPECT_EQ(all.front(), (Headline{"first", true})) << cut;
    }
    news.NextRSS();
    news.Store(all);
    EXPECT_EQ(news.All(), all) << cut;
  }
}

TEST_F(HeadlinesTest, AFileOfBytesThatAreNoTextIsNoHarm) {
  constexpr char kBytes[] = "[1]\0\xff\r\nText=\x80\x81\r\n[99999999999999999999]\r\nText=far\r\n";
  Put(std::string(kBytes, sizeof kBytes - 1));
  EXPECT_EQ(Next(), "(none)");
  news.Store({{"a", true}});
  EXPECT_EQ(Next(), "a");
}

TEST_F(HeadlinesTest, AFileThatCannotBeReadGivesNoneAndIsNotWrittenTo) {
  Put("[1]\r\nText=a\r\nActive=1\r\n");
  files.SetFault(kPath, FileFault::kUnreadable);
  EXPECT_EQ(Next(), "(none)");
  news.Store({{"b", true}});
  files.SetFault(kPath, FileFault::kNone);
  EXPECT_EQ(Next(), "a");
}

TEST_F(HeadlinesTest, WithAFullDiskTheOldOnesStay) {
  news.Store({{"a", true}, {"b", true}});
  files.SetDiskFull(true);
  news.Store({{"b", true}, {"a", true}});
  EXPECT_EQ(news.All(), (All{{"a", true}, {"b", true}}));
}

TEST_F(HeadlinesTest, TextsOfEveryScriptWithBracketsAndSignsComeBackAsTheyWere) {
  const All all = {{"Größe zählt: Übermorgen öffnet die Brücke", true},
                   {"বাংলা সংবাদ: আজ বৃষ্টি হবে", true},
                   {"أخبار عاجلة: افتتاح الجسر غدا", true},
                   {"速報：橋が明日開通", true},
                   {"Мост откроют завтра", true},
                   {"[2] = [Section] ; no comment = 3 \"quoted\" 100% \\n", true},
                   {"  blanks at both ends  ", true},
                   {"\U0001F4F0 news", true}};
  news.Store(all);
  EXPECT_EQ(news.All(), all);
}

TEST_F(HeadlinesTest, LineEndsInATextBecomeBlanks) {
  news.Store({{"one\ntwo\r\n[2]\nText=three", true}});
  EXPECT_EQ(news.All(), (All{{"one two  [2] Text=three", true}}));
}

TEST_F(HeadlinesTest, ATextOfTenThousandLettersIsKeptWhole) {
  const std::string text = std::string(9'990, 'x') + "the end.";
  news.Store({{text, true}, {"b", true}});
  EXPECT_EQ(Next(), text);
}

}  // namespace
