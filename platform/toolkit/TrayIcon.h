#pragma once

#include <string>

#include "platform/toolkit/Control.h"

// The station's icon in the notification area.
class TrayIcon : public Component {
 public:
  using Component::Component;

  // What the operator does.
  void DoubleClick() {
    Handle("DblClick", [this] { DblClick.Raise(); });
  }
  void PressMouse(MouseButton button) {
    Handle("MouseDown", [this, button] { MouseDown.Raise(button); });
  }

  Property<bool> Visible{true};
  Property<std::string> TipText;
  Event<> DblClick;
  Event<MouseButton> MouseDown;
};
