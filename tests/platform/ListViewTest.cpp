#include "platform/toolkit/Failure.h"
#include "platform/toolkit/Form.h"
#include "platform/toolkit/ListView.h"
#include "tests/StationTest.h"

namespace {

class frmRows : public Form {
 public:
  explicit frmRows(Station& station) : Form(station.forms, "frmRows", Kind::kOperator) {}
  ListView List{*this, "List"};
};

}  // namespace

// The list holds the rows a, b, c and d, and b is selected.
class ListViewTest : public StationTest {
 protected:
  ListViewTest() {
    for (const char* text : {"a", "b", "c", "d"}) list.Add({.text = text, .subItems = {}});
    list.Select(2);
    watching = list.Changed.Subscribe([this](const ListChange& change) {
      static constexpr const char* kNames[] = {"reset", "inserted", "removed", "selection", "shown"};
      const bool hasRow = change.what != ListChange::What::kReset && change.what != ListChange::What::kSelection;
      told.push_back(kNames[static_cast<int>(change.what)] + (hasRow ? " " + std::to_string(change.index) : ""));
    });
    list.Click.Connect([this] { ++clicks; });
  }

  // "a(b)c": selected rows in brackets, and behind it the number of the selected item.
  std::string Rows() const {
    std::string text;
    for (const ListRow& row : list.Rows()) text += row.selected ? "(" + row.text + ")" : row.text;
    return text + " " + std::to_string(list.SelectedItem());
  }

  ListView& list = station.forms.Get<frmRows>().List;
  Subscription watching;
  Names told;
  int clicks = 0;
};

TEST_F(ListViewTest, TheSelectedItemKeepsItsRowWhenOthersComeAndGo) {
  EXPECT_EQ(Rows(), "a(b)cd 2");
  list.Insert(2, {.text = "x", .subItems = {}});
  EXPECT_EQ(Rows(), "ax(b)cd 3");
  list.Insert(4, {.text = "y", .subItems = {}});
  EXPECT_EQ(Rows(), "ax(b)ycd 3");
  list.Remove(1);
  EXPECT_EQ(Rows(), "x(b)ycd 2");
  list.Remove(3);
  EXPECT_EQ(Rows(), "x(b)cd 2");
  EXPECT_EQ(told, (Names{"inserted 2", "inserted 4", "removed 1", "removed 3"}));
}

TEST_F(ListViewTest, ARowThatComesSelectedIsTheSelectedItemAndWithItsRowItGoes) {
  list.Insert(1, {.text = "x", .subItems = {}, .selected = true});
  EXPECT_EQ(Rows(), "(x)a(b)cd 1");
  list.Remove(1);
  EXPECT_EQ(Rows(), "a(b)cd 0");
  EXPECT_THROW(list.Selected(), Failure);
}

TEST_F(ListViewTest, ARowIsAddedAtTheEnd) {
  list.Add({.text = "e", .subItems = {}});
  EXPECT_EQ(Rows(), "a(b)cde 2");
  EXPECT_EQ(told, Names{"inserted 5"});
}

TEST_F(ListViewTest, OneRowOrSeveralAreSelected) {
  list.Select(4);
  EXPECT_EQ(Rows(), "abc(d) 4");
  EXPECT_EQ(list.Selected().text, "d");
  list.SetSelected(1, true);
  EXPECT_EQ(Rows(), "(a)bc(d) 1");
  list.SetSelected(4, false);
  EXPECT_EQ(Rows(), "(a)bcd 1");
  list.SelectRows({2, 3}, 3);
  EXPECT_EQ(Rows(), "a(b)(c)d 3");
  list.SelectRows({}, 0);
  EXPECT_EQ(Rows(), "abcd 0");
  EXPECT_EQ(told, (Names{"selection", "selection", "selection", "selection", "selection"}));
}

TEST_F(ListViewTest, AllRowsAtOnceKeepASelectedItemOnlyWhereThatRowIsSelected) {
  const auto rows = [] {
    return std::vector<ListRow>{{.text = "x", .subItems = {}, .selected = true}, {.text = "y", .subItems = {}}};
  };
  list.Assign(rows(), 1);
  EXPECT_EQ(Rows(), "(x)y 1");
  for (const int none : {2, 3, 0, -1}) {
    list.Assign(rows(), none);
    EXPECT_EQ(Rows(), "(x)y 0") << none;
  }
  list.Assign(rows());
  EXPECT_EQ(Rows(), "(x)y 0");
  list.Clear();
  EXPECT_EQ(Rows(), " 0");
  EXPECT_EQ(told, Names(7, "reset"));
}

TEST_F(ListViewTest, AnOperationWithARowThatDoesNotExistFailsAndChangesNothing) {
  for (const int row : {-1, 0, 5}) {
    EXPECT_THROW(list.Row(row), Failure) << row;
    EXPECT_THROW(list.Remove(row), Failure) << row;
    EXPECT_THROW(list.Select(row), Failure) << row;
    EXPECT_THROW(list.SetSelected(row, true), Failure) << row;
    EXPECT_THROW(list.SelectRows({1, row}, 1), Failure) << row;
    EXPECT_THROW(list.EnsureVisible(row), Failure) << row;
    EXPECT_THROW(list.Insert(row == 5 ? 6 : row, {.text = "x", .subItems = {}}), Failure) << row;
  }
  EXPECT_EQ(Rows(), "a(b)cd 2");
  EXPECT_EQ(told, Names{});
}

TEST_F(ListViewTest, ARowIsScrolledIntoViewWithoutBeingSelected) {
  list.EnsureVisible(1);
  list.EnsureVisible(4);
  EXPECT_EQ(Rows(), "a(b)cd 2");
  EXPECT_EQ(told, (Names{"shown 1", "shown 4"}));
}

TEST_F(ListViewTest, AClickSelectsItsRowAloneAndThenIsTold) {
  list.SetSelected(1, true);
  std::string seen;
  list.Click.Connect([&] { seen = Rows(); });
  list.ClickRow(3);
  EXPECT_EQ(seen, "ab(c)d 3");
  EXPECT_EQ(clicks, 1);
  list.SelectRows({1}, 1);  // by the keys: no click
  EXPECT_EQ(clicks, 1);
}

TEST_F(ListViewTest, AClickBesideTheRowsIsAFailureThatTheOperatorSeesAndNoClick) {
  sim.trace.Take();
  list.ClickRow(5);
  EXPECT_EQ(sim.trace.Take(), Names{"box \"There is no such row in List.\" \"Corvanta 6.0\""});
  EXPECT_EQ(clicks, 0);
  EXPECT_EQ(Rows(), "a(b)cd 2");
}

TEST_F(ListViewTest, ASubItemThatARowHasNotIsEmpty) {
  const ListRow row{.text = "a", .subItems = {"one", "two"}};
  EXPECT_EQ(row.SubItem(1), "one");
  EXPECT_EQ(row.SubItem(2), "two");
  for (const int none : {-1, 0, 3}) EXPECT_EQ(row.SubItem(none), "") << none;
}
