#include "platform/toolkit/Control.h"

#include "platform/toolkit/Form.h"

Component::Component(Form& form, std::string name) : form_(form), name_(std::move(name)) { form.Add(*this); }

void Component::Handle(std::string_view event, const std::function<void()>& handler) {
  form_.Handle({.component = name_, .event = event}, handler);
}

Control::Control(Form& form, std::string name) : Component(form, std::move(name)) { form.AddControl(*this); }

Control::Control(Control& container, std::string name)
    : Component(container.Owner(), std::move(name)), container_(&container) {
  container.children_.push_back(this);
}

void Control::SetFocus() { Owner().Focus(*this); }

void Control::PressMouse(MouseButton button) {
  Handle("MouseDown", [this, button] { MouseDown.Raise(button); });
}

void Control::ReleaseMouse(MouseButton button) {
  Handle("MouseUp", [this, button] { MouseUp.Raise(button); });
}
