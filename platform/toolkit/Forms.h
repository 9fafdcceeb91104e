#pragma once

#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <typeindex>
#include <vector>

#include "platform/World.h"

class Form;
class Station;  // what every form is constructed with

// The registry of the forms: one shared instance of each, made at the first reference to it.
class Forms {
 public:
  Forms(World& world, Station& station);
  ~Forms();
  Forms(const Forms&) = delete;
  Forms& operator=(const Forms&) = delete;

  // The one instance of the form. One that is not loaded is created, hidden, and its load runs; a reference during its
  // own load gives the instance that is being loaded.
  template <class F>
  F& Get() {
    if (Form* loaded = Find(typeid(F))) return static_cast<F&>(*loaded);
    auto created = std::make_unique<F>(*station_);
    F& form = *created;
    Adopt(typeid(F), std::move(created));
    return form;
  }

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
  void Dispatch(Form& form, const std::function<void()>& handler);

  World& Outside() const { return world_; }

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
  void Report(Form& form, const std::string& failure);
  void DestroyLeaving();

  World& world_;
  Station* station_;
  std::vector<Entry> loaded_;  // in the order of loading
  std::vector<Leaving> leaving_;
  std::map<std::type_index, std::vector<std::function<void(Form&)>>> hooks_;
  std::set<std::string> reportsStanding_;
  int depth_ = 0;  // handlers that are running, one inside the other
};
