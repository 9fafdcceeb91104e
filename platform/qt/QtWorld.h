#pragma once

#include <memory>
#include <string>

#include "platform/World.h"

// The real world: this desktop, its disk and its players. Makes the application; there is one in a process.
class QtWorld {
  struct Parts;
  static std::unique_ptr<Parts> MakeParts();
  std::unique_ptr<Parts> parts_;

 public:
  QtWorld();
  ~QtWorld();

  // The folder of the executable, wherever it was started from.
  const std::string& ProgramFolder() const;
  // Lets everything happen, until the process ends.
  int Run();

  World world;
};
