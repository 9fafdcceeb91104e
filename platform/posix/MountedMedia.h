#pragma once

#include <string>
#include <string_view>
#include <vector>

// The folders of the media in a table of mounts, sorted and each once: what is mounted below the places where a desktop
// or a person mounts media, and below no other. The table is as the kernel tells it, in /proc/self/mounts: fields apart
// by blanks, of which the second is the folder, with blanks, tabs, line ends and backslashes in it written as a
// backslash and three octal digits.
std::vector<std::string> MountedMedia(std::string_view table);
