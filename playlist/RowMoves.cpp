#include "playlist/RowMoves.h"

namespace {

// Where a row at `index` goes, in the list as it stands before the row is taken out.
int NewPlace(RowMove move, int index, int count) {
  switch (move) {
    case RowMove::kUp:
      return index - 1;
    case RowMove::kDown:
      return index + 2;
    case RowMove::kTop:
      return 1;
    case RowMove::kBottom:
      return count + 1;
  }
  return index;
}

void MoveRow(ListView& list, int index, int place) {
  ListRow row = list.Row(index);
  row.smallIcon = 1;
  row.selected = false;
  list.Insert(place, std::move(row));
  const bool insertedAbove = place <= index;
  list.Remove(insertedAbove ? index + 1 : index);
  list.SetSelected(insertedAbove ? place : place - 1, true);
}

}  // namespace

void MoveSelectedRows(ListView& list, RowMove move) {
  const bool forward = move == RowMove::kUp || move == RowMove::kTop;
  const int count = list.Count();
  bool unselectedPassed = false;
  for (int step = 0; step < count; ++step) {
    const int index = forward ? step + 1 : count - step;
    if (!list.Row(index).selected) {
      unselectedPassed = true;
    } else if (unselectedPassed) {
      MoveRow(list, index, NewPlace(move, index, count));
    }
  }
}
