#pragma once

#include <map>
#include <memory>
#include <string>
#include <typeindex>

#include "platform/World.h"
#include "platform/toolkit/Forms.h"
#include "settings/DataFolder.h"
#include "settings/Stores.h"

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
  Forms forms;  // last: the forms go before all that they use
};
