#include "platform/toolkit/Widgets.h"

#include <algorithm>

#include "platform/toolkit/Failure.h"

void CommandButton::Press() {
  if (Enabled) Handle("Click", [this] { Click.Raise(); });
}

void CheckBox::Toggle() {
  if (!Enabled) return;
  Value = Ticked() ? 0 : 1;
  Handle("Click", [this] { Click.Raise(); });
}

void TextBox::Type(const std::string& text) {
  Text = text;
  Handle("Change", [this] { Change.Raise(); });
}

void ComboBox::AddItem(const std::string& item) {
  items_.push_back(item);
  ItemsChanged.Raise();
}

const std::string& ComboBox::List(int index) const {
  if (index < 0 || index >= ListCount()) throw Failure("There is no such item in " + Name() + ".");
  return items_[static_cast<std::size_t>(index)];
}

void ComboBox::Pick(int index) {
  Handle("Click", [this, index] {
    Text = List(index);
    Click.Raise();
  });
}

void ComboBox::Type(const std::string& text) { Text = text; }

void Slider::Work(int value) {
  if (!Enabled) return;
  Value = std::clamp(value, Min.Get(), std::max(Min.Get(), Max.Get()));
  Handle("Worked", [this] { Worked.Raise(); });
}
