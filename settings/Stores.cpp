#include "settings/Stores.h"

Stores::Stores(Files& files, std::string folder)
    : SettingsIni(files),
      PlaylistIni(files),
      ScheduleIni(files),
      AdInfoIni(files),
      VideoAdInfoIni(files),
      DataIni(files),
      TVChannelIni(files),
      RadioChannelIni(files),
      folder_(std::move(folder)) {}

void Stores::SettingsFile() { SettingsIni.SetPath(folder_.Path("\\Settings.ini")); }

void Stores::PlaylistFile(std::string_view name) {
  PlaylistIni.SetPath(folder_.Path(std::string("\\Playlist\\").append(name)));
}

void Stores::ScheduleFile() { ScheduleIni.SetPath(folder_.Path("\\Schedule.ini")); }

void Stores::AdInfoFile(std::string_view name) {
  AdInfoIni.SetPath(folder_.Path(std::string("\\Ads\\").append(name).append("\\adinfo.ini")));
}

void Stores::VideoAdInfoFile(std::string_view name) {
  VideoAdInfoIni.SetPath(folder_.Path(std::string("\\VideoAd\\").append(name).append("\\adinfo.ini")));
}

void Stores::DataFile(std::string_view name) { DataIni.SetPath(folder_.Path(std::string("\\").append(name))); }

void Stores::TVChannelFile() { TVChannelIni.SetPath(folder_.Path("\\OnlineChannel\\TV.chn")); }

void Stores::RadioChannelFile() { RadioChannelIni.SetPath(folder_.Path("\\OnlineChannel\\Radio.chn")); }
