#include "webfeed/PageStore.h"

#include "settings/Numbers.h"

namespace {

// In the order in which they are written. A key that is lost gives another value than a new page has. Meant so.
struct Measure {
  const char* key;
  Twips PagePlace::*value;
  const char* lost;
};
constexpr Measure kMeasures[] = {
    {"PageTop", &PagePlace::pageTop, ""},      {"PageLeft", &PagePlace::pageLeft, ""},
    {"FrmHeight", &PagePlace::height, "2000"}, {"FrmWidth", &PagePlace::width, "3000"},
    {"FrmTop", &PagePlace::top, "3000"},       {"FrmLeft", &PagePlace::left, "3000"},
};

}  // namespace

StoredPage ReadPage(Stores& stores, const std::string& name) {
  stores.DataFile(kPageFile);
  StoredPage page{stores.DataIni.ReadValue(name, "URL", ""), {}};
  for (const auto& [key, value, lost] : kMeasures) page.place.*value = Val(stores.DataIni.ReadValue(name, key, lost));
  return page;
}

void AddPage(Stores& stores, const std::string& name, const StoredPage& page) {
  stores.DataFile(kPageFile);
  stores.DataIni.Sections().Add(name);
  stores.DataIni.WriteValue(name, "URL", page.url);
  SavePagePlace(stores, name, page.place);
}

void SavePagePlace(Stores& stores, const std::string& name, const PagePlace& place) {
  stores.DataFile(kPageFile);
  for (const auto& [key, value, lost] : kMeasures) {
    stores.DataIni.WriteValue(name, key, SingleText(static_cast<float>(place.*value)));
  }
}
