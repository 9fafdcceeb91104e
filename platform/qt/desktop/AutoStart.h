#pragma once

#include <QString>
#include <string>

// The text of a desktop entry that starts the program at that path.
QString AutoStartEntry(const std::string& name, const std::string& program);

// Has the program started at each log-on of this user: an entry of that name in the folder that desktops look into.
// Written elsewhere than on the calling thread; an entry that stands already is not written again.
void WriteAutoStart(const std::string& name, const std::string& program);
