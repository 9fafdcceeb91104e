#pragma once

#include <string>

// What the machine's connection is at this moment.
struct NetworkState {
  // Values of `flags`, which are added up.
  static constexpr int kModem = 1;
  static constexpr int kLan = 2;
  static constexpr int kProxy = 4;
  static constexpr int kOffline = 32;

  bool connected = false;
  int flags = kOffline;
  std::string name;  // of the connection; empty without one

  bool operator==(const NetworkState&) const = default;
};

// The way from this machine to the world. It asks nobody outside: it tells whether there is a way, not whether the far
// end answers.
class Network {
 public:
  virtual ~Network() = default;

  // Asks the machine anew at each call; cheap enough for once a second, and never waits.
  virtual NetworkState Query() const = 0;
  // Ends the dialled connection of that name; there is nothing else that can be hung up.
  virtual void HangUp(const std::string& name) = 0;
};
