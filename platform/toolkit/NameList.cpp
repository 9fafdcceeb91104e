#include "platform/toolkit/NameList.h"

#include <utility>

#include "platform/toolkit/Failure.h"

NameList::NameList(Form& form, std::string name)
    : Control(form, std::move(name)), ListIndex(-1, [this](const int& index) {
        if (index != -1) List(index);
        if (index == ListIndex && !numberIsOld_) return;
        Take(index);
        if (index != -1) Handle("Click", [this] { Click.Raise(); });
      }) {}

const std::string& NameList::List(int index) const {
  if (index < 0 || index >= ListCount()) throw Failure("There is no such row in " + Name() + ".");
  return items_[static_cast<std::size_t>(index)];
}

std::string NameList::Selected() const { return ListIndex < 0 || ListIndex >= ListCount() ? "" : List(ListIndex); }

void NameList::Take(int index) {
  numberIsOld_ = false;
  ListIndex.Store(index);
}

void NameList::Pick(int index) {
  Handle("Click", [this, index] {
    List(index);  // fails for a row that is none
    Take(index);
    Click.Raise();
  });
}
