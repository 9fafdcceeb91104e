#pragma once

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <string>

// An X server of the test's own, without a screen and without a window manager, on a display number that is free.
class XServer {
 public:
  XServer() {
    int ends[2];
    if (pipe(ends) != 0) return;
    server_ = fork();
    if (server_ == 0) {
      const std::string number = std::to_string(ends[1]);
      execlp("Xvfb", "Xvfb", "-displayfd", number.c_str(), "-screen", "0", "1280x800x24", "-nolisten", "tcp", nullptr);
      _exit(127);
    }
    close(ends[1]);
    char digit = 0;
    while (read(ends[0], &digit, 1) == 1 && digit != '\n') display_ += digit;
    close(ends[0]);
  }
  ~XServer() {
    kill(server_, SIGTERM);
    waitpid(server_, nullptr, 0);
  }

  // Empty when the server did not start.
  std::string Display() const { return display_.empty() ? "" : ":" + display_; }

 private:
  pid_t server_ = -1;
  std::string display_;
};
