#include "settings/DataFolder.h"

#include <algorithm>

DataFolder::DataFolder(std::string folder) : folder_(std::move(folder)) {
  while (folder_.size() > 1 && folder_.ends_with('/')) folder_.pop_back();
}

std::string DataFolder::Path(std::string_view tail) const { return folder_ + WithPlatformSeparators(tail); }

std::string WithPlatformSeparators(std::string_view path) {
  std::string mapped(path);
  std::replace(mapped.begin(), mapped.end(), '\\', '/');
  return mapped;
}

void MakeStationFolders(Files& files, const DataFolder& folder) {
  for (const char* tail : {"\\Playlist", "\\Ads", "\\VideoAd", "\\OnlineChannel", "\\Media\\Logo", "\\Media\\Clock",
                           "\\Media\\Stiker", "\\Media\\FlashAd", "\\Media\\LeftSideAd"}) {
    files.CreateFolder(folder.Path(tail));
  }
}
