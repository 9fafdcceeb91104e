#include <ostream>

#include "ads/AdFolders.h"
#include "platform/toolkit/ListView.h"
#include "tests/StationTest.h"

namespace {

class ListForm : public Form {
 public:
  explicit ListForm(Station& station) : Form(station.forms, "ListForm", Kind::kOperator) {}
  ListView ListAd{*this, "ListAd"};
};

// What the two stores have in common is tested on both.
struct StoreUnderTest {
  const char* folder;
  const char* section;
  void (*load)(Station&, const std::string&, ListView&);
  bool (*create)(Station&, const std::string&);
  AdStore store;
};

void PrintTo(const StoreUnderTest& store, std::ostream* out) { *out << store.folder; }

class AdFoldersTest : public StationTest, public ::testing::WithParamInterface<StoreUnderTest> {
 protected:
  AdFoldersTest() { sim.files.CreateFolder(Folder()); }

  std::string Folder() const { return std::string("/station/") + GetParam().folder; }
  void Ad(const std::string& name, const std::string& info = "") {
    sim.files.Put(Folder() + "/" + name + "/adinfo.ini", "[" + std::string(GetParam().section) + "]\r\n" + info);
  }
  ListView& Load() {
    GetParam().load(station, Folder() + "/", list);
    return list;
  }
  bool Create(const std::string& name) { return GetParam().create(station, name); }
  Names Shown() {
    Names names;
    for (const ListRow& row : list.Rows()) names.push_back(row.text);
    return names;
  }

