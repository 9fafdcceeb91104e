#pragma once

#include <string>
#include <string_view>

#include "platform/Files.h"

// The folder of the executable, under which everything lies that the station stores. Copy the folder anywhere and it is
// another station. Paths are made at the moment of use; nothing but the folder is kept.
class DataFolder {
 public:
  // `folder` is a path with or without a separator at its end.
  explicit DataFolder(std::string folder);

  const std::string& Folder() const { return folder_; }
  // The path behind a tail such as "\\Playlist\\x.plt", in which either separator may stand.
  std::string Path(std::string_view tail) const;

 private:
  std::string folder_;
};

// The path with every backslash turned into the platform's separator.
std::string WithPlatformSeparators(std::string_view path);

// Makes, where they are missing, the folders that the operator's forms write into: what is made there on the first day
// must find its place.
void MakeStationFolders(Files& files, const DataFolder& folder);
