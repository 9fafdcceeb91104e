#include "platform/toolkit/Form.h"

#include "platform/Files.h"
#include "platform/Windows.h"

namespace {

// A handler may stand in a dialog while the form is unloaded; the count keeps the object until it has returned.
class Counted {
 public:
  explicit Counted(int& count) : count_(count) { ++count_; }
  ~Counted() { --count_; }

 private:
  int& count_;
};

}  // namespace

Form::Form(Forms& forms, std::string name, Kind kind) : forms_(forms), name_(std::move(name)), kind_(kind) {
  const auto tell = [this] { Handle({.event = "Resize"}, [this] { Resize.Raise(); }); };
  Width.Changed.Connect(tell);
  Height.Changed.Connect(tell);
  Visible.Changed.Connect([this, tell] {
    if (Visible) tell();
  });
}

Form::~Form() = default;

void Form::Focus(const Control& control) {
  if (window_) window_->Focus(control);
}

void Form::Close() {
  Handle({.event = "Close"}, [this] { forms_.Unload(*this); });
}

void Form::PressMouse(const MousePlace& place) {
  Handle({.event = "MouseDown"}, [this, place] { MouseDown.Raise(place); });
}

void Form::MoveMouse(const MousePlace& place) {
  Handle({.event = "MouseMove"}, [this, place] { MouseMove.Raise(place); });
}

void Form::PopUp(const MenuItem& menu) {
  if (window_) window_->PopUp(menu);
}

Answer Form::MsgBox(const std::string& text, Buttons buttons) { return MsgBox(text, buttons, forms_.StandardTitle()); }

Answer Form::MsgBox(const std::string& text, Buttons buttons, const std::string& title) {
  const Counted standing(handlersRunning_);
  return Outside().dialogs.MsgBox(text, title, buttons);
}

std::string Form::InputBox(const std::string& prompt, const std::string& title) {
  const Counted standing(handlersRunning_);
  return Outside().dialogs.InputBox(prompt, title);
}

std::string Form::BrowseFolder(const std::string& title, const std::string& start) {
  const Counted standing(handlersRunning_);
  return Outside().dialogs.BrowseFolder(title, Outside().files.Resolve(start));
}

std::string Form::OpenFile(const std::string& title, const std::string& filter) {
  const Counted standing(handlersRunning_);
  return Outside().dialogs.OpenFile(title, filter);
}

CopyResult Form::CopyFile(const std::string& from, const std::string& to) {
  const Counted standing(handlersRunning_);
  return Outside().dialogs.CopyFile(from, to);
}

void Form::Handle(const HandlerName& name, const std::function<void()>& handler) {
  if (!retired_) forms_.Dispatch(*this, name, handler);
}

void Form::Retire() {
  retired_ = true;
  window_.reset();  // first: it shows what the components are about to let go of
  for (Component* component : components_) component->Retire();
}
