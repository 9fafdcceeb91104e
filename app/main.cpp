#include "app/roads.h"
#include "overlay/NewsMovie.h"
#include "platform/qt/QtWorld.h"
#include "settings/Station.h"
#include "shell/frmLoad.h"

int main() {
  QtWorld outside;
  if (!outside.IsOnlyRun()) return 0;
  Station station(outside.world, outside.ProgramFolder());
  MakeStationFolders(outside.world.files, station.dataFolder);
  MakeNewsMovie(outside.world.files, station.dataFolder);
  ConnectRoads(station);
  station.forms.Get<frmLoad>().Show();
  return outside.Run();
}
