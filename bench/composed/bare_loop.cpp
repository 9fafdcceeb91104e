// bare_loop: the frame clock of the station with nothing to do. Prints, every second: ticks, late ones, and how late
// the latest came in milliseconds.

#include "bench/composed/LateTicks.h"
#include "platform/qt/QtWorld.h"

int main() {
  QtWorld outside;
  const LateTicks late(outside.world.scheduler, outside.world.clock);
  return outside.Run();
}
