#include "platform/toolkit/Forms.h"

#include <algorithm>
#include <exception>
#include <utility>

#include "platform/Dialogs.h"
#include "platform/Scheduler.h"
#include "platform/Windows.h"
#include "platform/toolkit/Failure.h"
#include "platform/toolkit/Form.h"

namespace {

// The words of a box while it stands.
class Standing {
 public:
  Standing(std::set<std::string>& all, const std::string& words) : all_(all), added_(all.insert(words)) {}
  ~Standing() {
    if (IsFirst()) all_.erase(added_.first);
  }
  bool IsFirst() const { return added_.second; }

 private:
  std::set<std::string>& all_;
  std::pair<std::set<std::string>::iterator, bool> added_;
};

}  // namespace

Forms::Forms(World& world, std::string standardTitle)
    : world_(world), standardTitle_(std::move(standardTitle)), faults_(world.clock) {}

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

void Forms::Dispatch(Form& form, const HandlerName& name, const std::function<void()>& handler) {
  ++depth_;
  ++form.handlersRunning_;
  Run(form, name, handler);
  --form.handlersRunning_;
  --depth_;
  DestroyLeaving();
}

void Forms::Run(Form& form, const HandlerName& name, const std::function<void()>& handler) noexcept {
  try {
    try {
      handler();
    } catch (const Failure& failure) {
      Report(form, failure.what());
    }
  } catch (const std::exception& fault) {
    Tell(form, name, fault.what());
  } catch (...) {
    Tell(form, name, "something that is no exception was thrown");
  }
}

void Forms::Tell(const Form& form, const HandlerName& name, std::string_view fault) noexcept {
  try {
    std::string where = form.Name();
    if (!name.component.empty()) where.append(".").append(name.component);
    where.append("_").append(name.event);
    faults_.Tell(where, fault);
  } catch (const std::exception&) {
    TellFault(form.Name(), fault);  // there is no memory even for the handler's name
  }
}

// A tick that fails every second on an unattended station must not stack its boxes up for ever: the same words stand
// once.
void Forms::Report(Form& form, const std::string& failure) {
  const Standing standing(reportsStanding_, failure);
  if (standing.IsFirst()) form.MsgBox(failure);
}

// The answer may come when the station is gone.
void Forms::Warn(const std::string& text, const std::string& title) {
  if (!warningsStanding_->insert(text).second) return;
  world_.scheduler.Post([this, text, title, kept = std::weak_ptr(warningsStanding_)] {
    if (kept.expired()) return;
    world_.dialogs.MsgBox(text, title, Buttons::kOkWarning);
    if (const auto standing = kept.lock()) standing->erase(text);
  });
}

void Forms::DestroyLeaving() {
  // The handlers below the depth at which a form was unloaded have seen nothing of it but through its own handlers.
  std::list<Leaving> done;
  for (auto one = leaving_.begin(); one != leaving_.end();) {
    const auto here = one++;
    if (here->form->handlersRunning_ == 0 && (depth_ == 0 || depth_ < here->depth)) {
      done.splice(done.end(), leaving_, here);
    }
  }
}
