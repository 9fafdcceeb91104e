#include "platform/toolkit/DrawnList.h"

#include <algorithm>

DrawnLook::DrawnLook() {
  Tell(RowHeight, FullRowSelect, ShowIcon, IconFocus, StrechIcon, IconExtractSize, GridLines, GridColor, BackColor,
       ForeColor, SelColor, SelForeColor, BackGradient, BackGradientCol, SelGradient, SelGradientCol, SelectionStyle,
       TextAlignment, FocusRectangle, FlatScrollBar, AutoHideScrollBars, Picture, Font, Appearance, BorderStyle);
}

void DrawnList::PressRow(int row, Held held) {
  if (!Enabled || row < 0 || row >= std::ssize(Rows())) return;
  Handle("Press", [this, row, held] { TakePress(row, held); });
}

void DrawnList::PressKey(Key key, int page) {
  const int last = static_cast<int>(std::ssize(Rows())) - 1;
  if (!Enabled || last < 0) return;
  const int now = CurrentRow();
  const auto wanted = [&] {
    switch (key) {
      case Key::kUp:
        return now - 1;
      case Key::kDown:
        return now + 1;
      case Key::kHome:
        return 0;
      case Key::kEnd:
        return last;
      case Key::kPageUp:
        return now - std::max(page, 1);
      case Key::kPageDown:
        return now + std::max(page, 1);
    }
    return now;
  }();
  Handle("Key", [this, row = std::clamp(wanted, 0, last)] {
    SelectOnly(row);
    RowWanted.Raise(row);
  });
}

void DrawnList::ClickRows() {
  if (Enabled && CurrentRow() >= 0) Handle("Click", [this] { Click.Raise(); });
}
