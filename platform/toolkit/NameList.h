#pragma once

#include <string>
#include <vector>

#include "platform/toolkit/Control.h"
#include "platform/toolkit/Settable.h"

// A plain list of names, of which at most one is selected. Where they come from is for those that derive to say.
class NameList : public Control {
 public:
  int ListCount() const { return static_cast<int>(items_.size()); }
  // The name at an index from 0. Fails outside the list.
  const std::string& List(int index) const;
  // The operator clicks a row, the selected one too.
  void Pick(int index);

  // From 0; -1 while none is selected. Setting it raises the click, from code too, unless that row of that list is
  // selected already. Fails outside the list.
  Settable<int> ListIndex;

  Event<> ItemsChanged;
  Event<> Click;

 protected:
  NameList(Form& form, std::string name);

  // The name at ListIndex; empty when none is selected, or the list has no such row any more.
  std::string Selected() const;
  void Take(int index);
  // Other names stand in the list, and the number was taken among the former ones.
  void NumberIsOld() { numberIsOld_ = true; }

  std::vector<std::string> items_;

 private:
  bool numberIsOld_ = false;
};
