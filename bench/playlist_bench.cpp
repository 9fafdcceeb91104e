// The playlist manager with a long running order: loading, the ticks of both schedules, adding a row.
#include <benchmark/benchmark.h>

#include <string>

#include "app/roads.h"
#include "platform/sim/SimWorld.h"
#include "playlist/frmPlaylist.h"
#include "settings/Station.h"
#include "settings/TimeTexts.h"

namespace {

constexpr int kRows = 10000;

std::string LongPlaylist() {
  std::string text;
  for (int i = 0; i < kRows; ++i) {
    const DateTime start{.hour = i / 3600, .minute = i / 60 % 60, .second = i % 60};
    text += "\r\n[" + TimeText(start) + "]\r\nDuration=0:0:1\r\nEndTime=" + AddSecondsToTime(1, start) +
            "\r\nFileName=Clip " + std::to_string(i) + "\r\nPath=/clips/clip " + std::to_string(i) + ".mp4\r\n";
  }
  return text;
}

std::string LongSchedule() {
  std::string text;
  for (int i = 0; i < kRows; ++i) {
    const DateTime day{.year = 2027 + i / 336, .month = i % 336 / 28 + 1, .day = i % 28 + 1, .hour = 6};
    text += "[" + ScheduleKey(day, day) + "]\r\nPlaylistName=Day.plt\r\n";
  }
  return text;
}

// A station with a running order of 10,000 rows open and as many rows in its day schedule.
struct LongStation {
  SimWorld sim;
  Station station{sim.world, "/station"};
  frmPlaylist& form = Prepared();

 private:
  frmPlaylist& Prepared() {
    sim.files.CreateFolder("/clips");
    sim.files.Put("/clips/new.mp4", "media");
    sim.files.Put("/station/Playlist/Day.plt", LongPlaylist());
    sim.files.Put("/station/Schedule.ini", LongSchedule());
    ConnectRoads(station);
    station.stores.SettingsFile();
    station.stores.SettingsIni.WriteValue("Playlist", "LastPlaylist", "Day.plt");
    station.stores.SettingsIni.WriteValue("Playlist", "FolderPath", "/clips");
    sim.time.AdvanceTo({.year = 2026, .month = 11, .day = 15, .hour = 13});
    return station.forms.Get<frmPlaylist>();
  }
};

void LoadsALongPlaylist(benchmark::State& state) {
  LongStation desk;
  std::string text = LongPlaylist();
  for (auto _ : state) {
    state.PauseTiming();
    desk.sim.files.Put("/station/Playlist/Day.plt", text += "\r\n");  // another file: it must be read anew
    state.ResumeTiming();
    desk.form.LoadPlaylist(desk.form.ListPlay);
  }
}

// What the tick does is the same search over all rows, and nothing is found.
void TicksOfTheTimeSchedule(benchmark::State& state) {
  LongStation desk;
  for (auto _ : state) desk.form.TimerFind.Tick.Raise();
  state.counters["% of a core at 1 a second"] = benchmark::Counter(
      1e-2 * static_cast<double>(state.iterations()), benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

void TicksOfTheDaySchedule(benchmark::State& state) {
  LongStation desk;
  for (auto _ : state) desk.form.TimerDay.Tick.Raise();
  state.counters["% of a core at 10 a second"] = benchmark::Counter(
      1e-3 * static_cast<double>(state.iterations()), benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

void AddsARow(benchmark::State& state) {
  LongStation desk;
  desk.form.FileList.Pick(0);
  desk.sim.time.Advance(std::chrono::milliseconds(200));
  int second = 0;
  for (auto _ : state) {
    state.PauseTiming();
    desk.form.TP.Value = {.hour = 14 + second / 3600, .minute = second / 60 % 60, .second = second % 60};
    ++second;
    state.ResumeTiming();
    desk.form.btnAdd.Press();
  }
}

}  // namespace

BENCHMARK(LoadsALongPlaylist)->Unit(benchmark::kMillisecond);
BENCHMARK(TicksOfTheTimeSchedule)->Unit(benchmark::kMicrosecond);
BENCHMARK(TicksOfTheDaySchedule)->Unit(benchmark::kMicrosecond);
BENCHMARK(AddsARow)->Unit(benchmark::kMillisecond);
