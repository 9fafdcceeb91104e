#pragma once

#include <functional>
#include <list>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <typeindex>
#include <vector>

#include "platform/Faults.h"
#include "platform/World.h"

class Form;

// What a handler is told apart by: the component and its event, "Timer4" and "Tick"; no component for the form's own.
struct HandlerName {
  std::string_view component = {};
  std::string_view event;
};

// The registry of the forms: one shared instance of each. Who makes the forms, out of what, is for a class on top of it
// to say.
class Forms {
 public:
  // `standardTitle` is the title of every box that a rule gives no other.
  Forms(World& world, std::string standardTitle);
  ~Forms();
  Forms(const Forms&) = delete;
  Forms& operator=(const Forms&) = delete;

  // Whether the form is loaded; loads nothing.
  template <class F>
  bool Loaded() const {
    return Find(typeid(F)) != nullptr;
  }

  // Asks the form to unload. It may refuse; otherwise it is off the screen and out of the registry at once, and the
  // next reference makes a fresh one. The object goes when no handler of its own is running. A form that is not loaded
  // is left alone. True when the form is not loaded any more.
  template <class F>
  bool Unload() {
    Form* loaded = Find(typeid(F));
    return loaded == nullptr || Unload(*loaded);
  }
  bool Unload(Form& form);

  // Calls `connect` for each instance of the form, after it is made and before its load.
  template <class F>
  void WhenCreated(std::function<void(F&)> connect) {
    hooks_[typeid(F)].push_back([connect](Form& form) { connect(static_cast<F&>(form)); });
  }

  // Runs a handler of `form`; see Form::Handle.
  void Dispatch(Form& form, const HandlerName& name, const std::function<void()>& handler);

  // Puts a warning before the operator and goes on at once. While one stands, or is about to, none of the same words
  // follows.
  void Warn(const std::string& text, const std::string& title);

  World& Outside() const { return world_; }
  const std::string& StandardTitle() const { return standardTitle_; }

 protected:
  // The one instance of the form. One that is not loaded is created by `make`, hidden, and its load runs; a reference
  // during its own load gives the instance that is being loaded.
  template <class F, class Make>
  F& FindOrAdopt(Make make) {
    if (Form* loaded = Find(typeid(F))) return static_cast<F&>(*loaded);
    std::unique_ptr<F> created = make();
    F& form = *created;
    Adopt(typeid(F), std::move(created));
    return form;
  }

 private:
  struct Entry {
    std::type_index type;
    std::unique_ptr<Form> form;
  };
  // A form that has been unloaded; the handlers that ran at that moment may still refer to it.
  struct Leaving {
    std::unique_ptr<Form> form;
    int depth;
  };

  Form* Find(std::type_index type) const;
  void Adopt(std::type_index type, std::unique_ptr<Form> created);
  void Run(Form& form, const HandlerName& name, const std::function<void()>& handler) noexcept;
  void Report(Form& form, const std::string& failure);
  void Tell(const Form& form, const HandlerName& name, std::string_view fault) noexcept;
  void DestroyLeaving();

  World& world_;
  std::string standardTitle_;
  std::vector<Entry> loaded_;  // in the order of loading
  std::list<Leaving> leaving_;
  std::map<std::type_index, std::vector<std::function<void(Form&)>>> hooks_;
  std::set<std::string> reportsStanding_;
  std::shared_ptr<std::set<std::string>> warningsStanding_ = std::make_shared<std::set<std::string>>();
  FaultTeller faults_;
  int depth_ = 0;  // handlers that are running, one inside the other
};
