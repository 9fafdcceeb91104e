#include "shell/CNetConn.h"

std::string CNetConn::ConnTypeDevice(int flags) const {
  if (flags & NetworkState::kLan) return "LAN";
  if (flags & NetworkState::kModem) return "Modem";
  if (flags & NetworkState::kProxy) return "Proxy";
  if (flags & NetworkState::kOffline) return "Offline";
  return "";
}
