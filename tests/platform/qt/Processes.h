#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

inline constexpr char kBrowser[] = "QtWebEngineProcess";

// Processes below this one whose command line has the word.
std::vector<pid_t> ProcessesWith(const std::string& word);
void KillAll(const std::string& word);
// Kills what renders pages; fails the test when nothing does.
void KillTheRenderer();
