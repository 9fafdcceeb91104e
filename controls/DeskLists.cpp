#include "controls/DeskLists.h"

#include "controls/McListBox.h"

void LookLikeTheDesk(McListBox& list) {
  using System = LookColour::System;
  list.RowHeight = 23;
  list.ShowIcon = true;
  list.FullRowSelect = true;
  list.FocusRectangle = true;
  list.AutoHideScrollBars = true;
  list.BackColor = System::kWindow;
  list.SelColor = System::kHighlight;
  list.SelForeColor = System::kHighlightText;
}
