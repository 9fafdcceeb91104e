// Writes one setting after the other until it is killed, and says so on its standard output after each: the number of
// the write, as 8 bytes. Usage: StoreWriter <file> <first number>

#include "tests/settings/StoreWriter.h"

#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <thread>

#include "platform/posix/PosixFiles.h"
#include "settings/IniFile.h"

int main(int argc, char** argv) {
  if (argc != 3) return 2;
  PosixFiles files;
  IniFile ini(files);
  ini.SetPath(argv[1]);
  for (std::uint64_t number = std::strtoull(argv[2], nullptr, 10);; ++number) {
    ini.WriteValue("Playlist", WrittenKey(number), std::to_string(number));
    if (write(STDOUT_FILENO, &number, sizeof number) != sizeof number) return 1;
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }
}
