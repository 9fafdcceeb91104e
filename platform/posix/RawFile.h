#pragma once

#include <sys/types.h>

#include <string>
#include <string_view>

#include "platform/posix/FileHandle.h"

// Opens without waiting: a pipe that somebody left in a file's place must not stop the station.
FileHandle OpenForReading(const std::string& path);

// As read(2), but for signals.
ssize_t ReadSome(int descriptor, char* into, std::size_t most);

// False when not all of it could be written.
bool WriteAll(int descriptor, std::string_view content);
