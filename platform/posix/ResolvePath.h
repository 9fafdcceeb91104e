#pragma once

#include <string>

// What Files::Resolve promises, for this disk.
std::string ResolvePath(const std::string& path);

// The folder part of a path, for opening it: "." for a bare name.
std::string FolderOfPath(const std::string& path);
