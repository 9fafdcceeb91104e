#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "settings/TimeTexts.h"
#include "tests/StationTest.h"

using namespace std::chrono_literals;

namespace {

// A station that is switched on at midnight and writes down what it puts on the air, and when.
class LoggedStation {
 public:
  explicit LoggedStation(const DateTime& start) {
    sim.time.AdvanceTo(start);
    sim.files.CreateFolder("/clips");
    sim.files.CreateFolder("/station/Playlist");
    ConnectRoads(station);
    MakePlaylist("Weekday.plt", {"06:30:00 AM breakfast show", "12:00:00 PM noon news", "06:00:00 PM evening news",
                                 "11:59:55 PM closing film", "12:00:05 AM night music", "02:30:00 AM test card"});
    MakePlaylist("Weekend.plt", {"08:00:00 AM cartoons", "06:00:00 PM evening news", "11:30:00 PM late film",
                                 "01:30:00 AM night music", "02:30:00 AM test card", "03:30:00 AM weather"});
    station.stores.SettingsFile();
    IniFile& settings = station.stores.SettingsIni;
    settings.WriteValue("Playlist", "LastPlaylist", "Weekend.plt");
    settings.WriteValue("Playlist", "TimeON", "1");
    settings.WriteValue("Playlist", "DaySchdule", "1");
  }

  // The list for each morning at six, from the day that the clock shows now.
  void ScheduleDays(int days) {
    std::string rows;
    const DateTime today = sim.time.Now();
    const std::chrono::sys_days first = std::chrono::year(today.year) / today.month / today.day;
    for (int i = 0; i < days; ++i) {
      const std::chrono::year_month_day date(first + std::chrono::days(i));
      const unsigned weekday = std::chrono::weekday(first + std::chrono::days(i)).c_encoding();
      const DateTime at{static_cast<int>(date.year()), static_cast<int>(static_cast<unsigned>(date.month())),
                        static_cast<int>(static_cast<unsigned>(date.day())), 6};
      rows += "[" + ScheduleKey(at, at) + "]\r\nPlaylistName=";
      rows += weekday == 0 || weekday == 6 ? "Weekend.plt\r\n" : "Weekday.plt\r\n";
    }
    sim.files.Put("/station/Schedule.ini", rows);
    station.forms.Get<frmPlaylist>();
    station.forms.Get<frmPlayer>().Timer1.Enabled = false;  // no crawler
  }

  void RunTo(const DateTime& moment) {
    while (Before(sim.time.Now(), moment)) {
      sim.time.Advance(500ms);
      Log();
    }
  }

  // The clock is put forward or back, as it is at a change of daylight-saving time.
  void Step(std::chrono::hours step, const std::string& why) {
    sim.time.StepWall(step);
    log += "    the clock is put " + why + "\n";
  }

  std::string log;

 private:
  static bool Before(const DateTime& one, const DateTime& other) {
    return std::tie(one.month, one.day, one.hour, one.minute, one.second) <
           std::tie(other.month, other.day, other.hour, other.minute, other.second);
  }

  void MakePlaylist(const std::string& name, const std::vector<std::string>& rows) {
    std::string text;
    for (const std::string& row : rows) {
      const std::string path = "/clips/" + row.substr(12);
      sim.files.Put(path, "media");
      sim.media.SetDuration(path, 1200);
      text += "[" + row.substr(0, 11) + "]\r\nPath=" + path + "\r\n";
    }
    sim.files.Put("/station/Playlist/" + name, text);
  }

  void Log() {
    static constexpr char kOpen[] = "frmPlayer.Player open /clips/";
    const DateTime now = sim.time.Now();
    const std::string playlist = station.stores.SettingsIni.ReadValue("Playlist", "LastPlaylist", "");
    for (const std::string& line : sim.trace.Take()) {
      if (line.starts_with("box")) log += line + "\n";
      if (!line.starts_with(kOpen)) continue;
      const std::chrono::sys_days day = std::chrono::year(now.year) / now.month / now.day;
      static constexpr const char* kDays[] = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
      char text[120];
      std::snprintf(text, sizeof text, "%s %-10s  %s  %-16s  from %s\n", kDays[std::chrono::weekday(day).c_encoding()],
                    DateText(now).c_str(), TimeText(now).c_str(), line.substr(sizeof kOpen - 1).c_str(),
                    playlist.c_str());
      log += text;
    }
  }

  SimWorld sim;
  Station station{sim.world, "/station"};
};

std::string SpringWeek() {
  LoggedStation station({.year = 2027, .month = 3, .day = 25});
  station.ScheduleDays(8);
  station.RunTo({.year = 2027, .month = 3, .day = 28, .hour = 2});
  station.Step(1h, "forward from 2 to 3");
  station.RunTo({.year = 2027, .month = 4, .day = 1});
  return station.log;
}

std::string AutumnWeek() {
  LoggedStation station({.year = 2027, .month = 10, .day = 28});
  station.ScheduleDays(8);
  station.RunTo({.year = 2027, .month = 10, .day = 31, .hour = 3});
  station.Step(-1h, "back from 3 to 2");
  station.RunTo({.year = 2027, .month = 11, .day = 4});
  return station.log;
}

std::string Golden(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

// Each week is run twice: the same input gives the same list, byte for byte.
void ExpectWeek(const std::string& name, std::string (*run)()) {
  const std::string actual = run();
  EXPECT_EQ(actual, run());
  const auto path = std::filesystem::path(WEEKS) / (name + ".txt");
  if (actual == Golden(path)) return;
  const auto beside = std::filesystem::path(path).replace_extension(".actual.txt");
  std::ofstream(beside, std::ios::binary) << actual;
  ADD_FAILURE() << "What went on the air is in " << beside << " and is not what " << path << " says.";
}

}  // namespace

TEST(BroadcastWeekTest, AWeekWithTheChangeToSummerTimeStartsEveryItemThatItsDayHas) {
  ExpectWeek("week_in_spring", SpringWeek);
}

TEST(BroadcastWeekTest, AWeekWithTheChangeToWinterTimeStartsTheRowsOfTheRepeatedHourTwice) {
  ExpectWeek("week_in_autumn", AutumnWeek);
}
