#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/sim/SimWorld.h"
#include "settings/Station.h"
#include "webfeed/PageStore.h"

namespace {

class PageStoreTest : public testing::Test {
 protected:
  PageStoreTest() { sim.files.Put("/station/corvanta", "program"); }

  std::vector<std::string> Pages() {
    stores.DataFile(kPageFile);
    const IniSections sections = stores.DataIni.Sections();
    std::vector<std::string> names;
    for (std::size_t i = 1; i <= sections.Count(); ++i) names.push_back(sections.Item(i).Name());
    return names;
  }
  std::string Key(const std::string& page, const std::string& key) {
    stores.DataFile(kPageFile);
    return stores.DataIni.ReadValue(page, key, "(none)");
  }

  SimWorld sim;
  Station station{sim.world, "/station"};
  Stores& stores = station.stores;
  const StoredPage news{"news.example", {-3000, -15, 9000, 12000, 300, 450}};
};

using Names = std::vector<std::string>;

TEST_F(PageStoreTest, WithoutAFileThereAreNoPagesAndAReadGivesTheSmallWindow) {
  EXPECT_EQ(Pages(), Names{});
  const StoredPage page = ReadPage(stores, "");
  EXPECT_EQ(page.url, "");
  EXPECT_EQ(page.place, (PagePlace{0, 0, 2000, 3000, 3000, 3000}));
  EXPECT_EQ(Pages(), Names{}) << "reading makes nothing";
}

TEST_F(PageStoreTest, APageIsReadAsItWasAdded) {
  AddPage(stores, "News", news);
  const StoredPage page = ReadPage(stores, "News");
  EXPECT_EQ(page.url, "news.example");
  EXPECT_EQ(page.place, news.place);
  EXPECT_EQ(sim.files.Read("/station/Page.ini").value_or("(none)"),
            "[News]\r\nURL=news.example\r\nPageTop=-3000\r\nPageLeft=-15\r\nFrmHeight=9000\r\nFrmWidth=12000\r\n"
            "FrmTop=300\r\nFrmLeft=450\r\n");
}

TEST_F(PageStoreTest, APageOfANameThatExistsKeepsOneSectionWithItsPositionReset) {
  AddPage(stores, "News", news);
  AddPage(stores, "Other", news);
  AddPage(stores, "NEWS", {"new.example", {0, 0, 16200, 28800, 0, 0}});
  EXPECT_EQ(Pages(), (Names{"News", "Other"}));
  EXPECT_EQ(ReadPage(stores, "News").url, "new.example");
  EXPECT_EQ(Key("News", "PageTop"), "0");
}

TEST_F(PageStoreTest, ASaveLeavesTheAddress) {
  AddPage(stores, "News", news);
  SavePagePlace(stores, "News", {-100, 0, 1, 2, 3, 4});
  EXPECT_EQ(ReadPage(stores, "News").url, "news.example");
  EXPECT_EQ(Key("News", "PageTop"), "-100");
}

TEST_F(PageStoreTest, NumbersAreTheTextsOfSinglePrecisionNumbers) {
  SavePagePlace(stores, "News", {-3000.5, 1.0 / 3, 16200, 28800, 0, 0});
  EXPECT_EQ(Key("News", "PageTop"), "-3000.5");
  EXPECT_EQ(Key("News", "PageLeft"), "0.3333333");
}

TEST_F(PageStoreTest, APageMayHaveNoName) {
  AddPage(stores, "", news);
  EXPECT_EQ(Pages(), Names{""});
  EXPECT_EQ(ReadPage(stores, "").url, "news.example");
}

TEST_F(PageStoreTest, ALostKeyGivesTheSmallWindowsMeasureAndWordsAreNought) {
  sim.files.Put("/station/Page.ini", "[News]\r\nURL=a\r\nPageTop=-20 or so\r\nFrmHeight=tall\r\nFrmLeft=7\r\n");
  EXPECT_EQ(ReadPage(stores, "News").place, (PagePlace{-20, 0, 0, 3000, 3000, 7}));
}

TEST_F(PageStoreTest, AKeyWithoutAValueIsNotLostAndIsNought) {
  sim.files.Put("/station/Page.ini", "[News]\r\nFrmHeight=\r\nFrmWidth=\r\nFrmTop=\r\nFrmLeft=\r\n");
  EXPECT_EQ(ReadPage(stores, "News").place, PagePlace{});
}

TEST_F(PageStoreTest, NamesAndAddressesAreKeptAsTheyWereTyped) {
  AddPage(stores, " News ", {" news.example ", news.place});
  EXPECT_EQ(Pages(), Names{" News "});
  EXPECT_EQ(ReadPage(stores, " News ").url, " news.example ");
}

TEST_F(PageStoreTest, ANameWithBracketsLineEndsOrAScriptDamagesNoOtherPage) {
  AddPage(stores, "News", news);
  for (const char* name : {"a]b", "[a]", "a\r\nURL=x", "\n[News]\nURL=stolen", "<script>", "a=b", ";a"}) {
    AddPage(stores, name, {"http://x.example/\r\n[News]\r\nURL=stolen", {}});
    EXPECT_EQ(ReadPage(stores, "News").url, "news.example") << name;
    EXPECT_EQ(ReadPage(stores, "News").place, news.place) << name;
  }
}

TEST_F(PageStoreTest, TheFileIsThatOfTheDataFolderAndTheSharedFileStaysOnIt) {
  stores.DataFile(kPageSettingsFile);
  ReadPage(stores, "News");
  EXPECT_EQ(stores.DataIni.Path(), "/station/Page.ini");
}

}  // namespace
