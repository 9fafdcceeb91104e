#pragma once

#include <string>

// The program that stands at a path, whatever the case of its letters: exactly there, or there without the ending
// ".exe". Empty when none does that may be run.
std::string ToolAt(const std::string& path);

// Starts the program at that path in its own folder, apart from the station: it lives on when the station ends. Nothing
// happens where there is none.
void StartDetached(const std::string& path);
