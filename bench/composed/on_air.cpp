// composed_on_air CLIP HEADER SCROLL: the output window of the station over the whole screen, with the clip on the air,
// again and again, under a crawler band of the two pictures at 2 pixels a tick.

#include "output/CurrentAd.h"
#include "output/frmPlayer.h"
#include "platform/Windows.h"
#include "platform/qt/QtWorld.h"
#include "settings/Station.h"

int main(int argc, char** argv) {
  if (argc != 4) return 2;
  QtWorld outside;
  const std::string clip = argv[1];
  const std::string header = argv[2];
  const std::string scroll = argv[3];

  Station station(outside.world, outside.ProgramFolder());
  auto& ad = station.Shared<CurrentAd>();
  ad.CrawlerSpeed = "30";
  ad.CrawlerHeaderHeight = "600";
  auto& output = station.forms.Get<frmPlayer>();
  const auto layOut = [&] {
    const PixelSize screen = outside.world.windows.ScreenSize();
    output.Left = output.Top = 0;
    output.Width = screen.width * kTwipsPerPixel;
    output.Height = screen.height * kTwipsPerPixel;
  };
  layOut();
  output.ItemOver.Connect([&] { output.MainPlay(clip); });
  output.CrawlerLeft.Connect([&] { output.ViewAd(header, scroll, "", ""); });
  output.Show();
  output.MainPlay(clip);
  output.ViewAd(header, scroll, "", "");
  return outside.Run();
}
