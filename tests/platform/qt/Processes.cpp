#include "tests/platform/qt/Processes.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace {

std::string FileOf(pid_t pid, const char* name) {
  std::ifstream file("/proc/" + std::to_string(pid) + "/" + name);
  return {std::istreambuf_iterator<char>(file), {}};
}

pid_t ParentOf(pid_t pid) {
  const std::string text = FileOf(pid, "stat");
  const std::size_t end = text.rfind(')');
  return end == std::string::npos ? 0 : std::stoi(text.substr(end + 4));
}

bool IsBelowThis(pid_t pid) {
  while (pid > 1 && pid != getpid()) pid = ParentOf(pid);
  return pid == getpid();
}

}  // namespace

std::vector<pid_t> ProcessesWith(const std::string& word) {
  std::vector<pid_t> found;
  for (const auto& entry : std::filesystem::directory_iterator("/proc")) {
    const std::string name = entry.path().filename();
    if (name.find_first_not_of("0123456789") != std::string::npos) continue;
    const pid_t pid = std::stoi(name);
    if (FileOf(pid, "cmdline").find(word) != std::string::npos && IsBelowThis(pid)) found.push_back(pid);
  }
  return found;
}

void KillAll(const std::string& word) {
  for (const pid_t process : ProcessesWith(word)) kill(process, SIGKILL);
}

// A renderer is made by one of the browser's own processes.
void KillTheRenderer() {
  int killed = 0;
  for (const pid_t pid : ProcessesWith(kBrowser)) {
    if (FileOf(ParentOf(pid), "cmdline").find(kBrowser) != std::string::npos) killed += kill(pid, SIGKILL) == 0 ? 1 : 0;
  }
  ASSERT_GT(killed, 0);
}
