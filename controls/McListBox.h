#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/Files.h"
#include "platform/toolkit/DrawnList.h"
#include "platform/toolkit/Settable.h"

// A list that is filled by AddItem, or fills itself with the drives, or with the folders or files of a path. Rows are
// counted from 0; every operation with a row that does not exist fails and changes nothing, unless it says otherwise.
class McListBox : public DrawnList {
 public:
  // What fills the list. In the modes that fill themselves the program can neither add nor remove.
  enum { kItems = 0, kDrives = 1, kFolders = 2, kFiles = 3, kDrivesToo = 4, kDrivesAlone = 5 };
  // Values of SortOrder.
  enum { kUnsorted = 0, kAscending = -1, kDescending = 1 };

  // `folder` is the program's own, where the list looks until it is given a path.
  McListBox(Form& form, std::string name, const std::string& folder);

  // The following three work with kItems only. The record goes before the row `index`, at the end for -1; then the list
  // is sorted.
  void AddItem(const std::string& item, int index = -1, int icon = -1, bool bold = false);
  // The selected row for -1; nothing then when none is selected.
  void Remove(int index = -1);
  void Clear();

  // Draws anew what has changed. In the modes that fill themselves it reads the path again first, and nothing is
  // selected after it.
  void Refresh();

  int ListCount() const { return static_cast<int>(rows_.size()); }
  // What is shown, the whole of it, whatever signs it holds; in the folder and file modes the bare name.
  const std::string& List(int index) const { return Row(index).text; }
  int ListIcon(int index) const { return Row(index).image; }
  bool ListBold(int index) const { return Row(index).bold; }
  // The text of the row at ListIndex; empty while none is selected.
  std::string Text() const { return ListIndex < 0 ? std::string() : List(ListIndex); }

  // How many are selected, and the texts of those, in the order of the list. None while MultiSelect is off.
  int SelCount() const;
  const std::string& SelItem(int index) const;
  // SelectAll works with MultiSelect only.
  void SelectAll();
  void ClearSelection();

  // Whether an item of that text is in the list, case ignored.
  bool CheckItem(std::string_view item) const;
  // The greatest value that ListIndex can have.
  int GetMax() const { return ListCount() - 1; }

  const std::vector<DrawnRow>& Rows() const override { return rows_; }
  int CurrentRow() const override { return ListIndex; }

  // Setting another value than the present one fills the list anew; with kItems it is empty then.
  Settable<int> Mode;
  // Where folders and files are read, ending in a separator unless it is empty. The very text that it has already
  // reads nothing; any other one, also the one without that separator, fills the list anew, and so empties one of
  // items. Not for kDrivesAlone.
  Settable<std::string> Path;
  // One pattern for names of files, case ignored; "*.*" fits every name. Another one fills the list anew; `Changed` is
  // raised each time it is set.
  Settable<std::string> Filter;
  // The row selected last; -1 while none is. Setting it selects that row alone, brings it into view and is no click.
  Settable<int> ListIndex;

  // Nothing has the system attribute here. Both count from the next filling on.
  Property<bool> ShowSystemFiles{false};
  Property<bool> ShowHiddenFiles{false};  // names that begin with a dot
  // While it is off, what the program changes is drawn by the next Refresh.
  Property<bool> AutoRefresh{true};
  // Sorts at once, and after each AddItem and Remove; the modes that fill themselves are never sorted.
  Property<int> SortOrder{kUnsorted};
  Property<bool> MultiSelect{false};

 protected:
  void TakePress(int row, Held held) override;
  void SelectOnly(int row) override;

 private:
  const DrawnRow& Row(int index) const;
  void SetMode(int mode);
  void SetPath(const std::string& path);
  void SetFilter(const std::string& filter);
  void Refill();
  void ScrollUp();
  void Fill();
  void AddEntries(FileKind kind, std::string_view pattern);
  void Sort();
  void RedrawIfAuto();
  void Select(int from, int to, int current);
  void Toggle(int row);

  std::vector<DrawnRow> rows_;
  int anchor_ = 0;  // where a selection with Shift begins
};
