#include "platform/toolkit/ListBox.h"

void ListBox::AddItem(const std::string& item) {
  items_.push_back(item);
  ItemsChanged.Raise();
}

void ListBox::Clear() {
  items_.clear();
  Take(-1);
  ItemsChanged.Raise();
}

void ListBox::DoubleClick() {
  Handle("DblClick", [this] { DblClick.Raise(); });
}
