#pragma once

#include <string>

#include "platform/toolkit/NameList.h"

// A list of texts that the form fills, in the order in which they are added; the same text may stand there twice.
class ListBox : public NameList {
 public:
  ListBox(Form& form, std::string name) : NameList(form, std::move(name)) {}
  std::string_view Kind() const override { return "ListBox"; }

  void AddItem(const std::string& item);
  // Empties the list; nothing is selected then, and no click is raised.
  void Clear();
  // The selected text; empty when none is selected.
  std::string Text() const { return Selected(); }
  // The operator clicks a row twice; the first of the two has picked it.
  void DoubleClick();

  Event<> DblClick;
};
