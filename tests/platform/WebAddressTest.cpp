#include <gtest/gtest.h>

#include "platform/WebAddress.h"

namespace {

TEST(WebAddressTest, AnAddressWithoutASchemeIsTakenAsBrowsersTakeIt) {
  EXPECT_EQ(WebAddress("news.example"), "http://news.example");
  EXPECT_EQ(WebAddress("www.news.example/today?x=1"), "http://www.news.example/today?x=1");
  EXPECT_EQ(WebAddress("//news.example/a"), "http://news.example/a");
}

TEST(WebAddressTest, APortIsNoScheme) {
  EXPECT_EQ(WebAddress("localhost:8080"), "http://localhost:8080");
  EXPECT_EQ(WebAddress("localhost:8080/a"), "http://localhost:8080/a");
  EXPECT_EQ(WebAddress("10.0.0.1:80"), "http://10.0.0.1:80");
}

TEST(WebAddressTest, AnAddressWithASchemeStaysAsItIs) {
  EXPECT_EQ(WebAddress("http://news.example"), "http://news.example");
  EXPECT_EQ(WebAddress("HTTPS://News.Example/A"), "HTTPS://News.Example/A");
  EXPECT_EQ(WebAddress("file:///srv/page.html"), "file:///srv/page.html");
}

TEST(WebAddressTest, APathIsTheAddressOfAFile) {
  EXPECT_EQ(WebAddress("/srv/page.html"), "file:///srv/page.html");
  EXPECT_EQ(WebAddress("/srv/100% new #1?.html"), "file:///srv/100%25%20new%20%231%3F.html");
}

TEST(WebAddressTest, BlanksAndLineEndsDoNotCount) {
  EXPECT_EQ(WebAddress("  news.example\r\n"), "http://news.example");
  EXPECT_EQ(WebAddress("news.\r\nexample"), "http://news.example");
}

TEST(WebAddressTest, WhatIsNoPageGivesNothing) {
  for (const char* typed : {"", "   ", "javascript:alert(1)", "java\nscript:alert(1)", "mailto:a@news.example",
                            "data:text/html,x", "about:blank", "chrome://crash", "view-source:http://news.example"}) {
    EXPECT_EQ(WebAddress(typed), "") << typed;
  }
}

TEST(WebAddressTest, BytesThatAreNoTextHarmNobody) {
  std::string all;
  for (int byte = 0; byte < 256; ++byte) all += static_cast<char>(byte);
  EXPECT_FALSE(WebAddress(all).empty());
  EXPECT_TRUE(WebAddress("/" + all).starts_with("file:///"));
}

}  // namespace
