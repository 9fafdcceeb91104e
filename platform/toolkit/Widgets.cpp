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

ComboBox::ComboBox(Form& form, std::string name)
    : Control(form, std::move(name)), ListIndex(-1, [this](int index) { Take(index); }) {
  Follow();
}

ComboBox::ComboBox(Control& container, std::string name)
    : Control(container, std::move(name)), ListIndex(-1, [this](int index) { Take(index); }) {
  Follow();
}

void ComboBox::Take(int index) {
  const std::string text = index == -1 ? std::string() : List(index);
  ListIndex.Store(index);
  Text = text;
}

void ComboBox::Follow() {
  Text.Changed.Connect([this] {
    if (ListIndex != -1 && Text.Get() != List(ListIndex)) ListIndex.Store(-1);
  });
}

void ComboBox::Clear() {
  ListIndex = -1;
  items_.clear();
  ItemsChanged.Raise();
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
    List(index);  // fails for an item that is none
    ListIndex = index;
    Click.Raise();
  });
}

void ComboBox::Type(const std::string& text) { Text = text; }

void Slider::Work(int value) { Take(value, "Worked", Worked); }

void Slider::Move(int value) { Take(value, "Scroll", Scroll); }

void Slider::LetGo(int value) { Take(value, "Click", Click); }

void Slider::Take(int value, const char* name, Event<>& told) {
  if (!Enabled) return;
  Value = std::clamp(value, Min.Get(), std::max(Min.Get(), Max.Get()));
  Handle(name, [&told] { told.Raise(); });
}
