#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <string>
#include <vector>

#include "app/roads.h"
#include "output/frmPlayer.h"
#include "platform/sim/SimWorld.h"
#include "playlist/frmPlaylist.h"
#include "settings/Station.h"
#include "shell/frmLoad.h"
#include "shell/frmMid.h"

// A station in the virtual world, with an empty data folder. The test is its operator.
class StationTest : public ::testing::Test {
 protected:
  StationTest() {
    MakeStationFolders(sim.files, station.dataFolder);
    sim.files.CreateFolder("/clips");
    station.stores.SettingsFile();
    ConnectRoads(station);
  }

  frmPlayer& Output() { return station.forms.Get<frmPlayer>(); }
  frmPlaylist& Playlists() { return station.forms.Get<frmPlaylist>(); }
  frmMid& ControlWindow() { return station.forms.Get<frmMid>(); }
  SimPlayer& MainPlayer() { return *sim.media.Find("frmPlayer.Player"); }

  void Advance(std::chrono::nanoseconds duration) { sim.time.Advance(duration); }

  std::string Setting(const std::string& section, const std::string& key) {
    return station.stores.SettingsIni.ReadValue(section, key, "(none)");
  }
  void Set(const std::string& section, const std::string& key, const std::string& value) {
    station.stores.SettingsIni.WriteValue(section, key, value);
  }

  // Makes a clip and gives its path.
  std::string Clip(const std::string& name, double seconds = 10) {
    const std::string path = "/clips/" + name;
    sim.files.Put(path, "media");
    sim.media.SetDuration(path, seconds);
    return path;
  }
  // Makes a playlist file of these clips, with start times from 07:00:01 AM on, and has the station open it.
  void Playlist(const std::string& name, const std::vector<std::string>& paths) {
    std::string text;
    for (std::size_t i = 0; i < paths.size(); ++i) {
      text += "\r\n[" + TimeOfRow(i + 1) + "]\r\nDuration=0:0:10\r\nEndTime=\r\nFileName=\r\nPath=" + paths[i] + "\r\n";
    }
    sim.files.Put("/station/Playlist/" + name, text);
    Set("Playlist", "LastPlaylist", name);
  }
  static std::string TimeOfRow(std::size_t row) { return "07:00:0" + std::to_string(row) + " AM"; }

  // The files that the output player was given since the last call, without their folder.
  std::vector<std::string> Aired() { return Opened("frmPlayer.Player"); }
  std::vector<std::string> Opened(const std::string& player) {
    std::vector<std::string> names;
    const std::string start = player + " open ";
    for (const std::string& line : sim.trace.Take()) {
      if (line.starts_with(start)) names.push_back(line.substr(line.rfind('/') + 1));
    }
    return names;
  }

  // A form's timers, as "Timer1 1000 ms on".
  static std::vector<std::string> Timers(const Form& form) {
    std::vector<std::string> timers;
    for (const Component* one : form.Components()) {
      const auto* timer = dynamic_cast<const Timer*>(one);
      if (timer == nullptr) continue;
      const std::string interval = std::to_string(timer->Interval().count()) + " ms";
      timers.push_back(timer->Name() + " " + interval + (timer->Enabled ? " on" : ""));
    }
    return timers;
  }

  SimWorld sim;
  Station station{sim.world, "/station"};
};

using Names = std::vector<std::string>;
