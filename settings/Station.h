#pragma once

#include <map>
#include <memory>
#include <string>
#include <typeindex>

#include "platform/World.h"
#include "platform/toolkit/Forms.h"
#include "settings/DataFolder.h"
#include "settings/Stores.h"

class Station;

// The title of the program, and of every box that a rule gives no other.
inline constexpr char kStandardTitle[] = "Corvanta 6.0";

// The forms of one station: each is constructed with it.
class StationForms : public Forms {
 public:
  StationForms(World& world, Station& station) : Forms(world, kStandardTitle), station_(station) {}

  // The one instance of the form. One that is not loaded is created, hidden, and its load runs; a reference during its
  // own load gives the instance that is being loaded.
  template <class F>
  F& Get() {
    return FindOrAdopt<F>([this] { return std::make_unique<F>(station_); });
  }

 private:
  Station& station_;
};

// One running station: the world around it, its data folder with the shared files, and its forms. Every form is given
// it at construction.
class Station {
 public:
  // `folder` is the data folder, without a separator at its end.
  Station(World& outside, const std::string& folder)
      : world(outside), stores(outside.files, folder), forms(world, *this) {}

  // The one record of that type, made empty at the first call; it outlives every form.
  template <class Record>
  Record& Shared() {
    auto& record = shared_[typeid(Record)];
    if (!record) record = std::make_shared<Record>();
    return *static_cast<Record*>(record.get());
  }

  World& world;
  Stores stores;
  const DataFolder& dataFolder = stores.Folder();

 private:
  std::map<std::type_index, std::shared_ptr<void>> shared_;

 public:
  StationForms forms;  // last: the forms go before all that they use
};
