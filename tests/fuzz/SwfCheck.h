#pragma once

#include <string>

// What reading and rewriting of movies promises of any bytes; ends the process where it is broken.
void CheckSwf(const std::string& bytes);
