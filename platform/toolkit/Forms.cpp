#include "platform/toolkit/Forms.h"

#include <algorithm>
#include <exception>
#include <utility>

#include "platform/Windows.h"
#include "platform/toolkit/Form.h"

Forms::Forms(World& world, std::string standardTitle) : world_(world), standardTitle_(std::move(standardTitle)) {}

Forms::~Forms() {
  // Last loaded, first gone: a form may refer to those that were there before it.
  while (!loaded_.empty()) {
    loaded_.back().form->Retire();
    loaded_.pop_back();
  }
}

Form* Forms::Find(std::type_index type) const {
  const auto found = std::ranges::find(loaded_, type, &Entry::type);
  return found == loaded_.end() ? nullptr : found->form.get();
}

void Forms::Adopt(std::type_index type, std::unique_ptr<Form> created) {
  Form& form = *created;
  loaded_.push_back({type, std::move(created)});
  form.window_ = world_.windows.Create(form);
  if (const auto hooks = hooks_.find(type); hooks != hooks_.end()) {
    for (const auto& connect : hooks->second) connect(form);
  }
  form.Load();
}

bool Forms::Unload(Form& form) {
  if (form.retired_) return true;
  if (!form.MayUnload()) return false;
  const auto entry = std::ranges::find_if(loaded_, [&form](const Entry& one) { return one.form.get() == &form; });
  leaving_.push_back({std::move(entry->form), depth_});
  loaded_.erase(entry);
  form.Retire();
  if (depth_ == 0) DestroyLeaving();
  return true;
}

void Forms::Dispatch(Form& form, const std::function<void()>& handler) {
  ++depth_;
  ++form.handlersRunning_;
  try {
    handler();
  } catch (const std::exception& failure) {
    Report(form, failure.what());
  }
  --form.handlersRunning_;
  --depth_;
  DestroyLeaving();
}

// A tick that fails every second on an unattended station must not stack its boxes up for ever: the same words stand
// once.
void Forms::Report(Form& form, const std::string& failure) {
  if (!reportsStanding_.insert(failure).second) return;
  form.MsgBox(failure);
  reportsStanding_.erase(failure);
}

void Forms::DestroyLeaving() {
  // The handlers below the depth at which a form was unloaded have seen nothing of it but through its own handlers.
  std::vector<Leaving> done;
  for (auto one = leaving_.begin(); one != leaving_.end();) {
    if (one->form->handlersRunning_ == 0 && (depth_ == 0 || depth_ < one->depth)) {
      done.push_back(std::move(*one));
      one = leaving_.erase(one);
    } else {
      ++one;
    }
  }
}
