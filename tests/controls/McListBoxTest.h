#pragma once

#include <string>
#include <vector>

#include "tests/StationTest.h"
#include "tests/controls/frmLists.h"

class McListBoxTest : public StationTest {
 protected:
  McListBoxTest() {
    list.Redraw.Connect([this] { ++redraws; });
    list.Click.Connect([this] { ++clicks; });
    list.RowWanted.Connect([this](int row) { wanted.push_back(row); });
  }

  void Add(const Names& items) {
    for (const std::string& item : items) list.AddItem(item);
  }
  Names Shown() {
    Names texts;
    for (int index = 0; index < list.ListCount(); ++index) texts.push_back(list.List(index));
    return texts;
  }
  Names Selected() {
    Names texts;
    for (int index = 0; index < list.SelCount(); ++index) texts.push_back(list.SelItem(index));
    return texts;
  }

  McListBox& list = station.forms.Get<frmLists>().List;
  int redraws = 0;
  int clicks = 0;
  std::vector<int> wanted;
};
