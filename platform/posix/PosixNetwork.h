#pragma once

#include <string>

#include "platform/Network.h"

// There is a way to the world where a default route is up, in /proc/net/route or /proc/net/ipv6_route: the first such
// one names the connection. A line that is dialled (ppp, wwan) is a modem, every other one a LAN; nothing here knows of
// a proxy.
class PosixNetwork : public Network {
 public:
  // `root` stands before the paths of the system.
  explicit PosixNetwork(std::string root = "") : root_(std::move(root)) {}

  NetworkState Query() const override;
  // Tells the line's daemon, by the process number in /run/<name>.pid, to hang up.
  void HangUp(const std::string& name) override;

 private:
  std::string root_;
};
