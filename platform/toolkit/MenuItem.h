#pragma once

#include <string>

#include "platform/toolkit/Component.h"
#include "platform/toolkit/Property.h"

// An entry of a form's menu, or a menu of entries. Where it stands and what it says is in the form's layout file, under
// its name.
class MenuItem : public Component {
 public:
  using Component::Component;

  // The operator chooses it.
  void Choose() {
    if (Enabled) Handle("Click", [this] { Click.Raise(); });
  }

  Property<bool> Enabled{true};
  Property<bool> Checked{false};
  Event<> Click;
};

// A line between the entries of a menu that bears a name.
class MenuSeparator : public Component {
 public:
  using Component::Component;
};
