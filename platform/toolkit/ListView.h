#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/toolkit/Control.h"

// One row of a list view: its text, and the sub items that stand in the columns behind it, counted from 1.
struct ListRow {
  std::string text;
  std::vector<std::string> subItems;
  int smallIcon = 0;  // an image of the form's image list, from 1; 0 shows none
  bool selected = false;
  bool checked = false;
  std::string tag;
  std::string key;

  // Empty where the row has no such sub item.
  const std::string& SubItem(int column) const;

  bool operator==(const ListRow&) const = default;
};

// What has become different in a list view.
struct ListChange {
  enum class What { kReset, kInserted, kRemoved, kSelection, kEnsureVisible };
  What what = What::kReset;
  int index = 0;  // the row, from 1; meaningless for kReset and kSelection
};

// Rows in columns; several rows may be selected, and one of those is the selected item. Rows are counted from 1. Every
// operation with a row that does not exist fails and changes nothing.
class ListView : public Control {
 public:
  using Control::Control;
  std::string_view Kind() const override { return "ListView"; }

  int Count() const { return static_cast<int>(rows_.size()); }
  const ListRow& Row(int index) const;
  const std::vector<ListRow>& Rows() const { return rows_; }

  void Clear();
  void Add(ListRow row) { Insert(Count() + 1, std::move(row)); }
  void Insert(int index, ListRow row);
  void Remove(int index);
  // All rows at once. `selectedItem` is the selected item if there is such a row and it is selected.
  void Assign(std::vector<ListRow> rows, int selectedItem = 0);

  // The row that has been selected last; 0 while there is none.
  int SelectedItem() const { return selectedItem_; }
  // The selected item. Fails while there is none.
  const ListRow& Selected() const { return Row(selectedItem_); }
  // The selected item as it is now, for a question about it: timers may select another before the answer.
  std::optional<ListRow> SelectedNow() const;
  // Makes this the one selected row.
  void Select(int index);
  // Selects a row beside the others, or takes it out. Selecting makes it the selected item.
  void SetSelected(int index, bool selected);
  void EnsureVisible(int index);

  enum class Match { kWhole, kBeginning };
  // The first row whose text is `text`, or begins with it, case ignored; 0 when there is none.
  int FindItem(std::string_view text, Match match = Match::kWhole) const;

  // The operator clicks a row.
  void ClickRow(int index);
  // The operator clicks where no row is; what is selected stays.
  void ClickBesideRows();
  // The operator's keys or a rubber band select these rows; `current` is the selected item. No click.
  void SelectRows(const std::vector<int>& rows, int current);

  // The image list that small icons come from; empty: none are shown.
  Property<std::string> SmallIcons;

  Event<const ListChange&> Changed;
  Event<> Click;

 private:
  void Check(int index, int last) const;
  void Tell(ListChange::What what, int index = 0) { Changed.Raise(ListChange{what, index}); }

  std::vector<ListRow> rows_;
  int selectedItem_ = 0;
};
