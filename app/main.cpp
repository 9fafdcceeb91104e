#include "app/roads.h"
#include "platform/qt/QtWorld.h"
#include "settings/Station.h"
#include "shell/frmLoad.h"

int main() {
  QtWorld outside;
  if (!outside.IsOnlyRun()) return 0;
  // What the operator makes there must find its folder on a first run.
  for (const char* folder : {"/Playlist"}) outside.world.files.CreateFolder(outside.ProgramFolder() + folder);
  Station station(outside.world, outside.ProgramFolder());
  ConnectRoads(station);
  station.forms.Get<frmLoad>().Show();
  return outside.Run();
}
