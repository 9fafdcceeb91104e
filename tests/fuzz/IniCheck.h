#pragma once

#include <string>

// Reads any bytes as an INI file, edits it in each way, and ends the process where a promise of the store is broken.
void CheckIni(const std::string& bytes);