  ListView& list = station.forms.Get<ListForm>().ListAd;
};

INSTANTIATE_TEST_SUITE_P(Stores, AdFoldersTest,
                         ::testing::Values(StoreUnderTest{"Ads", "Info", LoadAdList, CreateAdFolder, AdStore::kCrawler},
                                           StoreUnderTest{"VideoAd", "AdInfo", LoadVideoAdList, CreateVideoAdFolder,
                                                          AdStore::kVideo}),
                         [](const auto& info) { return std::string(info.param.folder); });

TEST_P(AdFoldersTest, AnEmptyFolderIsAnEmptyList) { EXPECT_EQ(Load().Count(), 0); }

TEST_P(AdFoldersTest, AFolderThatIsNotThereIsAnEmptyList) {
  sim.files.RemoveTree(Folder());
  EXPECT_EQ(Load().Count(), 0);
}

TEST_P(AdFoldersTest, TheSubFoldersAreTheAdsByNameWithoutRegardToCase) {
  for (const char* name : {"shoes", "Bakery", "Zoo", "apple"}) Ad(name);
  sim.files.Put(Folder() + "/readme.txt", "no ad");
  Load();
  EXPECT_EQ(Shown(), (Names{"apple", "Bakery", "shoes", "Zoo"}));
}

TEST_P(AdFoldersTest, AFolderWithoutADescriptionIsAnAdOfBlankCells) {
  sim.files.CreateFolder(Folder() + "/bare");
  ASSERT_EQ(Load().Count(), 1);
  for (int column = 1; column <= 5; ++column) EXPECT_EQ(list.Row(1).SubItem(column), "");
}

TEST_P(AdFoldersTest, ADescriptionThatIsAFolderIsNone) {
  sim.files.CreateFolder(Folder() + "/odd/adinfo.ini");
  ASSERT_EQ(Load().Count(), 1);
  EXPECT_EQ(list.Row(1).SubItem(2), "");
}

TEST_P(AdFoldersTest, ARebuildKeepsTheSelectionByName) {
  for (const char* name : {"b", "c", "d"}) Ad(name);
  Load().Select(2);
  Ad("a");
  Load();
  EXPECT_EQ(list.Selected().text, "c");
}

TEST_P(AdFoldersTest, AnAdThatIsGoneTakesTheSelectionWithIt) {
  for (const char* name : {"b", "c"}) Ad(name);
  Load().Select(2);
  sim.files.RemoveTree(Folder() + "/c");
  EXPECT_EQ(Load().SelectedItem(), 0);
}

TEST_P(AdFoldersTest, AFolderWhoseNameHoldsASeparatorIsNoAd) {
  Ad("..\\..");
  EXPECT_EQ(Load().Count(), 0);
}

TEST_P(AdFoldersTest, ANewAdIsAFolderWithAnEmptyDescription) {
  EXPECT_FALSE(Create("shoes"));
  EXPECT_EQ(sim.files.Read(Folder() + "/shoes/adinfo.ini"), "");
}

TEST_P(AdFoldersTest, AnAdThatIsThereIsLeftUntouched) {
  Ad("shoes", "Address=here\r\n");
  const auto before = sim.files.Read(Folder() + "/shoes/adinfo.ini");
  EXPECT_TRUE(Create("shoes"));
  EXPECT_TRUE(Create("SHOES"));
  EXPECT_EQ(sim.files.Read(Folder() + "/shoes/adinfo.ini"), before);
}

TEST_P(AdFoldersTest, ANameWithASeparatorMakesNoFolder) {
  for (const char* name : {"a/b", "a\\b", "/", "\\", "../a", "..\\..\\a"}) {
    EXPECT_FALSE(Create(name)) << name;
    EXPECT_EQ(Load().Count(), 0) << name;
  }
  EXPECT_EQ(sim.files.Kind("/station/a"), FileKind::kAbsent);
}

TEST_P(AdFoldersTest, ANameOfDotsMeansAFolderThatIsThereAndMakesNone) {
  for (const char* name : {".", "..", "..."}) EXPECT_TRUE(Create(name)) << name;
  EXPECT_EQ(Load().Count(), 0);
  EXPECT_EQ(sim.files.Kind("/station/adinfo.ini"), FileKind::kAbsent);
}

TEST_P(AdFoldersTest, ALongNameAndOneWithLeadingBlanksAreNamesAsTheyStand) {
  const std::string longest(255, 'n');
  for (const std::string& name : {longest, std::string("  shoes")}) EXPECT_FALSE(Create(name));
  Load();
  EXPECT_EQ(Shown(), (Names{"  shoes", longest}));
}

TEST_P(AdFoldersTest, OnAFullDiskThereIsNoNewAdAndNobodyIsTold) {
  sim.files.SetDiskFull(true);
  EXPECT_FALSE(Create("shoes"));
  EXPECT_EQ(Load().Count(), 0);
}

TEST_P(AdFoldersTest, ADeleteTakesTheWholeFolderAndNeverTheStoreItself) {
  Ad("shoes");
  Ad("zoo");
  for (const char* name : {"", ".", "..", "shoes/..", "\\", "none"}) DeleteAdFolder(station, GetParam().store, name);
  EXPECT_EQ(Load().Count(), 2);
  DeleteAdFolder(station, GetParam().store, "shoes");
  Load();
  EXPECT_EQ(Shown(), (Names{"zoo"}));
}

class AdColumnsTest : public StationTest {
 protected:
  ListView& list = station.forms.Get<ListForm>().ListAd;
};

TEST_F(AdColumnsTest, ACrawlerAdShowsItsFiveCells) {
  sim.files.Put("/station/Ads/shoes/adinfo.ini",
                "[info]\r\nCompanyName=Shoes & Co\r\nAddress=High Street 1\r\nStartDate=1/2/2026\r\n"
                "EndDate=1/2/2020\r\nActive=1\r\n");
  LoadAdList(station, "/station/Ads/", list);
  EXPECT_EQ(list.Row(1).subItems, (Names{"Shoes & Co", "High Street 1", "1/2/2026", "1/2/2020", "Active"}));
}

TEST_F(AdColumnsTest, TheStatusIsOneOrZeroByNumberAndElseEmpty) {
  const std::pair<const char*, const char*> cases[] = {{"1", "Active"}, {"1.0", "Active"}, {"0", "Inactive"},
                                                       {"2", ""},       {"yes", ""},       {"", ""}};
  for (const auto& [value, shown] : cases) {
    sim.files.Put("/station/Ads/shoes/adinfo.ini", std::string("[Info]\r\nActive=") + value);
    LoadAdList(station, "/station/Ads/", list);
    EXPECT_EQ(list.Row(1).SubItem(5), shown) << value;
  }
}

TEST_F(AdColumnsTest, AVideoAdShowsCompanyAndAddress) {
  sim.files.Put("/station/VideoAd/zoo/adinfo.ini", "[AdInfo]\r\nCompany=Zoo\r\nAddress=Park 2\r\nFileName=z.mp4\r\n");
  LoadVideoAdList(station, "/station/VideoAd/", list);
  EXPECT_EQ(list.Row(1).subItems, (Names{"Zoo", "Park 2"}));
}

}  // namespace
