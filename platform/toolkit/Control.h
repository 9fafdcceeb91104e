#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/toolkit/Component.h"
#include "platform/toolkit/Measures.h"
#include "platform/toolkit/Property.h"

enum class MouseButton { kLeft = 1, kRight = 2, kMiddle = 4 };

// A component that is seen. Of the controls in one container the one declared first stands in front.
class Control : public Component {
 public:
  Control(Form& form, std::string name);
  Control(Control& container, std::string name);

  // The control that holds this one; null directly on the form.
  Control* Container() const { return container_; }
  // What it holds, front to back.
  const std::vector<Control*>& Children() const { return children_; }

  // The kind of control, by the name of its class: "CheckBox".
  virtual std::string_view Kind() const = 0;

  // Gives it the keyboard inside its window.
  void SetFocus();
  // What the window tells when the operator presses a mouse button on it, and when he lets go of it, wherever that is.
  void PressMouse(MouseButton button);
  void ReleaseMouse(MouseButton button);

  Property<bool> Visible{true};
  Property<bool> Enabled{true};
  // Measures inside the container. Used on the on-air windows; an operator form's layout has its own.
  Property<Twips> Left;
  Property<Twips> Top;
  Property<Twips> Width;
  Property<Twips> Height;

  Event<MouseButton> MouseDown;
  Event<MouseButton> MouseUp;

 private:
  Control* container_ = nullptr;
  std::vector<Control*> children_;
};
