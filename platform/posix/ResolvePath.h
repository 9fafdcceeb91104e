#pragma once

#include <string>

// What Files::Resolve promises, for this disk.
std::string ResolvePath(const std::string& path);

// A link stays a link: what is replaced is the file that it leads to. Other paths stay as they are.
std::string BehindLinks(const std::string& path);

// The folder part of a path, for opening it: "." for a bare name.
std::string FolderOfPath(const std::string& path);
