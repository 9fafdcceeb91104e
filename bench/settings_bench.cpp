// The store on the real disk, beside two other INI libraries that do the same work: see the value as it stands on disk
// at every read, and have it on disk after every write.

#include <benchmark/benchmark.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <thread>
#include <vector>

#include "platform/posix/PosixFiles.h"
#include "platform/sim/SimFiles.h"
#include "settings/IniFile.h"
#include "tests/platform/TemporaryFolder.h"

#ifdef HAS_SIMPLEINI
#define SI_NO_CONVERSION
#include <SimpleIni.h>
#endif
#ifdef HAS_QT
#include <QSettings>
#endif

namespace {

// A settings file of the size that a station in full use has: 12 sections, 80 keys.
std::string StationSettings() {
  std::string text;
  for (int section = 0; section < 12; ++section) {
    text.append("[Section").append(std::to_string(section)).append("]\r\n");
    for (int key = 0; key < 7; ++key) {
      text.append("SettingNumber").append(std::to_string(key)).append("=C:\\Clips\\Morning\r\n");
    }
  }
  return text;
}

std::string PlaylistOf(int rows) {
  std::string text;
  for (int row = 0; row < rows; ++row) {
    const std::string name = "Row " + std::to_string(row);
    text.append("\r\n[").append(name).append("]\r\nDuration=0:3:25\r\nEndTime=07:03:25 AM\r\nFileName=").append(name);
    text.append("\r\nPath=/srv/clips/morning/").append(name).append(".avi\r\n");
  }
  return text;
}

class Station {
 public:
  Station() { WriteByOther(Path(), StationSettings()); }
  std::string Path() const { return folder_.Path() + "/Settings.ini"; }

 private:
  TemporaryFolder folder_;
};

void LetTheFileSettle() { std::this_thread::sleep_for(std::chrono::milliseconds(50)); }

void ReadValue(benchmark::State& state) {
  const Station station;
  PosixFiles files;
  IniFile ini(files);
  ini.SetPath(station.Path());
  LetTheFileSettle();
  for (auto _ : state) benchmark::DoNotOptimize(ini.ReadValue("section7", "SettingNumber3", ""));
}
BENCHMARK(ReadValue);

void WriteValue(benchmark::State& state) {
  const Station station;
  PosixFiles files;
  IniFile ini(files);
  ini.SetPath(station.Path());
  std::vector<double> microseconds;
  std::uint64_t position = 0;
  for (auto _ : state) {
    const auto start = std::chrono::steady_clock::now();
    ini.WriteValue("Section7", "SettingNumber3", std::to_string(++position));
    const std::chrono::duration<double, std::micro> took = std::chrono::steady_clock::now() - start;
    microseconds.push_back(took.count());
  }
  std::sort(microseconds.begin(), microseconds.end());
  state.counters["median_us"] = microseconds[microseconds.size() / 2];
  state.counters["p99_us"] = microseconds[microseconds.size() * 99 / 100];
}
BENCHMARK(WriteValue)->UseRealTime();

void WalkOverTenThousandSections(benchmark::State& state) {
  const TemporaryFolder folder;
  const std::string path = folder.Path() + "/long.plt";
  WriteByOther(path, PlaylistOf(10'000));
  LetTheFileSettle();
  PosixFiles files;
  for (auto _ : state) {
    IniFile ini(files);  // a new one, so that the file is read and parsed too
    ini.SetPath(path);
    const IniSections sections = ini.Sections();
    for (std::size_t i = 1; i <= sections.Count(); ++i) {
      const std::string name = sections.Item(i).Name();
      for (const char* key : {"Duration", "EndTime", "FileName", "Path"}) {
        benchmark::DoNotOptimize(sections.ReadValue(name, key, ""));
      }
    }
  }
}
BENCHMARK(WalkOverTenThousandSections)->Unit(benchmark::kMillisecond);

void VirtualWriteValue(benchmark::State& state) {
  SimFiles files;
  files.Put("/Station/Settings.ini", StationSettings());
  IniFile ini(files);
  ini.SetPath("/Station/Settings.ini");
  std::uint64_t position = 0;
  for (auto _ : state) ini.WriteValue("Section7", "SettingNumber3", std::to_string(++position));
}
BENCHMARK(VirtualWriteValue);

#ifdef HAS_SIMPLEINI
void SimpleIniReadValue(benchmark::State& state) {
  const Station station;
  for (auto _ : state) {
    CSimpleIniA ini;
    ini.LoadFile(station.Path().c_str());
    benchmark::DoNotOptimize(std::string(ini.GetValue("section7", "SettingNumber3", "")));
  }
}
BENCHMARK(SimpleIniReadValue);

void SimpleIniWriteValue(benchmark::State& state) {
  const Station station;
  std::uint64_t position = 0;
  for (auto _ : state) {
    CSimpleIniA ini;
    ini.LoadFile(station.Path().c_str());
    ini.SetValue("Section7", "SettingNumber3", std::to_string(++position).c_str());
    ini.SaveFile(station.Path().c_str(), false);
  }
}
BENCHMARK(SimpleIniWriteValue)->UseRealTime();
#endif

#ifdef HAS_QT
void QSettingsReadValue(benchmark::State& state) {
  const Station station;
  QSettings settings(QString::fromStdString(station.Path()), QSettings::IniFormat);
  for (auto _ : state) {
    settings.sync();
    benchmark::DoNotOptimize(settings.value("Section7/SettingNumber3").toString());
  }
}
BENCHMARK(QSettingsReadValue);

void QSettingsWriteValue(benchmark::State& state) {
  const Station station;
  QSettings settings(QString::fromStdString(station.Path()), QSettings::IniFormat);
  std::uint64_t position = 0;
  for (auto _ : state) {
    settings.setValue("Section7/SettingNumber3", QString::number(++position));
    settings.sync();
  }
}
BENCHMARK(QSettingsWriteValue)->UseRealTime();
#endif

}  // namespace
