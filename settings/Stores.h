#pragma once

#include <string>
#include <string_view>

#include "settings/DataFolder.h"
#include "settings/IniFile.h"

// The eight shared INI files, which live as long as the station, and the resolvers that point them. A caller runs the
// resolver first and then works on its instance: an instance means the file that was resolved last, whoever did it.
class Stores {
 public:
  // `files` must outlive the stores; `folder` is the data folder.
  Stores(Files& files, std::string folder);

  const DataFolder& Folder() const { return folder_; }

  void SettingsFile();
  // `name` carries the extension.
  void PlaylistFile(std::string_view name);
  void ScheduleFile();
  // The name of the ad's folder.
  void AdInfoFile(std::string_view name);
  // The name of the video ad's folder.
  void VideoAdInfoFile(std::string_view name);
  void DataFile(std::string_view name);
  void TVChannelFile();
  void RadioChannelFile();

  IniFile SettingsIni;
  IniFile PlaylistIni;
  IniFile ScheduleIni;
  IniFile AdInfoIni;
  IniFile VideoAdInfoIni;
  IniFile DataIni;
  IniFile TVChannelIni;
  IniFile RadioChannelIni;

 private:
  DataFolder folder_;
};
