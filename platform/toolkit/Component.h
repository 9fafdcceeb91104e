#pragma once

#include <functional>
#include <string>
#include <string_view>

class Form;

// Anything with a name that a form is made of, seen or unseen.
class Component {
 public:
  Component(Form& form, std::string name);
  virtual ~Component() = default;
  Component(const Component&) = delete;
  Component& operator=(const Component&) = delete;

  const std::string& Name() const { return name_; }
  Form& Owner() const { return form_; }

  // The form is being unloaded: lets go of all that would still act. The object lives on until no handler needs it.
  virtual void Retire() {}

 protected:
  // Runs the handlers of an event of this component as the toolkit dispatches them; see Form::Handle.
  void Handle(std::string_view event, const std::function<void()>& handler);

 private:
  Form& form_;
  std::string name_;
};
