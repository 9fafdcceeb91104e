#pragma once

#include <string>

#include "platform/Network.h"

// Whether the machine is on line, and by what. Keeps nothing: each call asks the machine anew.
class CNetConn {
 public:
  explicit CNetConn(Network& network) : network_(network) {}

  bool IsConnected() const { return network_.Query().connected; }
  // A sum of the flags of NetworkState.
  int ConnType() const { return network_.Query().flags; }
  // "LAN", "Modem", "Proxy" or "Offline": the first of these in `flags`, in this order; empty for none.
  std::string ConnTypeDevice(int flags) const;
  // Empty without a connection.
  std::string ConnName() const { return network_.Query().name; }
  // Ends the connection of that name, where it is one that can be hung up.
  void HangUp() { network_.HangUp(ConnName()); }

 private:
  Network& network_;
};
