#pragma once

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <initializer_list>
#include <string>
#include <vector>

// A server of the test's own that tells on its first line where it is to be found, and ends with the test.
class Server {
 public:
  // `words` is its command line; "%" stands for the number of the descriptor on which it tells.
  Server(std::initializer_list<const char*> words) {
    int ends[2];
    if (pipe(ends) != 0) return;
    process_ = fork();
    if (process_ == 0) Run(words, ends[1]);
    close(ends[1]);
    char letter = 0;
    while (read(ends[0], &letter, 1) == 1 && letter != '\n') told_ += letter;
    close(ends[0]);
  }
  ~Server() {
    kill(process_, SIGTERM);
    waitpid(process_, nullptr, 0);
  }

  // Empty when it did not start.
  const std::string& Told() const { return told_; }

 private:
  [[noreturn]] static void Run(std::initializer_list<const char*> words, int end) {
    const std::string number = std::to_string(end);
    std::vector<char*> line;
    for (const char* word : words) line.push_back(const_cast<char*>(*word == '%' ? number.c_str() : word));
    line.push_back(nullptr);
    execvp(line.front(), line.data());
    _exit(127);
  }

  pid_t process_ = -1;
  std::string told_;
};
