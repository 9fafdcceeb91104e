#pragma once

#include <string>

// What the reader of movie headers promises of any bytes; ends the process where it is broken.
void CheckSwfHeader(const std::string& bytes);
