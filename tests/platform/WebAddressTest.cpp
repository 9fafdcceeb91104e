#include <gtest/gtest.h>

#include <initializer_list>

#include "platform/WebAddress.h"

namespace {

// What an operator types and the address that the browser is given for it.
struct Typed {
  const char* text;
  const char* address;
};

void ExpectAddresses(std::initializer_list<Typed> rows) {
  for (const Typed& row : rows) EXPECT_EQ(WebAddress(row.text), row.address);
}

TEST(WebAddressTest, AnAddressWithoutASchemeIsTakenAsBrowsersTakeIt) {
  ExpectAddresses({{"news.example", "http://news.example"},
                   {"www.news.example/today?x=1", "http://www.news.example/today?x=1"},
                   {"//news.example/a", "http://news.example/a"}});
}

TEST(WebAddressTest, APortIsNoScheme) {
  ExpectAddresses({{"localhost:8080", "http://localhost:8080"},
                   {"localhost:8080/a", "http://localhost:8080/a"},
                   {"10.0.0.1:80", "http://10.0.0.1:80"}});
}

TEST(WebAddressTest, AnAddressWithASchemeStaysAsItIs) {
  for (const char* address : {"http://news.example", "HTTPS://News.Example/A", "file:///srv/page.html"}) {
    ExpectAddresses({{address, address}});
  }
}

TEST(WebAddressTest, APathIsTheAddressOfAFile) {
  ExpectAddresses({{"/srv/page.html", "file:///srv/page.html"},
                   {"/srv/100% new #1?.html", "file:///srv/100%25%20new%20%231%3F.html"}});
}

TEST(WebAddressTest, BlanksAndLineEndsDoNotCount) {
  ExpectAddresses({{"  news.example\r\n", "http://news.example"}, {"news.\r\nexample", "http://news.example"}});
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
