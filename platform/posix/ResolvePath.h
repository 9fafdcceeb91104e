#pragma once

#include <string>

// The path under which something really stands: each part whose exact name is missing takes the name of an entry that
// is equal without regard to case, the first in the order of lists where there are several. From the first part on that
// has none, the path stays as given.
std::string ResolvePath(const std::string& path);

// The folder part of a path, for opening it: "." for a bare name.
std::string FolderOfPath(const std::string& path);
