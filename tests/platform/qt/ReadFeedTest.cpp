#include <gtest/gtest.h>

#include <random>

#include "platform/qt/feeds/HtmlText.h"
#include "platform/qt/feeds/ReadFeed.h"

// What the titles of a feed are, by its bytes.

namespace {

FeedTitles Titles(const QByteArray& body) { return ReadFeed(body).value_or(FeedTitles{"(no feed)"}); }

QByteArray Rss(const QByteArray& items) {
  return "<?xml version=\"1.0\"?>\n<rss version=\"2.0\" xmlns:media=\"http://search.yahoo.com/mrss/\" "
         "xmlns:dc=\"http://purl.org/dc/elements/1.1/\"><channel><title>The channel</title>"
         "<image><title>Its logo</title></image>" +
         items + "</channel></rss>";
}

QByteArray Atom(const QByteArray& entries) {
  return "<feed xmlns=\"http://www.w3.org/2005/Atom\"><title>The feed</title>" + entries + "</feed>";
}

std::string Html(const char* html) { return TextOfHtml(QString::fromUtf8(html)).toStdString(); }

TEST(ReadFeedTest, RssHasItsTitlesInItsItems) {
  EXPECT_EQ(Titles(Rss("<item><title>One</title><description><![CDATA[<p>text</p>]]></description></item>"
                       "<item><link>no title</link></item><item><title>Two</title></item>")),
            (FeedTitles{"One", "Two"}));
}

TEST(ReadFeedTest, TheOlderRssHasThemBesideItsChannel) {
  EXPECT_EQ(Titles("<rdf:RDF xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\" "
                   "xmlns=\"http://purl.org/rss/1.0/\"><channel><title>The channel</title></channel>"
                   "<item><title>One</title></item><item><title>Two</title></item></rdf:RDF>"),
            (FeedTitles{"One", "Two"}));
}

TEST(ReadFeedTest, AtomHasThemInItsEntries) {
  EXPECT_EQ(Titles(Atom("<entry><title>One</title><source><title>Another feed</title></source></entry>"
                        "<entry><title type=\"text\">Two</title></entry>")),
            (FeedTitles{"One", "Two"}));
}

TEST(ReadFeedTest, ATitleOfAPictureIsNone) {
  EXPECT_EQ(Titles(Rss("<item><media:title>A picture</media:title><title>One</title>"
                       "<media:group><title>Another</title></media:group></item>")),
            FeedTitles{"One"});
}

TEST(ReadFeedTest, TheNewestComeFirstWhereEachTellsItsDate) {
  EXPECT_EQ(Titles(Rss("<item><title>old</title><pubDate>Sat, 14 Nov 2026 23:00:00 GMT</pubDate></item>"
                       "<item><title>newest</title><pubDate>Sun, 15 Nov 2026 07:00:00 EST</pubDate></item>"
                       "<item><title>new</title><pubDate>Sun, 15 Nov 2026 08:00:00 +0200</pubDate></item>")),
            (FeedTitles{"newest", "new", "old"}));
  EXPECT_EQ(Titles(Atom("<entry><title>old</title><published>2026-11-14T07:00:00Z</published>"
                        "<updated>2026-11-16T07:00:00Z</updated></entry>"
                        "<entry><updated>2026-11-15T07:00:00+01:00</updated><title>new</title></entry>")),
            (FeedTitles{"new", "old"}));
}

TEST(ReadFeedTest, WhereOneTellsNoneOrANonsensicalDateTheOrderOfTheFeedCounts) {
  for (const char* date : {"", "<pubDate>yesterday</pubDate>", "<pubDate/>"}) {
    EXPECT_EQ(Titles(Rss("<item><title>a</title><pubDate>Sat, 14 Nov 2026 23:00:00 GMT</pubDate></item>"
                         "<item><title>b</title>" +
                         QByteArray(date) +
                         "</item><item><title>c</title><pubDate>Sun, 15 Nov 2026 23:00:00 GMT</pubDate></item>")),
              (FeedTitles{"a", "b", "c"}));
  }
}

TEST(ReadFeedTest, OfManyTheNewestTenAreTaken) {
  QByteArray items;
  for (int day = 1; day <= 28; ++day) {
    const QByteArray number = QByteArray::number(day);
    items += "<item><title>day " + number + "</title><pubDate>" + number + " Feb 2026 12:00:00 +0000</pubDate></item>";
  }
  const FeedTitles titles = Titles(Rss(items));
  ASSERT_EQ(titles.size(), 10u);
  EXPECT_EQ(titles.front(), "day 28");
  EXPECT_EQ(titles.back(), "day 19");
}

TEST(ReadFeedTest, TitlesArePlainTextWhateverTheyWereWrittenIn) {
  EXPECT_EQ(Titles(Rss("<item><title>&lt;b&gt;Big&lt;/b&gt; &amp;amp; small &amp;uuml;</title></item>"
                       "<item><title><![CDATA[<i>In</i> <br>lines]]></title></item>"
                       "<item><title>AT&amp;T</title></item>")),
            (FeedTitles{"Big & small ü", "In lines", "AT&T"}));
  EXPECT_EQ(Titles(Atom("<entry><title type=\"html\">&lt;b&gt;Big&lt;/b&gt;</title></entry>"
                        "<entry><title type=\"text\">a &lt;b&gt; c</title></entry>"
                        "<entry><title type=\"xhtml\"><div xmlns=\"http://www.w3.org/1999/xhtml\">Less <em>is</em> "
                        "&lt;</div></title></entry>")),
            (FeedTitles{"Big", "a <b> c", "Less is <"}));
}

TEST(ReadFeedTest, LettersThatAreNamedAsInHtmlAreKnown) {
  EXPECT_EQ(Titles(Rss("<item><title>Caf&eacute;&nbsp;&ndash; &#8222;x&#x201c;</title></item>")),
            FeedTitles{"Café – „x“"});
  EXPECT_EQ(Titles(Rss("<item><title>&nonsense;</title></item>")), FeedTitles{"(no feed)"});
}

TEST(ReadFeedTest, TheEncodingsOfOlderFeedsAreRead) {
  EXPECT_EQ(Titles("<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><rss><channel><item><title>Gr\xf6\xdf"
                   "e</title></item></channel></rss>"),
            FeedTitles{"Größe"});
  EXPECT_EQ(Titles("<?xml version=\"1.0\" encoding=\"windows-1252\"?><rss><channel><item><title>\x80 5"
                   "</title></item></channel></rss>"),
            FeedTitles{"€ 5"});
  const QString text =
      "<?xml version=\"1.0\" encoding=\"UTF-16\"?><rss><channel><item><title>Größe</title></item>"
      "</channel></rss>";
  QByteArray wide("\xff\xfe", 2);
  wide.append(reinterpret_cast<const char*>(text.utf16()), text.size() * 2);
  EXPECT_EQ(Titles(wide), FeedTitles{"Größe"});
}

TEST(ReadFeedTest, AFeedThatIsCutOffAnywhereIsNoFeed) {
  const QByteArray whole = Rss("<item><title>One &amp; two</title><pubDate>x</pubDate></item>");
  ASSERT_TRUE(ReadFeed(whole));
  for (qsizetype cut = 0; cut < whole.size(); ++cut) EXPECT_FALSE(ReadFeed(whole.left(cut))) << cut;
}

TEST(ReadFeedTest, AFeedWithAnyByteChangedDoesNoHarm) {
  const QByteArray whole = Rss("<item><title>&lt;b&gt;One&lt;/b&gt; &amp;#8364; &eacute;</title></item>");
  std::mt19937 draw(7);
  for (int round = 0; round < 20'000; ++round) {
    QByteArray torn = whole;
    for (int i = 0; i < 3; ++i) torn[static_cast<qsizetype>(draw() % whole.size())] = static_cast<char>(draw());
    if (const auto titles = ReadFeed(torn)) {
      EXPECT_LE(titles->size(), 1u);
    }
  }
}

TEST(ReadFeedTest, NestingWithoutEndDoesNoHarm) {
  QByteArray deep = "<rss><channel><item><title>";
  while (deep.size() < qsizetype{kMostFeedBytes}) deep += "<a>";
  EXPECT_FALSE(ReadFeed(deep));
  QByteArray closed = "<rss><channel><item><title>";
  for (int i = 0; i < 100'000; ++i) closed += "<a>";
  closed += "deep";
  for (int i = 0; i < 100'000; ++i) closed += "</a>";
  EXPECT_EQ(Titles(closed + "</title></item></channel></rss>"), FeedTitles{"deep"});
}

TEST(HtmlTextTest, WhatIsNoHtmlStaysAsItIs) {
  for (const char* text : {"a < b", "a <", "1 < 2 and 3 > 2", "Q&A; more", "AT&T", "&", "&;", "&#;", "&#x;", "&#xzz;",
                           "a <b", "&longnonsensename;", ""}) {
    EXPECT_EQ(Html(text), text);
  }
}

TEST(HtmlTextTest, TagsScriptsAndCommentsAreLeftOut) {
  EXPECT_EQ(Html("<p>a</p><b>b</b>c<br/>d"), " a bc d");
  EXPECT_EQ(Html("a<script>alert('x')</script>b<STYLE>x{}</Style>c"), "abc");
  EXPECT_EQ(Html("a<script>alert('x')"), "a");
  EXPECT_EQ(Html("a<!-- note -->b"), "ab");
  EXPECT_EQ(Html("<img src=\"file:///dev/zero\"><link rel=\"stylesheet\" href=\"/dev/zero\">x"), "x");
}

TEST(HtmlTextTest, NumbersAreLettersAndNumbersThatAreNoneAreASignForIt) {
  EXPECT_EQ(Html("&#8364;&#x20AC;&#X20ac;&#128240;"), "€€€\U0001F4F0");
  EXPECT_EQ(Html("don&#146;t"), "don’t") << "as every browser takes it";
  EXPECT_EQ(Html("&#0;&#55296;&#1114112;"), "\uFFFD\uFFFD\uFFFD");
}

TEST(HtmlTextTest, EachNameGivesItsLetter) {
  EXPECT_EQ(NamedLetter(u"nbsp"), QString(QChar(0xA0)));
  EXPECT_EQ(NamedLetter(u"Auml"), "Ä");
  EXPECT_EQ(NamedLetter(u"auml"), "ä");
  EXPECT_EQ(NamedLetter(u"times"), "×");
  EXPECT_EQ(NamedLetter(u"yuml"), "ÿ");
  EXPECT_EQ(NamedLetter(u"euro"), "€");
  EXPECT_EQ(NamedLetter(u"AUML"), "");
  EXPECT_EQ(NamedLetter(u""), "");
}

}  // namespace
