#include "ads/AdFolders.h"

#include <span>

#include "platform/Files.h"
#include "platform/Scheduler.h"
#include "platform/toolkit/Failure.h"
#include "platform/toolkit/ListView.h"
#include "settings/Helpers.h"
#include "settings/Numbers.h"
#include "settings/Station.h"

namespace {

// One column behind the name: the key it comes from, and how its value is shown.
struct Column {
  const char* key;
  std::string (*shown)(const std::string& value);
};

std::string AsItStands(const std::string& value) { return value; }

// Anything but 1 and 0 leaves the cell empty, no number at all too.
std::string Status(const std::string& value) {
  try {
    const double number = StrictNumber(value);
    return number == 1 ? "Active" : number == 0 ? "Inactive" : "";
  } catch (const Failure&) {
    return "";
  }
}

constexpr Column kCrawlerColumns[] = {{"CompanyName", AsItStands},
                                      {"Address", AsItStands},
                                      {"StartDate", AsItStands},
                                      {"EndDate", AsItStands},
                                      {"Active", Status}};
constexpr Column kVideoColumns[] = {{"Company", AsItStands}, {"Address", AsItStands}};

// What the two stores differ in.
struct Store {
  const char* folder;
  void (Stores::*pointTo)(std::string_view name);
  IniFile Stores::*info;
  const char* section;
  std::span<const Column> columns;
};

constexpr Store kStores[] = {
    {"\\Ads\\", &Stores::AdInfoFile, &Stores::AdInfoIni, "Info", kCrawlerColumns},
    {"\\VideoAd\\", &Stores::VideoAdInfoFile, &Stores::VideoAdInfoIni, "AdInfo", kVideoColumns},
};

const Store& Of(AdStore store) { return kStores[static_cast<std::size_t>(store)]; }

ListRow RowOf(Station& station, const Store& store, const std::string& name) {
  (station.stores.*store.pointTo)(name);
  ListRow row{.text = name};
  for (const Column& column : store.columns) {
    row.subItems.push_back(column.shown((station.stores.*store.info).ReadValue(store.section, column.key, "")));
  }
  return row;
}

void Load(Station& station, AdStore store, const std::string& folder, ListView& list) {
  const std::string selected = list.SelectedItem() > 0 ? list.Selected().text : "";
  list.Clear();
  for (const std::string& name : station.world.files.List(folder, FileKind::kFolder)) {
    if (!IsPlainName(name)) continue;
    list.Add(RowOf(station, Of(store), name));
    if (name == selected && list.SelectedItem() == 0) list.Select(list.Count());
    station.world.scheduler.Yield();
  }
}

bool Create(Station& station, AdStore store, const std::string& name) {
  // The folders that dots mean are there.
  if (!IsPlainName(name)) return name.find_first_not_of('.') == std::string::npos;
  Files& files = station.world.files;
  const std::string folder = AdPath(station, store, name);
  if (files.Kind(folder) == FileKind::kFolder) return true;
  if (files.CreateFolder(folder)) CreateEmptyFile(files, AdPath(station, store, name, "\\adinfo.ini"));
  return false;
}

void SettleIfUnfinished(Station& station, const std::string& name) {
  const Files& files = station.world.files;
  const std::string folder = AdPath(station, AdStore::kVideo, name);
  if (files.Read(folder + "/adinfo.ini") != "" || !files.List(folder, FileKind::kFolder).empty()) return;
  std::vector<std::string> others = files.List(folder, FileKind::kRegular);
  std::erase(others, "adinfo.ini");
  if (others.empty()) {
    DeleteAdFolder(station, AdStore::kVideo, name);
  } else if (others.size() == 1) {
    station.stores.VideoAdInfoFile(name);
    station.stores.VideoAdInfoIni.WriteValue("AdInfo", "FileName", others.front());
  }
}

}  // namespace

std::string AdPath(const Station& station, AdStore store, std::string_view name, std::string_view tail) {
  return station.dataFolder.Path(std::string(Of(store).folder).append(name).append(tail));
}

void LoadAdList(Station& station, const std::string& folder, ListView& list) {
  Load(station, AdStore::kCrawler, folder, list);
}

void LoadVideoAdList(Station& station, const std::string& folder, ListView& list) {
  Load(station, AdStore::kVideo, folder, list);
}

bool CreateAdFolder(Station& station, const std::string& name) { return Create(station, AdStore::kCrawler, name); }

bool CreateVideoAdFolder(Station& station, const std::string& name) { return Create(station, AdStore::kVideo, name); }

void SettleUnfinishedVideoAds(Station& station) {
  const std::string store = station.dataFolder.Path(Of(AdStore::kVideo).folder);
  for (const std::string& name : station.world.files.List(store, FileKind::kFolder)) {
    if (IsPlainName(name)) SettleIfUnfinished(station, name);
  }
}

void DeleteAdFolder(Station& station, AdStore store, const std::string& name) {
  if (IsPlainName(name)) DeleteFolderTree(station.world.files, AdPath(station, store, name));
}
