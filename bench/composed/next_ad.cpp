// next_ad STATION CLIP ROUNDS: how long the GUI thread is held while the station in that folder takes its next crawler
// ad, with the clip on the air. Prints a line a round: the longest that anything else had to wait in the half second
// after the call, and in the half second before it, in milliseconds.

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <string>

#include "ads/frmAdSett.h"
#include "app/roads.h"
#include "output/frmPlayer.h"
#include "platform/qt/QtWorld.h"
#include "settings/Station.h"

namespace {

// The longest time that the GUI thread let a timer of a millisecond wait.
class Busy {
 public:
  Busy() {
    timer_.setTimerType(Qt::PreciseTimer);
    timer_.setInterval(1);
    QObject::connect(&timer_, &QTimer::timeout, [this] {
      longest_ = std::max(longest_, last_.nsecsElapsed() - kInterval);
      last_.restart();
    });
    last_.start();
    timer_.start();
  }
  double Take() {
    const double milliseconds = static_cast<double>(longest_) / 1e6;
    longest_ = 0;
    return milliseconds;
  }

 private:
  static constexpr qint64 kInterval = 1'000'000;

  QTimer timer_;
  QElapsedTimer last_;
  qint64 longest_ = 0;
};

}  // namespace

int main(int argc, char** argv) {
  QtWorld outside;
  if (argc != 4) return 2;
  Station station(outside.world, argv[1]);
  const std::string clip = argv[2];
  int rounds = std::stoi(argv[3]);
  ConnectRoads(station);
  station.stores.SettingsFile();
  auto& output = station.forms.Get<frmPlayer>();
  output.ItemOver.Connect([&] { output.MainPlay(clip); });
  output.Show();
  output.MainPlay(clip);
  auto& desk = station.forms.Get<frmAdSett>();

  Busy busy;
  double before = 0;
  bool taking = false;
  // Two seconds for the window to be laid out; then half a second of the plain picture, and half of a new ad.
  int wait = 6;
  outside.world.scheduler.Start(std::chrono::milliseconds(500), TickPhase::kFromStart, [&] {
    const double longest = busy.Take();
    if (--wait > 0) return;
    if (taking) {
      std::printf("%.2f %.2f\n", longest, before);
      std::fflush(stdout);
      if (--rounds == 0) QCoreApplication::exit();
    } else {
      before = longest;
      desk.NextAd();
    }
    taking = !taking;
  });
  return outside.Run();
}
