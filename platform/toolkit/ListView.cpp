#include "platform/toolkit/ListView.h"

#include <utility>

#include "platform/CaseFold.h"
#include "platform/toolkit/Failure.h"

namespace {

// Both in lower form.
bool Matches(std::string_view row, std::string_view text, ListView::Match match) {
  return match == ListView::Match::kBeginning ? row.starts_with(text) : row == text;
}

}  // namespace

const std::string& ListRow::SubItem(int column) const {
  static const std::string kEmpty;
  return column < 1 || column > static_cast<int>(subItems.size()) ? kEmpty
                                                                  : subItems[static_cast<std::size_t>(column) - 1];
}

void ListView::Check(int index, int last) const {
  if (index < 1 || index > last) throw Failure("There is no such row in " + Name() + ".");
}

const ListRow& ListView::Row(int index) const {
  Check(index, Count());
  return rows_[static_cast<std::size_t>(index) - 1];
}

std::optional<ListRow> ListView::SelectedNow() const {
  return selectedItem_ == 0 ? std::nullopt : std::optional(Selected());
}

void ListView::Clear() { Assign({}); }

void ListView::Insert(int index, ListRow row) {
  Check(index, Count() + 1);
  const bool selected = row.selected;
  rows_.insert(rows_.begin() + (index - 1), std::move(row));
  if (selectedItem_ >= index) ++selectedItem_;
  if (selected) selectedItem_ = index;
  Tell(ListChange::What::kInserted, index);
}

void ListView::Remove(int index) {
  Check(index, Count());
  rows_.erase(rows_.begin() + (index - 1));
  if (selectedItem_ == index) selectedItem_ = 0;
  if (selectedItem_ > index) --selectedItem_;
  Tell(ListChange::What::kRemoved, index);
}

void ListView::Assign(std::vector<ListRow> rows, int selectedItem) {
  rows_ = std::move(rows);
  selectedItem_ = selectedItem >= 1 && selectedItem <= Count() && Row(selectedItem).selected ? selectedItem : 0;
  Tell(ListChange::What::kReset);
}

void ListView::Select(int index) {
  Check(index, Count());
  SelectRows({index}, index);
}

void ListView::SetSelected(int index, bool selected) {
  Check(index, Count());
  rows_[static_cast<std::size_t>(index) - 1].selected = selected;
  if (selected) selectedItem_ = index;
  Tell(ListChange::What::kSelection);
}

void ListView::SelectRows(const std::vector<int>& rows, int current) {
  for (const int index : rows) Check(index, Count());
  for (ListRow& row : rows_) row.selected = false;
  for (const int index : rows) rows_[static_cast<std::size_t>(index) - 1].selected = true;
  selectedItem_ = current;
  Tell(ListChange::What::kSelection);
}

void ListView::EnsureVisible(int index) {
  Check(index, Count());
  Tell(ListChange::What::kEnsureVisible, index);
}

int ListView::FindItem(std::string_view text, Match match) const {
  const std::string folded = FoldCase(text);
  for (int index = 1; index <= Count(); ++index) {
    if (Matches(FoldCase(rows_[static_cast<std::size_t>(index) - 1].text), folded, match)) return index;
  }
  return 0;
}

void ListView::ClickRow(int index) {
  Handle("Click", [this, index] {
    Select(index);
    Click.Raise();
  });
}

void ListView::ClickBesideRows() {
  Handle("Click", [this] { Click.Raise(); });
}
