#include "controls/McListBox.h"

#include <algorithm>

#include "controls/Records.h"
#include "platform/CaseFold.h"
#include "platform/toolkit/Failure.h"
#include "platform/toolkit/Form.h"
#include "platform/toolkit/Wildcards.h"

namespace {

constexpr char kSeparator = '/';
constexpr char kEveryName[] = "*.*";

std::string WithSeparator(const std::string& path) {
  return path.empty() || path.ends_with(kSeparator) || path.ends_with('\\') ? path : path + kSeparator;
}

}  // namespace

McListBox::McListBox(Form& form, std::string name, const std::string& folder)
    : DrawnList(form, std::move(name)),
      Mode(kItems, [this](int mode) { SetMode(mode); }),
      Path(WithSeparator(folder), [this](const std::string& path) { SetPath(path); }),
      Filter(kEveryName, [this](const std::string& filter) { SetFilter(filter); }),
      ListIndex(-1, [this](int index) {
        if (index != -1) Row(index);
        Select(index, index, index);
        RedrawIfAuto();
        if (index != -1) RowWanted.Raise(index);
      }) {
  SortOrder.Changed.Connect([this] {
    Sort();
    RedrawIfAuto();
  });
}

const DrawnRow& McListBox::Row(int index) const {
  if (index < 0 || index >= ListCount()) throw Failure("There is no such row in " + Name() + ".");
  return rows_[static_cast<std::size_t>(index)];
}

void McListBox::SetMode(int mode) {
  if (mode == Mode) return;
  Mode.Store(mode);
  Refill();
}

void McListBox::SetPath(const std::string& path) {
  if (path == Path.Get() || Mode == kDrivesAlone) return;
  Path.Store(WithSeparator(path));
  Refill();
}

void McListBox::SetFilter(const std::string& filter) {
  const bool other = filter != Filter.Get();
  Filter.Store(filter);
  if (other) Refill();
}

void McListBox::Refill() {
  Fill();
  RedrawIfAuto();
  ScrollUp();
}

void McListBox::ScrollUp() {
  if (!rows_.empty()) RowWanted.Raise(0);
}

// A list of items is emptied by it too: a new path or filter leaves nothing of what the program has added. Meant so.
void McListBox::Fill() {
  rows_.clear();
  anchor_ = 0;
  ListIndex.Store(-1);
  switch (Mode.Get()) {
    case kDrives:
    case kDrivesToo:
    case kDrivesAlone:
      for (const std::string& drive : Owner().Outside().files.Drives()) {
        rows_.push_back({.text = drive, .icon = DrawnRow::Icon::kDrive});
      }
      break;
    case kFolders:
      AddEntries(FileKind::kFolder, kEveryName);
      break;
    case kFiles:
      AddEntries(FileKind::kRegular, Filter.Get());
      break;
    default:
      break;
  }
}

void McListBox::AddEntries(FileKind kind, std::string_view pattern) {
  if (Path.Get().empty()) return;
  for (const std::string& name : Owner().Outside().files.List(Path, kind)) {
    if (name.starts_with('.') && !ShowHiddenFiles) continue;
    if (pattern != kEveryName && !MatchesPattern(name, pattern)) continue;
    DrawnRow row{.text = name, .icon = DrawnRow::Icon::kFolder};
    if (kind == FileKind::kRegular) {
      row.icon = DrawnRow::Icon::kFile;
      row.iconOf = IconKey(Path, name);
    }
    rows_.push_back(std::move(row));
  }
}

void McListBox::AddItem(const std::string& item, int index, int icon, bool bold) {
  if (Mode != kItems) return;
  if (index != -1 && index != ListCount()) Row(index);
  const int place = index == -1 ? ListCount() : index;
  rows_.insert(rows_.begin() + place, {.text = item, .image = icon, .bold = bold});
  if (ListIndex >= place) ListIndex.Store(ListIndex + 1);
  Sort();
  RedrawIfAuto();
}

void McListBox::Remove(int index) {
  if (Mode != kItems) return;
  const int place = index == -1 ? ListIndex.Get() : index;
  if (place == -1) return;
  Row(place);
  rows_.erase(rows_.begin() + place);
  if (ListIndex == place) {
    ListIndex.Store(-1);
  } else if (ListIndex > place) {
    ListIndex.Store(ListIndex - 1);
  }
  Sort();
  RedrawIfAuto();
}

void McListBox::Clear() {
  if (Mode == kItems) Refill();
}

void McListBox::Refresh() {
  if (Mode != kItems) Fill();
  Redraw.Raise();
  if (Mode != kItems) ScrollUp();
}

// Each record goes before the first sorted one that it compares with as the order says, or to the end. The selection
// goes with its row.
void McListBox::Sort() {
  if (Mode != kItems || SortOrder == kUnsorted) return;
  std::vector<DrawnRow> sorted;
  int current = -1;
  for (int index = 0; index < ListCount(); ++index) {
    const std::string record = RecordOf(Row(index));
    const auto place = std::ranges::find_if(
        sorted, [&](const DrawnRow& other) { return CompareRecords(record, RecordOf(other)) == SortOrder; });
    const int at = static_cast<int>(place - sorted.begin());
    if (current >= at) ++current;
    if (index == ListIndex) current = at;
    sorted.insert(place, Row(index));
  }
  rows_ = std::move(sorted);
  if (current != ListIndex) ListIndex.Store(current);
}

void McListBox::RedrawIfAuto() {
  if (AutoRefresh) Redraw.Raise();
}

int McListBox::SelCount() const {
  return MultiSelect ? static_cast<int>(std::ranges::count(rows_, true, &DrawnRow::selected)) : 0;
}

const std::string& McListBox::SelItem(int index) const {
  for (const DrawnRow& row : rows_) {
    if (MultiSelect && row.selected && index-- == 0) return row.text;
  }
  throw Failure("There is no such selected row in " + Name() + ".");
}

void McListBox::SelectAll() {
  if (!MultiSelect || rows_.empty()) return;
  Select(0, GetMax(), ListIndex == -1 ? 0 : ListIndex.Get());
  RedrawIfAuto();
}

void McListBox::ClearSelection() { ListIndex = -1; }

bool McListBox::CheckItem(std::string_view item) const {
  return std::ranges::any_of(rows_, [item](const DrawnRow& row) { return EqualIgnoringCase(row.text, item); });
}

void McListBox::Select(int from, int to, int current) {
  for (int index = 0; index < ListCount(); ++index) {
    rows_[static_cast<std::size_t>(index)].selected = index >= from && index <= to;
  }
  ListIndex.Store(current);
}

void McListBox::SelectOnly(int row) {
  anchor_ = row;
  Select(row, row, row);
  Redraw.Raise();
}

void McListBox::TakePress(int row, Held held) {
  if (MultiSelect && held == Held::kShift) {
    const int anchor = std::min(anchor_, GetMax());
    Select(std::min(anchor, row), std::max(anchor, row), row);
    Redraw.Raise();
  } else if (MultiSelect && held == Held::kCtrl) {
    Toggle(row);
    Redraw.Raise();
  } else {
    SelectOnly(row);
  }
}

// A row that is taken out of the selection hands its place on to the first that is still selected.
void McListBox::Toggle(int row) {
  DrawnRow& toggled = rows_[static_cast<std::size_t>(row)];
  toggled.selected = !toggled.selected;
  const auto first = std::ranges::find(rows_, true, &DrawnRow::selected);
  const int other = first == rows_.end() ? -1 : static_cast<int>(first - rows_.begin());
  ListIndex.Store(toggled.selected ? row : other);
}
