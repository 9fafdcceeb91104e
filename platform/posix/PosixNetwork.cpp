#include "platform/posix/PosixNetwork.h"

#include <net/route.h>
#include <signal.h>

#include <charconv>
#include <sstream>
#include <vector>

#include "platform/posix/RawFile.h"

namespace {

// A table of routes longer than this is not a play-out machine's, and its default route stands near its beginning.
constexpr std::size_t kMost = 64 * 1024;

std::string Head(const std::string& path) {
  const FileHandle file = OpenForReading(path);
  std::string text(kMost, '\0');
  std::size_t filled = 0;
  while (file.IsOpen() && filled < text.size()) {
    const ssize_t got = ReadSome(file.Get(), text.data() + filled, text.size() - filled);
    if (got <= 0) break;
    filled += static_cast<std::size_t>(got);
  }
  text.resize(filled);
  return text;
}

unsigned long FromHex(const std::string& digits) {
  unsigned long value = 0;
  std::from_chars(digits.data(), digits.data() + digits.size(), value, 16);
  return value;
}

bool Leads(unsigned long flags) { return (flags & RTF_UP) != 0 && (flags & RTF_REJECT) == 0; }

// The words of each line, for as long as `read` wants more.
template <class Read>
void ForEachLine(const std::string& text, Read read) {
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) {
    std::istringstream parts(line);
    std::vector<std::string> words;
    for (std::string word; parts >> word;) words.push_back(word);
    if (!read(words)) return;
  }
}

// Iface Destination Gateway Flags RefCnt Use Metric Mask ...
std::string DefaultRoute4(const std::string& table) {
  std::string name;
  ForEachLine(table, [&name](const std::vector<std::string>& words) {
    const bool everywhere = words.size() > 7 && words[1] == "00000000" && words[7] == "00000000";
    if (everywhere && Leads(FromHex(words[3]))) name = words[0];
    return name.empty();
  });
  return name;
}

// Destination, its length, source, its length, next hop, metric, references, use, flags, device.
std::string DefaultRoute6(const std::string& table) {
  std::string name;
  ForEachLine(table, [&name](const std::vector<std::string>& words) {
    const bool everywhere = words.size() > 9 && words[0] == std::string(32, '0') && words[1] == "00";
    if (everywhere && Leads(FromHex(words[8])) && words[9] != "lo") name = words[9];
    return name.empty();
  });
  return name;
}

bool IsDialled(const std::string& name) { return name.starts_with("ppp") || name.starts_with("wwan"); }

}  // namespace

NetworkState PosixNetwork::Query() const {
  std::string name = DefaultRoute4(Head(root_ + "/proc/net/route"));
  if (name.empty()) name = DefaultRoute6(Head(root_ + "/proc/net/ipv6_route"));
  if (name.empty()) return {};
  return {.connected = true, .flags = IsDialled(name) ? NetworkState::kModem : NetworkState::kLan, .name = name};
}

void PosixNetwork::HangUp(const std::string& name) {
  if (!IsDialled(name) || name.find('/') != std::string::npos) return;
  const std::string text = Head(root_ + "/run/" + name + ".pid");
  pid_t daemon = 0;
  std::from_chars(text.data(), text.data() + text.size(), daemon);
  if (daemon > 1) kill(daemon, SIGHUP);
}
