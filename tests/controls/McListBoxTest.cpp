#include "tests/controls/McListBoxTest.h"

#include "platform/toolkit/Failure.h"

namespace {

using Key = DrawnList::Key;
using Held = DrawnList::Held;

TEST_F(McListBoxTest, AListThatIsPlacedFirstHasTheseProperties) {
  EXPECT_EQ(list.Mode, 0);
  EXPECT_EQ(list.Path.Get(), "/station/");
  EXPECT_EQ(list.Filter.Get(), "*.*");
  EXPECT_FALSE(list.ShowSystemFiles || list.ShowHiddenFiles || list.MultiSelect);
  EXPECT_TRUE(list.AutoRefresh);
  EXPECT_EQ(list.SortOrder, 0);
  EXPECT_EQ(list.ListIndex, -1);
  EXPECT_EQ(list.Text(), "");
  EXPECT_EQ(list.ListCount(), 0);
}

TEST_F(McListBoxTest, AListThatIsPlacedFirstLooksLikeThis) {
  using System = LookColour::System;
  EXPECT_EQ(list.RowHeight, 22);
  EXPECT_FALSE(list.FullRowSelect || list.ShowIcon || list.StrechIcon || list.GridLines || list.BackGradient);
  EXPECT_FALSE(list.SelGradient || list.FocusRectangle || list.FlatScrollBar || list.AutoHideScrollBars);
  EXPECT_TRUE(list.IconFocus);
  EXPECT_EQ(list.IconExtractSize, 0);
  EXPECT_EQ(list.GridColor.Get(), LookColour(System::kButtonFace));
  EXPECT_EQ(list.BackColor.Get(), LookColour(kWhite));
  EXPECT_EQ(list.ForeColor.Get(), LookColour(System::kButtonText));
  EXPECT_EQ(list.SelColor.Get(), LookColour(Colour{0x1A, 0x8C, 0xFF}));
  EXPECT_EQ(list.SelForeColor.Get(), LookColour(kWhite));
  EXPECT_EQ(list.BackGradientCol.Get(), LookColour(Colour{0xC0, 0xC0, 0xC0}));
  EXPECT_EQ(list.SelGradientCol.Get(), LookColour(kWhite));
  EXPECT_EQ(list.SelectionStyle, 1);
  EXPECT_EQ(list.TextAlignment, 0);
  EXPECT_TRUE(list.Font.Get().name.empty());
}

TEST_F(McListBoxTest, AnItemGoesBeforeItsIndexOrToTheEnd) {
  Add({"a", "b"});
  list.AddItem("first", 0);
  list.AddItem("third", 2);
  list.AddItem("last", -1, 4, true);
  EXPECT_EQ(Shown(), (Names{"first", "a", "third", "b", "last"}));
  EXPECT_EQ(list.ListIcon(4), 4);
  EXPECT_TRUE(list.ListBold(4));
  EXPECT_EQ(list.ListIcon(0), -1);
  EXPECT_FALSE(list.ListBold(0));
  EXPECT_EQ(redraws, 5);
}

TEST_F(McListBoxTest, AnItemBeyondTheListIsNotAdded) {
  EXPECT_THROW(list.AddItem("x", 1), Failure);
  EXPECT_THROW(list.AddItem("x", -2), Failure);
  EXPECT_EQ(list.ListCount(), 0);
}

TEST_F(McListBoxTest, ATextThatHoldsTheSeparatorOfTheRecordsStaysWhole) {
  list.SortOrder = McListBox::kAscending;
  Add({"b<%S%>7<%S%>True", "a<%S%>"});
  EXPECT_EQ(Shown(), (Names{"a<%S%>", "b<%S%>7<%S%>True"}));
  EXPECT_EQ(list.ListIcon(1), -1);
  EXPECT_FALSE(list.ListBold(1));
}

TEST_F(McListBoxTest, RemovingWithoutAnIndexTakesTheSelectedRowAndNothingWhereNoneIs) {
  Add({"a", "b", "c"});
  list.Remove();
  EXPECT_EQ(list.ListCount(), 3);
  list.ListIndex = 1;
  list.Remove(-1);
  EXPECT_EQ(Shown(), (Names{"a", "c"}));
  EXPECT_EQ(list.ListIndex, -1);
}

TEST_F(McListBoxTest, TheSelectionStaysOnItsRowWhenOthersComeAndGo) {
  Add({"a", "b", "c"});
  list.ListIndex = 1;
  list.AddItem("new", 0);
  EXPECT_EQ(list.Text(), "b");
  list.Remove(0);
  EXPECT_EQ(list.Text(), "b");
  list.Remove(2);
  EXPECT_EQ(list.Text(), "b");
  EXPECT_THROW(list.Remove(2), Failure);
}

TEST_F(McListBoxTest, ClearEmptiesTheList) {
  Add({"a", "b"});
  list.ListIndex = 1;
  list.Clear();
  EXPECT_EQ(list.ListCount(), 0);
  EXPECT_EQ(list.ListIndex, -1);
}

TEST_F(McListBoxTest, AscendingOrderPutsCapitalAUpBeforeSmallB) {
  list.SortOrder = -1;
  Add({"b", "A"});
  EXPECT_EQ(Shown(), (Names{"A", "b"}));
}

TEST_F(McListBoxTest, DescendingOrderTurnsItRoundAndEqualItemsKeepTheirOrder) {
  list.SortOrder = 1;
  Add({"b", "A", "c", "B"});
  EXPECT_EQ(Shown(), (Names{"c", "b", "B", "A"}));
  list.SortOrder = -1;
  EXPECT_EQ(Shown(), (Names{"A", "b", "B", "c"}));
}

TEST_F(McListBoxTest, AnyOtherOrderSortsNothing) {
  for (const int order : {0, 2, -7}) {
    list.Clear();
    list.SortOrder = order;
    Add({"b", "A", "c"});
    EXPECT_EQ(Shown(), (Names{"b", "A", "c"}));
  }
}

TEST_F(McListBoxTest, ItemsAreSortedByTheWholeRecordSoThatALongerTextMayStandBeforeItsBeginning) {
  list.SortOrder = -1;
  Add({"a", "a b"});
  EXPECT_EQ(Shown(), (Names{"a b", "a"}));  // "<" of the separator is behind the blank
  list.Clear();
  list.AddItem("same", -1, 2);
  list.AddItem("same", -1, 10);
  EXPECT_EQ(list.ListIcon(0), 10);  // numbers as texts
  list.Clear();
  list.AddItem("same", -1, -1, true);
  list.AddItem("same", -1, -1, false);
  EXPECT_FALSE(list.ListBold(0));  // "False" before "True"
}

TEST_F(McListBoxTest, TheSelectionGoesWithItsRowWhenItIsSorted) {
  Add({"b", "c", "a"});
  list.ListIndex = 0;
  list.SortOrder = -1;
  EXPECT_EQ(list.ListIndex, 1);
  EXPECT_EQ(list.Text(), "b");
  list.AddItem("A0");
  EXPECT_EQ(list.Text(), "b");
  EXPECT_TRUE(list.Rows()[2].selected);
}

TEST_F(McListBoxTest, SettingTheListIndexSelectsThatRowAloneAndIsNoClick) {
  Add({"a", "b"});
  list.ListIndex = 0;
  list.ListIndex = 1;
  EXPECT_EQ(list.Text(), "b");
  EXPECT_FALSE(list.Rows()[0].selected);
  EXPECT_EQ(clicks, 0);
  EXPECT_EQ(wanted, (std::vector<int>{0, 1}));
  EXPECT_THROW(list.ListIndex = 2, Failure);
  EXPECT_EQ(list.ListIndex, 1);
  list.ListIndex = -1;
  EXPECT_EQ(list.Text(), "");
}

TEST_F(McListBoxTest, KeysMoveTheListIndexKeepTheRowInViewAndAreNoClick) {
  for (int row = 0; row < 30; ++row) list.AddItem("row " + std::to_string(row));
  const struct {
    Key key;
    int row;
  } steps[] = {{Key::kDown, 0}, {Key::kDown, 1},  {Key::kPageDown, 11}, {Key::kUp, 10},
               {Key::kEnd, 29}, {Key::kDown, 29}, {Key::kPageDown, 29}, {Key::kPageUp, 19},
               {Key::kHome, 0}, {Key::kUp, 0},    {Key::kPageUp, 0}};
  for (const auto& step : steps) {
    list.PressKey(step.key, 10);
    EXPECT_EQ(list.ListIndex, step.row);
    EXPECT_EQ(wanted.back(), step.row);
  }
  EXPECT_EQ(clicks, 0);
}

TEST_F(McListBoxTest, AKeyInAnEmptyListDoesNothing) {
  list.PressKey(Key::kEnd);
  EXPECT_EQ(list.ListIndex, -1);
  EXPECT_TRUE(wanted.empty());
}

TEST_F(McListBoxTest, APressSelectsTheRowAloneAndTheClickComesWhenItIsLetGo) {
  Add({"a", "b", "c"});
  list.PressRow(1);
  EXPECT_EQ(list.ListIndex, 1);
  EXPECT_EQ(clicks, 0);
  list.ClickRows();
  EXPECT_EQ(clicks, 1);
  list.PressRow(2, Held::kCtrl);  // one row at most, whatever is held
  EXPECT_FALSE(list.Rows()[1].selected);
  EXPECT_EQ(list.SelCount(), 0);
}

TEST_F(McListBoxTest, APressBesideTheRowsAndAClickWithNothingSelectedDoNothing) {
  Add({"a"});
  list.ClickRows();
  list.PressRow(1);
  list.PressRow(-1);
  EXPECT_EQ(list.ListIndex, -1);
  EXPECT_EQ(clicks, 0);
}

TEST_F(McListBoxTest, WhatIsDisabledTakesNoPressNoKeyAndNoClick) {
  Add({"a", "b"});
  list.ListIndex = 0;
  list.Enabled = false;
  list.PressRow(1);
  list.PressKey(Key::kDown);
  list.ClickRows();
  EXPECT_EQ(list.ListIndex, 0);
  EXPECT_EQ(clicks, 0);
}

TEST_F(McListBoxTest, ManyMayBeSelectedWithCtrlAndFromTheAnchorWithShift) {
  list.MultiSelect = true;
  Add({"a", "b", "c", "d", "e"});
  list.PressRow(1);
  list.PressRow(3, Held::kShift);
  EXPECT_EQ(Selected(), (Names{"b", "c", "d"}));
  list.PressRow(0, Held::kShift);  // the anchor is still the row that was pressed alone
  EXPECT_EQ(Selected(), (Names{"a", "b"}));
  list.PressRow(4, Held::kCtrl);
  EXPECT_EQ(Selected(), (Names{"a", "b", "e"}));
  EXPECT_EQ(list.Text(), "e");
  list.PressRow(4, Held::kCtrl);
  EXPECT_EQ(Selected(), (Names{"a", "b"}));
  EXPECT_EQ(list.Text(), "a");
  list.PressRow(2);
  EXPECT_EQ(Selected(), Names{"c"});
  EXPECT_THROW(list.SelItem(1), Failure);
}

TEST_F(McListBoxTest, TakingTheLastRowOutOfTheSelectionLeavesNothingSelected) {
  list.MultiSelect = true;
  Add({"a"});
  list.PressRow(0, Held::kCtrl);
  EXPECT_EQ(list.ListIndex, 0);
  list.PressRow(0, Held::kCtrl);
  EXPECT_EQ(list.ListIndex, -1);
}

TEST_F(McListBoxTest, AllAreSelectedOnlyWhereManyMayBeAndNoneIsAfterClearing) {
  Add({"a", "b"});
  list.SelectAll();
  EXPECT_EQ(list.ListIndex, -1);
  list.MultiSelect = true;
  list.SelectAll();
  EXPECT_EQ(Selected(), (Names{"a", "b"}));
  list.ClearSelection();
  EXPECT_EQ(list.SelCount(), 0);
  EXPECT_EQ(list.ListIndex, -1);
}

TEST_F(McListBoxTest, WithoutAutoRefreshAChangeIsDrawnByTheNextRefreshAndAPressAtOnce) {
  list.AutoRefresh = false;
  Add({"a", "b"});
  list.ListIndex = 0;
  EXPECT_EQ(redraws, 0);
  list.Refresh();
  EXPECT_EQ(redraws, 1);
  EXPECT_EQ(Shown(), (Names{"a", "b"}));
  list.PressRow(1);
  EXPECT_EQ(redraws, 2);
}

TEST_F(McListBoxTest, AnItemIsFoundWhateverItsCase) {
  Add({"News", "Sport"});
  EXPECT_TRUE(list.CheckItem("SPORT"));
  EXPECT_FALSE(list.CheckItem("Spor"));
  EXPECT_EQ(list.GetMax(), 1);
}

TEST_F(McListBoxTest, EachPropertyOfTheLookIsToldWhenItChanges) {
  int told = 0;
  list.LookChanged.Connect([&] { ++told; });
  list.RowHeight = 23;
  list.RowHeight = 23;
  list.BackColor = LookColour::System::kWindow;
  list.BorderStyle = 0;
  EXPECT_EQ(told, 3);
}

}  // namespace
