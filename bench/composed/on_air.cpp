// composed_on_air CLIP [HEADER SCROLL [LEFT RIGHT]]: the output window of the station over the whole screen, with the
// clip on the air, again and again, and over it a crawler band of the pictures at 2 pixels a tick. Prints, every
// second: ticks of the frame clock, late ones, and how late the latest came in milliseconds.

#include <string>
#include <vector>

#include "bench/composed/LateTicks.h"
#include "output/CurrentAd.h"
#include "output/frmPlayer.h"
#include "platform/Windows.h"
#include "platform/qt/QtWorld.h"
#include "settings/Station.h"

int main(int argc, char** argv) {
  QtWorld outside;
  std::vector<std::string> files(argv + 1, argv + argc);
  if (files.size() != 1 && files.size() != 3 && files.size() != 5) return 2;
  const bool withBand = files.size() > 1;
  files.resize(5);
  const std::string clip = files[0];

  Station station(outside.world, outside.ProgramFolder());
  auto& ad = station.Shared<CurrentAd>();
  ad.CrawlerSpeed = "30";
  ad.CrawlerHeaderHeight = "600";
  ad.CrawlerSideWidth = "1500";
  auto& output = station.forms.Get<frmPlayer>();
  const auto layOut = [&] {
    const PixelSize screen = outside.world.windows.ScreenSize();
    output.Left = output.Top = 0;
    output.Width = screen.width * kTwipsPerPixel;
    output.Height = screen.height * kTwipsPerPixel;
  };
  layOut();
  const auto viewAd = [&] { output.ViewAd(files[1], files[2], files[3], files[4]); };
  output.ItemOver.Connect([&] { output.MainPlay(clip); });
  output.CrawlerLeft.Connect(viewAd);
  output.PicAd.Visible = withBand;
  output.Timer1.Enabled = withBand;
  output.Show();
  output.MainPlay(clip);
  if (withBand) viewAd();
  const LateTicks late(outside.world.scheduler, outside.world.clock);
  return outside.Run();
}
