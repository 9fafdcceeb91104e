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

  // Whether no other run of the program is in this folder. Where one is, it has been told that it was started again,
  // and this one is to end with nothing touched.
  bool IsOnlyRun();
  // The folder of the executable, wherever it was started from.
  const std::string& ProgramFolder() const;
  // Lets everything happen, until the process ends.
  int Run();

  World world;
};
