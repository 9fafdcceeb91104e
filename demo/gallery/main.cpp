#include "demo/gallery/frmGallery.h"
#include "platform/qt/QtWorld.h"
#include "settings/Station.h"

int main() {
  QtWorld outside;
  Station station(outside.world, outside.ProgramFolder());
  station.forms.Get<frmGallery>().Show();
  return outside.Run();
}
