// station_on_air: the whole station of the folder that it lies in, brought on the air as the program brings it. Prints,
// every second: ticks of the frame clock, late ones, and how late the latest came in milliseconds.

#include "settings/Station.h"

#include "app/roads.h"
#include "bench/composed/LateTicks.h"
#include "platform/qt/QtWorld.h"
#include "shell/frmLoad.h"

int main() {
  QtWorld outside;
  Station station(outside.world, outside.ProgramFolder());
  ConnectRoads(station);
  station.forms.Get<frmLoad>().Show();
  const LateTicks late(outside.world.scheduler, outside.world.clock);
  return outside.Run();
}
