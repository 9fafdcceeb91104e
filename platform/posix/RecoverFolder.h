#pragma once

#include <string>

// Sees to what a run that was cut short left in a folder: a file that the power cut tore gets its newest whole version
// back, and kept and unfinished files of processes that are gone are removed, half removed folders too. Waits for the
// medium only where there was something kept.
void RecoverFolder(const std::string& folder);
